// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/working_army.h"

#include "battlefield/terrain.h"
#include "rules/base_army_loading.h"
#include "rules/unit_grid.h"

namespace tarnwick {

void TakeModule(ArmyState& army) {
  army.BrakkaMode = army.Management.modOption[1].Value;
}

void ReadImageCatalog(WorkingArmy& work, const Disk& disk) {
  ArmyState& army = work.Army;
  LoadImages(army.Catalog, disk, army.BrakkaMode, work.Header.ArmyFile);
}

void Form_Load(WorkingArmy& work, const Disk& disk) {
  ArmyState& army = work.Army;
  army.FormReady = false;
  army.SpecRowsLoaded = false;
  InitializeVariables(army, disk);
  InitTerrainKinds(work.Field);
  ShowPanel(army, Panel::Management);
  ReadImageCatalog(work, disk);
  army.FormReady = true;
  army.Title = "Velmora Tarnwick ver. " + VersionText(army.EditorVersion);
}

void modOption_Click(WorkingArmy& work, const Disk& disk) {
  ArmyState& army = work.Army;
  TakeModule(army);
  army.ArmyListFile = disk.ModuleFolder(army.BrakkaMode) / "armylist.dat";
  work.Header.HistoricTab.Visible = !army.BrakkaMode;
  ReadImageCatalog(work, disk);
}

void NewArmyBtn_Click(WorkingArmy& work, const Disk& disk, Host& host) {
  ArmyState& army = work.Army;
  host.ShowArmySelectionForm();
  army.Management.ArmyName.Text = "";
  work.Header.ArmyDesc.Text = "";
  ArmyDesc_Change(work.Header);
  if (army.BaseArmyName.empty()) return;
  TakeModule(army);
  work.Header.TYPE_IsFantasy.Value = army.BrakkaMode;
  ClearAreas(work.Field);
  ClearSpecialRules(work.Header);
  LoadBaseArmy(army, disk, host);
  ShowSelectUnits(army, disk);
}

}  // namespace tarnwick
