// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/base_army_selection.h"

#include "support/sample_state.h"

namespace tarnwick {

TEST(ArmySelection, ListsTheCatalogAndTakesANamedLine) {
  SampleState sample("Cards");
  ArmySelectionForm form;
  form.ArmyList.AddItem("left over");
  FillArmySelection(sample.State, sample.Store, form);
  EXPECT_EQ(sample.State.BaseArmyName, "");
  EXPECT_EQ(Entries(form.ArmyList), (Lines{"Cards", "", "Grid"}));
  for (const int line : {-1, 1, 2}) {
    form.ArmyList.ListIndex = line;
    EXPECT_EQ(ConfirmArmySelection(sample.State, sample.Host, form), line == 2);
    EXPECT_EQ(sample.State.BaseArmyName, line == 2 ? "Grid" : "");
  }
  EXPECT_EQ(sample.Host.Heard(), Lines(2, "Please select one army"));
}

}  // namespace tarnwick
