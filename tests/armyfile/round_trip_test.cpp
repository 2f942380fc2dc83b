// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/army_browser.h"
#include "battlefield/terrain.h"
#include "rules/base_army_selection.h"
#include "rules/leaders.h"
#include "rules/special_cards.h"
#include "rules/unit_grid.h"
#include "rules/unit_purchase.h"
#include "rules/verification.h"
#include "support/sample_army.h"

namespace tarnwick {

/// Buys one of everything that can be paid, as if there were no limits.
void BuyAll(Desk& desk, bool horseFirst) {
  ArmyState& army = desk.Army;
  for (const bool horse : {horseFirst, !horseFirst}) {
    TickOption(army.Units.ViewOption, horse ? 1 : 0);
    ShowSelectUnits(army, desk.Store);
    for (Int16 k = 0; k < 23 && army.Units.Buy[k].Visible; ++k) {
      ListBox& pictures = army.Units.ImageName[k];
      // Without a picture a unit can't be saved, and the missile "A" is not found again.
      if (pictures.Entries.empty() || army.Units.MissileLabel[k].Caption == "A") continue;
      if (horseFirst) pictures.ListIndex = static_cast<int>(pictures.Entries.size()) - 1;
      ImageName_Click(army, k);
      army.Units.Buy[k].Text = "1";
      if (!BuyUnits(army, desk.Store, desk.Host, k)) army.Units.Buy[k].Text = "";
    }
  }
  LeaderName_Click(army, desk.Host, army.LeaderCount - 1);
  for (Int16 j = 0; j < army.TotSpecial; ++j) {
    army.Command.SpecBuy[j].Text = "1";
    if (SpecBuy_Validate(army, desk.Host, j)) army.Command.SpecBuy[j].Text = "0";
  }
  ShowTerrainBtn_Click(desk.Field, army);
  for (Int16 kind = 1; kind <= 5 && !army.BrakkaMode; ++kind)  // Brakka's is not found again
    DropTerrain(desk.Field, army, desk.Host, kind, kind + 3);
  desk.Host.Said.clear();
}

/// What the player sees of the army beside what is in its file.
Lines Seen(const ArmyState& army) {
  return {army.Title, army.Units.TotalCost.Caption, army.Units.TQinfo.Caption,
          army.Command.LeaderFrame.Caption, LeaderText(army.Leaders[army.SelectedLeader])};
}

/// Armies of every base army in the folder's catalogs, saved and loaded.
void ExpectRoundTrips(const TempFolder& folder, bool brakka) {
  Desk desk(folder.Path());
  desk.ChooseModule(brakka ? 1 : 0);
  const char* const file = brakka ? "brakka/x.army" : "x.army";
  ArmySelectionForm bases;
  FillArmySelection(desk.Army, desk.Store, bases);
  EXPECT_FALSE(bases.ArmyList.Entries.empty());
  for (const std::string& base : Entries(bases.ArmyList)) {
    for (const bool horseFirst : {false, true}) {
      SCOPED_TRACE(base);
      desk.NewArmy(base);
      BuyAll(desk, horseFirst);
      const Lines seen = Seen(desk.Army);
      desk.Army.Management.ArmyFileName.Text = "x";
      desk.Army.TotLimits = 0;
      EXPECT_EQ(desk.Save(), "Army Saved");
      const std::string bytes = folder.Read(file);
      EXPECT_NE(bytes.find("\nunit1="), std::string::npos);
      desk.Load("x");
      EXPECT_EQ(desk.Host.Heard(), Lines());
      EXPECT_EQ(Seen(desk.Army), seen);
      desk.Army.TotLimits = 0;
      desk.Save();
      EXPECT_EQ(folder.Read(file), bytes);
    }
  }
}

TEST(RoundTrip, EveryShippedArmy) {
  const TempFolder folder;
  folder.Copy(SHIPPED_DATA);
  for (const bool brakka : {false, true}) {
    Desk editor(folder.Path());  // the sample armies are legal and say nothing
    editor.ChooseModule(brakka ? 1 : 0);
    ArmyListForm browser;
    FillArmyList(editor.Army, editor.Store, browser);
    EXPECT_EQ(browser.ArmyList.Entries.size(), brakka ? 2U : 4U);
    for (const std::string& army : Entries(browser.ArmyList)) {
      editor.Load(army);
      EXPECT_TRUE(VerifyArmy(editor.Army, editor.Host, false));
      EXPECT_EQ(editor.Host.Heard(), Lines()) << army;
      EXPECT_GE(std::min(editor.Army.PointsLeft, editor.Army.CommandPts), 0) << army;
      EXPECT_EQ(editor.Field.Setup.setupList.Entries.size(), brakka ? 0U : 2U) << army;
    }
    ExpectRoundTrips(folder, brakka);
  }
}

TEST(RoundTrip, ACatalogFullOfCorners) {
  const TempFolder folder;
  folder.Copy(TEST_DATA "/corners");
  ExpectRoundTrips(folder, false);
}

}  // namespace tarnwick
