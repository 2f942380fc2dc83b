// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "catalog/disk.h"
#include "rules/army_state.h"

namespace tarnwick {

/// The units that were bought, a row each, and what their special abilities mean.
std::string UnitSheet(const ArmyState& army, const Disk& disk);

/// The picture of a row of the image catalog; "" without one. A file outside the program folder is
/// not read.
std::string UnitPicture(const ArmyState& army, const Disk& disk, Int16 image, int side);

}  // namespace tarnwick
