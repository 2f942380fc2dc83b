// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/int16.h"
#include "base/table.h"
#include "catalog/profile_files.h"

namespace tarnwick {

struct TerrainKindRec {
  std::string Name;   ///< the keyword that army files hold
  Int16 ArmyCost;     ///< army points
  Int16 CommandCost;  ///< command points
};

/// The terrain on offer and what lies on the nine areas of the battlefield.
struct Battlefield {
  Table<TerrainKindRec, 0, 5> TerrainKinds;
  Table<std::string, 0, 8> AreaTerrain;  ///< area n + 1; the name of a kind
};

/// Takes all terrain off the areas. Gives no points back.
void ClearAreas(Battlefield& field);

/// Clears the areas and fills the table of kinds.
void InitTerrainKinds(Battlefield& field);

/// Writes the section TERRAIN of an army file, all nine areas. A failed write is silent.
void SaveTerrain(const Battlefield& field, ProfileFiles& files, const std::filesystem::path& army);

}  // namespace tarnwick
