// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <utility>

#include "catalog/profile_files.h"

namespace tarnwick {

/// Where the editor's files are, and the way to what they hold.
struct Disk {
  explicit Disk(std::filesystem::path programFolder) : ProgramFolder(std::move(programFolder)) {}

  /// A module's own folder: the program folder, or "brakka" in it.
  std::filesystem::path ModuleFolder(bool brakkaMode) const {
    return brakkaMode ? ProgramFolder / "brakka" : ProgramFolder;
  }

  std::filesystem::path ProgramFolder;  ///< holds the catalogs and the army files
  ProfileFiles Files;
};

}  // namespace tarnwick
