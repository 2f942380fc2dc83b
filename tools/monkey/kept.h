// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "armyfile/working_army.h"
#include "catalog/disk.h"

namespace tarnwick {

/// What an army file keeps of an army, in lines that can be compared before and after: the texts as
/// a line of a file gives them back, the leader as the catalog knows him, no row without units, and
/// in the second module no terrain.
std::vector<std::string> KeptLines(const WorkingArmy& work, const Disk& disk);

/// The setups 1 to 20 of the folder that have a description.
std::vector<std::string> SetupLines(const Disk& disk);

/// The free points that a loaded army must have by what it consists of, both kinds.
std::string ExpectedPoints(const WorkingArmy& work, const Disk& disk);

}  // namespace tarnwick
