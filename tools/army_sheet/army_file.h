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
  std::string
      Trouble;  ///< what the editor said while it loaded the file, and what was not verified
};

/// Loads an army file. It is one of the program folder `folder`, or of the second module's folder
/// in it; "" stands for the folder that the file lies in. Its setups go to the folder `scratch`;
/// nothing else is written.
LoadedArmy LoadArmyFile(const std::filesystem::path& file, const std::filesystem::path& folder,
                        const std::filesystem::path& scratch);

}  // namespace tarnwick
