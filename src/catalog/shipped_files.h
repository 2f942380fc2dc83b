// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarnwick {

/// The list of what was laid into a program folder, in that folder: a line a file, with checksum
/// and name; its own name stands for the list that was laid last. A file that is another by now is
/// the user's own.
inline constexpr const char* shippedList = "shipped.txt";

/// Where the editor finds what it works on.
struct Installation {
  std::filesystem::path Shipped;  ///< what an installation for all users holds, "" without one
  std::filesystem::path Program;  ///< the program folder
  std::filesystem::path Guide;    ///< the guide's text and pictures
};

/// `binary`, the folder of the executable, is the program folder when the catalogs lie there, or
/// when nothing is installed for all users either; else `own`, which is the user's.
Installation FindInstallation(const std::filesystem::path& binary,
                              const std::filesystem::path& own);

/// The list of all files in a folder and below but for a list.
std::string ListFiles(const std::filesystem::path& folder);

/// Brings the files of `from` to the program folder `to`, with their `list`. Files there that are
/// not what was laid last stay as they are, and what was laid once and is gone stays away. Gives
/// the files that were held back so, with the reason. What can't be written does not keep the
/// others back: FileError tells of it at the end, and a later call tries again.
std::vector<std::string> LayFiles(const std::filesystem::path& from, const std::string& list,
                                  const std::filesystem::path& to);

/// Lays what is installed for all users into the user's program folder, if it has changed since
/// the last time.
void BringUpToDate(const Installation& installation);

}  // namespace tarnwick
