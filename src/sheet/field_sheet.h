// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "armyfile/working_army.h"
#include "base/table.h"
#include "catalog/disk.h"

namespace tarnwick {

/// The pictures of the terrain kinds as SVG, by the kind's number.
using TerrainPictures = Table<std::string, 0, 5>;

/// The nine areas, three in a row.
std::string TerrainMap(const Battlefield& field, const TerrainPictures& pictures);

/// A plan of each setup in the list of the panel "Setup".
std::vector<std::string> SetupPlans(const WorkingArmy& work, const Disk& disk);

}  // namespace tarnwick
