// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/working_army.h"

#include "support/sample_army.h"

namespace tarnwick {

struct AfterALoad : testing::Test, SampleArmy {
  AfterALoad() {
    Folder.Copy(TEST_DATA "/armies");
    Load("saved");
  }

  /// Name, description, rules, type, skirmishers, an area and the points.
  std::string Summary() const {
    return Joined(Army.Management.ArmyName.Text, Header.ArmyDesc.Text, Header.ArmyDescription,
                  Header.TribalCheck.Value, ArmyTypeCode(Header), Army.BaseUnits[2].Bought,
                  Field.AreaTerrain[3], Army.PointsLeft);
  }
};

TEST_F(AfterALoad, ANewArmyStartsFromTheChosenBaseArmy) {
  NewArmy("");  // a cancelled choice empties name and description only
  EXPECT_EQ(Summary(), "|||1|FP|2|WOOD|422");
  EXPECT_TRUE(Army.Units.Buy[0].Visible);
  NewArmy("Strict Army");
  EXPECT_EQ(Summary(), "Strict Army|||0|P|0|CLEAR|100");
  EXPECT_EQ(Shown(Army.Command.LeaderName, 3), "Milo 40 [ 4 / 1 ] |-|-|");
  EXPECT_FALSE(Army.Units.Buy[0].Visible);
}

TEST_F(AfterALoad, TheModuleMovesTheCatalogsAndLeavesTheArmy) {
  const std::string before = Summary();
  for (const bool brakka : {true, false, true}) {
    ChooseModule(brakka ? 1 : 0);
    EXPECT_EQ(Army.BrakkaMode, brakka);
    EXPECT_EQ(Army.ArmyListFile, Folder / (brakka ? "brakka/armylist.dat" : "armylist.dat"));
    EXPECT_EQ(Header.HistoricTab.Visible, !brakka);
    EXPECT_EQ(Army.Catalog.TotImages, brakka ? 2 : 7);  // with the one that the file names
    EXPECT_EQ(Summary(), before);
  }
  Header.TYPE_IsFantasy.Value = false;
  NewArmy("Trolls");
  EXPECT_EQ(Summary(), "Trolls|||0|FP|0|CLEAR|77");
}

struct Start : testing::Test, SampleArmy {};

TEST_F(Start, ReadsThePicturesOrFails) {
  EXPECT_EQ(Army.EditFrame.Front, Panel::Management);
  EXPECT_EQ(Army.Catalog.TotImages, 6);
  EXPECT_EQ(Army.Title, "Velmora Tarnwick ver. 1.2.1");
  EXPECT_TRUE(Army.FormReady);
  Army.SpecRowsLoaded = true;
  Folder.Write("images.dat", "[IMAGES]\ntotal=201\n");
  EXPECT_THROW(Form_Load(Work, Store), SubscriptError);
  EXPECT_FALSE(Army.FormReady || Army.SpecRowsLoaded);
}

}  // namespace tarnwick
