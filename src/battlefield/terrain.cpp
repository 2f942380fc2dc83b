// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "battlefield/terrain.h"

namespace tarnwick {

void ClearAreas(Battlefield& field) {
  field.AreaTerrain.Fill("CLEAR");
}

void InitTerrainKinds(Battlefield& field) {
  ClearAreas(field);
  field.TerrainKinds[0] = {"CLEAR", 0, 0};
  field.TerrainKinds[1] = {"SLOPE", 30, 5};
  field.TerrainKinds[2] = {"CAMP", 60, 10};
  field.TerrainKinds[3] = {"WOOD", 20, 0};
  field.TerrainKinds[4] = {"MOUNTAIN", 50, 15};
  field.TerrainKinds[5] = {"CLIFF", 150, 0};
}

void SaveTerrain(const Battlefield& field, ProfileFiles& files, const std::filesystem::path& army) {
  for (Int16 n = 1; n <= 9; ++n) {
    files.WriteIniString("TERRAIN", RowKey("area", n), field.AreaTerrain[n - 1], army);
  }
}

}  // namespace tarnwick
