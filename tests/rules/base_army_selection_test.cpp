// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/base_army_selection.h"

#include "support/sample_state.h"

namespace tarnwick {
namespace {

TEST(ArmySelection, ListsTheCatalogAndTakesANamedLine) {
  SampleState sample("[Armies]\ntotal=3\nname1=Gaul\nname3=Epirus\nname4=Too many\n");
  ArmyState& state = sample.State;
  ArmySelectionForm form;
  form.ArmyList.AddItem("left over");
  FillArmySelection(state, sample.Store, form);
  EXPECT_EQ(Entries(form.ArmyList), (Lines{"Gaul", "", "Epirus"}));
  for (const int line : {-1, 1}) {
    form.ArmyList.ListIndex = line;
    EXPECT_FALSE(ConfirmArmySelection(state, sample.Host, form));
    EXPECT_EQ(sample.Host.Heard(), Lines{"Please select one army"});
    EXPECT_EQ(state.BaseArmyName, "");
  }
  form.ArmyList.ListIndex = 2;
  EXPECT_TRUE(ConfirmArmySelection(state, sample.Host, form));
  EXPECT_EQ(state.BaseArmyName, "Epirus");
  FillArmySelection(state, sample.Store, form);
  EXPECT_EQ(state.BaseArmyName, "");
}

}  // namespace
}  // namespace tarnwick
