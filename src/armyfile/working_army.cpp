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

void ReadImageCatalog(WorkingArmy& work) {
  ArmyState& army = work.Army;
  LoadImages(army.Catalog, army.Files, army.ProgramFolder, army.BrakkaMode, work.Header.ArmyFile);
}

void Form_Load(WorkingArmy& work) {
  ArmyState& army = work.Army;
  army.FormReady = false;
  army.SpecRowsLoaded = false;
  InitializeVariables(army);
  InitTerrainKinds(work.Field);
  ShowPanel(army, Panel::Management);
  ReadImageCatalog(work);
  army.FormReady = true;
  army.Title = "Velmora Tarnwick ver. " + VersionText(army.EditorVersion);
}

void modOption_Click(WorkingArmy& work) {
  ArmyState& army = work.Army;
  TakeModule(army);
  army.ArmyListFile = ModuleFolder(army) / "armylist.dat";
  work.Header.HistoricTab.Visible = !army.BrakkaMode;
  ReadImageCatalog(work);
}

void NewArmyBtn_Click(WorkingArmy& work, Host& host) {
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
  LoadBaseArmy(army, host);
  ShowSelectUnits(army);
}

}  // namespace tarnwick
