// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "armyfile/working_army.h"
#include "catalog/disk.h"

namespace tarnwick {

/// An army file as the editor loads it.
struct LoadedArmy {
  Disk Store;
  WorkingArmy Work;
  bool Whole;  ///< it was loaded to its end
  /// What the editor said while it loaded the file, and what was not verified.
  std::string Trouble;
};

/// Loads an army file with the catalogs of the program folder `folder`; "" stands for the folder
/// that the file lies in. When one of both is named brakka, the program folder is the one above it,
/// and the army is one of the second module. It is loaded in the folder `scratch`, whose contents
/// the next file replaces; nothing else is written. What keeps a file from being loaded is trouble,
/// no exception.
LoadedArmy LoadArmyFile(const std::filesystem::path& file, const std::filesystem::path& folder,
                        const std::filesystem::path& scratch);

}  // namespace tarnwick
