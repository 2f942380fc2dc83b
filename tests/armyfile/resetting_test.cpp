// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/resetting.h"

#include "support/sample_army.h"

namespace tarnwick {

struct Resetting : testing::Test, SampleArmy {};

TEST_F(Resetting, EmptiesTheArmyAndReadsItsPointsAgain) {
  Folder.Copy(TEST_DATA "/armies");
  Load("saved");
  UnitsPanel& grid = Army.Units;
  Army.BaseUnits[1].Bought = 1;
  grid.Buy[22].Text = Army.Command.SpecBuy[4].Text = Army.Command.SpecBuy[4].Tag = "2";
  Folder.Write("armylist.dat", "[Sample Army]\npoints=321\ncommand_pts=99.5\n");
  ResetArmy_Click(Work, Store);

  EXPECT_EQ(Joined(Army.BaseUnits[1].Bought, Army.BaseUnits[2].Bought, Army.PointsLeft,
                   Army.PointsSpent, Army.CommandPts),
            "0|0|321|0|100");
  EXPECT_EQ(grid.TotalCost.Caption, "Points left: 321 of 500");
  EXPECT_EQ(
      Joined(grid.Buy[0].Tag, grid.Buy[1].Text, grid.Buy[1].Tag, grid.UnitTotalLabel[1].Caption,
             grid.UnitTotalLabel[1].Tag, grid.UnitTotalLabel[1].Visible, grid.ImageName[1].Text(),
             grid.ImageName[22].ListIndex, grid.Buy[22].Text),
      "||||0|1|Javelin|-1|");
  for (const int j : {0, 4})
    EXPECT_EQ(Joined(Army.Command.SpecBuy[j].Text, Army.Command.SpecBuy[j].Tag), "|0");
  EXPECT_EQ(Joined(Army.SelectedLeader, Army.Command.LeaderName[0].Value), "-1|0");
  EXPECT_EQ(Joined(Header.FromData.Text, Header.ToData.Text, SpecialRulesText(Header)), "||");
  EXPECT_EQ(Header.ArmyPeriod, "-300,50");  // only its boxes were emptied
  EXPECT_EQ(Joined(Field.AreaTerrain[3], Field.AreaTerrain[8]), "CLEAR|CLEAR");
  EXPECT_FALSE(Army.GridFilling || Army.SetupLoading);
}

}  // namespace tarnwick
