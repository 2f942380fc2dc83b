// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "base/ansi.h"
#include "catalog/profile_files.h"

namespace tarnwick {

/// Where the editor's files are, and the way to what they hold.
struct Disk {
  explicit Disk(std::filesystem::path programFolder)
      : ProgramFolder(std::move(programFolder)), ScratchFolder(ProgramFolder) {}

  /// A module's own folder: the program folder, or "brakka" in it.
  std::filesystem::path ModuleFolder(bool brakkaMode) const {
    return brakkaMode ? ProgramFolder / "brakka" : ProgramFolder;
  }

  std::filesystem::path ProgramFolder;  ///< holds the catalogs and the army files
  std::filesystem::path ScratchFolder;  ///< holds the setups of the working army
  ProfileFiles Files;
};

/// The ending of an army file's name.
inline constexpr std::string_view armyEnding = ".army";

/// The army file of that name in a folder, or below it.
inline std::filesystem::path ArmyPath(const std::filesystem::path& folder, std::string_view name) {
  return PathIn(folder, std::string(name).append(armyEnding));
}

}  // namespace tarnwick
