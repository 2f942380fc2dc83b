// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "battlefield/terrain.h"

#include <string>
#include <vector>

#include "base/errors.h"
#include "base/numbers.h"
#include "rules/budget.h"

namespace tarnwick {
namespace {

constexpr std::string_view clear = "CLEAR";

void Charge(ArmyState& state, const TerrainKindRec& kind) {
  state.PointsLeft -= kind.ArmyCost;
  state.CommandPts -= kind.CommandCost;
}

}  // namespace

void ClearAreas(Battlefield& field) {
  field.AreaTerrain.Fill(std::string(clear));
}

void InitTerrainKinds(Battlefield& field) {
  ClearAreas(field);
  field.TerrainKinds[0] = {std::string(clear), 0, 0};
  field.TerrainKinds[1] = {"SLOPE", 30, 5};
  field.TerrainKinds[2] = {"CAMP", 60, 10};
  field.TerrainKinds[3] = {"WOOD", 20, 0};
  field.TerrainKinds[4] = {"MOUNTAIN", 50, 15};
  field.TerrainKinds[5] = {"CLIFF", 150, 0};
  for (int i = 0; i <= 5; ++i)
    field.Terrain.TerrImg[i] = {NumberText(Int16(i)), i};
}

Int16 TerrainIndex(const Battlefield& field, std::string_view name) {
  for (Int16 i = 0; i <= 5; ++i) {
    if (field.TerrainKinds[i].Name == name) return i;
  }
  throw SubscriptError();
}

Int16 TerrainCommandPoints(const Battlefield& field) {
  Int16 points;
  for (int i = 0; i <= 8; ++i)
    points += field.TerrainKinds[TerrainIndex(field, field.AreaTerrain[i])].CommandCost;
  return points;
}

void SaveTerrain(const Battlefield& field, PendingFiles& files, const std::filesystem::path& army) {
  std::vector<ProfileText::Entry> areas;
  for (Int16 n = 1; n <= 9; ++n) {
    areas.push_back({"TERRAIN", RowKey("area", n), field.AreaTerrain[n - 1]});
  }
  files.WriteIniStrings(areas, army);
}

void LoadTerrain(Battlefield& field, ArmyState& state, const ProfileFiles& files,
                 const std::filesystem::path& army) {
  for (Int16 n = 1; n <= 9; ++n) {
    const std::string name = files.ReadIniString("TERRAIN", RowKey("area", n), army);
    std::string& area = field.AreaTerrain[n - 1];
    area = name.empty() ? clear : name;
    Charge(state, field.TerrainKinds[TerrainIndex(field, area)]);
  }
}

void ShowTerrainPoints(Battlefield& field, const ArmyState& state) {
  field.Terrain.ArmyPts.Caption = NumberText(state.PointsLeft);
  field.Terrain.CommandPts.Caption = NumberText(state.CommandPts);
}

void ShowTerrain(Battlefield& field, const ArmyState& state) {
  ShowTerrainPoints(field, state);
  for (int i = 0; i <= 8; ++i) {
    PictureBox& area = field.Terrain.Area[i];
    if (field.AreaTerrain[i] == clear) {
      area.Tag = "0";
      continue;
    }
    const Int16 kind = TerrainIndex(field, field.AreaTerrain[i]);
    area = {NumberText(kind), field.Terrain.TerrImg[kind].Picture};
  }
}

bool CanPlaceTerrain(const Battlefield& field, const ArmyState& state, Int16 kind) {
  const TerrainKindRec& wanted = field.TerrainKinds[kind];
  return state.PointsLeft >= wanted.ArmyCost && state.CommandPts >= wanted.CommandCost;
}

void DropTerrain(Battlefield& field, ArmyState& state, Host& host, Int16 piece, Int16 area) {
  const PictureBox& source = field.Terrain.TerrImg[piece];
  PictureBox& target = field.Terrain.Area[area];
  const Int16 kind = LenientInt16(source.Tag);
  if (!CanPlaceTerrain(field, state, kind)) {
    host.Message("Not enough points");
    return;
  }
  const TerrainKindRec& replaced = field.TerrainKinds[LenientInt16(target.Tag)];
  state.PointsLeft += replaced.ArmyCost;
  state.CommandPts += replaced.CommandCost;
  Charge(state, field.TerrainKinds[kind]);
  target = source;
  field.AreaTerrain[area] = field.TerrainKinds[kind].Name;
  ShowTerrainPoints(field, state);
  ShowPoints(state);
}

void ShowTerrainBtn_Click(Battlefield& field, ArmyState& state) {
  ShowTerrain(field, state);
  ShowPanel(state, Panel::Terrain);
}

}  // namespace tarnwick
