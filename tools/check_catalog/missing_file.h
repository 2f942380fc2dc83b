// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarnwick {

/// Why a file can't be read, in words.
struct MissingFile {
  std::string What;    ///< "is missing"
  std::string Remedy;  ///< a sentence, or "" when there is simply no such file
};

/// Looks at what lies where the file `name` below `folder` should.
MissingFile LookForFile(const std::filesystem::path& folder, std::string_view name);

}  // namespace tarnwick
