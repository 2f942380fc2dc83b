// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/army_state.h"

#include "base/numbers.h"

namespace tarnwick {

std::string VersionText(const Version& version) {
  return NumberText(version.Major) + "." + NumberText(version.Minor) + "." +
         NumberText(version.Revision);
}

void InitializeVariables(ArmyState& state, const Disk& disk) {
  state.ArmyListFile = disk.ProgramFolder / "armylist.dat";

  for (int k = 0; k <= 22; ++k)
    ShowGridLine(state.Units, k, false);
  const char* const views[] = {"Infantry", "Mounted", "Buy"};
  for (int i = 0; i < 3; ++i)
    state.Units.ViewOption[i].Caption = views[i];
  TickOption(state.Units.ViewOption, 0);
  state.Units.TotalCost.Caption = "Total: ";
  for (int i = 0; i <= 6; ++i) {
    state.Units.TypeLimit[i].Visible = false;
    state.Units.MinLimit[i].Visible = false;
    state.Command.LeaderName[i].Visible = false;
  }

  CommandPanel& command = state.Command;
  command.LeaderFrame.Caption = "Leaders ";
  command.LeaderName[0].Caption = "Option1";
  command.SpecNameLabel[0].Caption = "Card";
  command.SpecMaxLabel[0].Caption = "0";
  command.SpecBuy[0].Tag = "0";
  command.SpecNameLabel[0].Visible = command.SpecCostLabel[0].Visible = false;
  command.SpecMaxLabel[0].Visible = command.SpecBuy[0].Visible = false;

  state.Management.modOption[0].Caption = "Velmora";
  state.Management.modOption[1].Caption = "Brakka";
  TickOption(state.Management.modOption, 0);
}

MonsterPanel::MonsterPanel() {
  for (int size = 1; size <= 15; ++size)
    M_Size.AddItem(NumberText(Int16(size)));
  for (int quality = 4; quality <= 9; ++quality)
    M_TQ.AddItem(NumberText(Int16(quality)));
  for (const char* type : {"SM", "LM", "EL", "PH", "HI", "MI", "LI", "SK", "LC", "HC"}) {
    M_Type.AddItem(type);
  }
}

void NewMonster(MonsterPanel& panel) {
  panel.M_TQ.Select("4");
  panel.M_Type.Select("SM");
  panel.M_Size.Select("5");
}

void ShowGridLine(UnitsPanel& grid, Int16 line, bool visible) {
  for (auto* column :
       {&grid.TypeLabel, &grid.ClassLabel, &grid.TQLabel, &grid.SizeLabel, &grid.MissileLabel,
        &grid.CostLabel, &grid.MaxLabel, &grid.UnitTotalLabel, &grid.specLabel}) {
    (*column)[line].Visible = visible;
  }
  grid.Buy[line].Visible = visible;
  grid.ImageName[line].Visible = visible;
  grid.ViewBtn[line].Visible = visible;
}

void ShowPanel(ArmyState& state, Panel panel) {
  state.EditFrame.Front = panel;
}

}  // namespace tarnwick
