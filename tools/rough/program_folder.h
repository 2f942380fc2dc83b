// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace tarnwick {

/// The shipped army that most handlings have open.
inline constexpr const char* sampleArmy = "Trebia";

/// What the files of a folder hold, by their paths in it.
using Contents = std::map<std::filesystem::path, std::string>;

std::string ReadFile(const std::filesystem::path& file);

/// Writes a file in place, and makes the folders on the way to it.
void WriteFile(const std::filesystem::path& file, std::string_view bytes);

/// Lets a file look an hour old, so that editors keep what they have read of it.
void MakeOld(const std::filesystem::path& file);

/// Makes `folder` anew, with the catalogs of `data` and the armies of that name.
void LayFolder(const std::filesystem::path& data, const std::filesystem::path& folder,
               std::string_view army);

/// All files but the catalogs and pictures.
Contents ContentsOf(const std::filesystem::path& folder);

/// Makes these the only files in the folder but for the catalogs and pictures.
void Restore(const std::filesystem::path& folder, const Contents& contents);

/// The first path that is in one of them only, or holds something else; "" when there is none.
std::string Difference(const Contents& a, const Contents& b);

}  // namespace tarnwick
