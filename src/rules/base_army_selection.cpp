// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/base_army_selection.h"

namespace tarnwick {

void FillArmySelection(ArmyState& state, const Disk& disk, ArmySelectionForm& form) {
  form.ArmyList.Clear();
  const Int16 total = disk.Files.ReadIniNumber("Armies", "total", state.ArmyListFile);
  for (Int16 i = 1; i <= total; ++i) {
    form.ArmyList.AddItem(
        disk.Files.ReadIniString("Armies", RowKey("name", i), state.ArmyListFile));
  }
  state.BaseArmyName = "";
}

bool ConfirmArmySelection(ArmyState& state, Host& host, const ArmySelectionForm& form) {
  if (form.ArmyList.Text().empty()) {
    host.Message("Please select one army");
    return false;
  }
  state.BaseArmyName = form.ArmyList.Text();
  return true;
}

}  // namespace tarnwick
