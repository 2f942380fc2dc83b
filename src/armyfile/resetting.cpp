// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/resetting.h"

#include "battlefield/terrain.h"
#include "rules/budget.h"

namespace tarnwick {
namespace {

void EmptyGrid(UnitsPanel& grid) {
  for (int k = 0; k <= 22; ++k) {
    grid.Buy[k].Text = "";
    grid.UnitTotalLabel[k] = {.Caption = "", .Tag = "0", .Visible = grid.UnitTotalLabel[k].Visible};
    grid.Buy[k].Tag = "";
    if (!grid.ImageName[k].Entries.empty()) grid.ImageName[k].ListIndex = 0;
  }
}

}  // namespace

void ResetArmyData(WorkingArmy& work, const Disk& disk) {
  ArmyState& army = work.Army;
  army.GridFilling = true;
  army.SetupLoading = true;
  for (Int16 r = 1; r <= army.TotUnits; ++r)
    army.BaseUnits[r].Bought = 0;
  EmptyGrid(army.Units);
  TickOption(army.Command.LeaderName, -1);
  army.SelectedLeader = -1;
  for (Int16 j = 0; j < army.TotSpecial; ++j) {
    army.Command.SpecBuy[j].Tag = "0";
    army.Command.SpecBuy[j].Text = "";
  }
  const auto read = [&](std::string_view key) {
    return disk.Files.ReadIniNumber(army.BaseArmyName, key, army.ArmyListFile);
  };
  army.PointsLeft = read("points");
  army.PointsSpent = 0;
  army.CommandPts = read("command_pts");
  ShowPoints(army);
  army.GridFilling = false;
  army.SetupLoading = false;
  ClearSpecialRules(work.Header);
  work.Header.FromData.Text = "";
  work.Header.ToData.Text = "";
  ClearAreas(work.Field);
}

void ResetArmy_Click(WorkingArmy& work, const Disk& disk) {
  ResetArmyData(work, disk);
}

}  // namespace tarnwick
