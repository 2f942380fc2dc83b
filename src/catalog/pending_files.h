// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "catalog/profile_files.h"
#include "catalog/profile_text.h"

namespace tarnwick {

/// Profile files that are made in memory and replaced when all of them are complete: each of them
/// once, in the order in which they were first written to.
class PendingFiles {
 public:
  /// A file that is made anew.
  void Write(const std::filesystem::path& file, std::string text);

  /// Sets keys in a file: in its new text, or in what it holds.
  void WriteIniStrings(const std::vector<ProfileText::Entry>& entries,
                       const std::filesystem::path& file);

  /// Replaces the files. Throws FileError when a file that is made anew can't be written; any
  /// other that can't be is left silently as it is.
  void Replace(ProfileFiles& files) const;

 private:
  struct Pending {
    std::filesystem::path File;
    std::optional<std::string> Text;
    std::vector<ProfileText::Entry> Entries;
  };

  Pending& Of(const std::filesystem::path& file);

  std::vector<Pending> pending_;
};

}  // namespace tarnwick
