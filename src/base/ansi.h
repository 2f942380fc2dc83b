// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarnwick {

// Texts of the state and of the files are ANSI bytes (Windows-1252), one byte a character.

/// A character outside the code page becomes "?", as does every byte that is no UTF-8.
std::string AnsiFromUtf8(std::string_view utf8);
std::string Utf8FromAnsi(std::string_view ansi);

/// The file `ansiName` below `folder`, even when the name begins like an absolute path. Folders are
/// separated by "/" or "\".
std::filesystem::path PathIn(const std::filesystem::path& folder, std::string_view ansiName);

/// A path as messages show it.
std::string AnsiFromPath(const std::filesystem::path& path);

/// Lower case; letters with accents count.
[[nodiscard]] char LowerCase(char ansi);
[[nodiscard]] std::string LowerCase(std::string_view ansi);

}  // namespace tarnwick
