// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/working_army.h"

#include <functional>

#include "support/sample_army.h"

namespace tarnwick {
namespace {

struct NewArmyTest : testing::Test, SampleArmy {
  NewArmyTest() {
    NewArmy("Sample Army");
    Army.BaseUnits[1].Bought = 2;
    Army.Management.ArmyName.Text = "Mine";
    Header.ArmyDesc.Text = Header.ArmyDescription = "Words";
    Header.TribalCheck.Value = Header.LongSword.Value = true;
    Header.TYPE_IsPersonal.Value = Header.TYPE_IsFantasy.Value = true;
    Work.Field.AreaTerrain[4] = "WOOD";
  }

  /// Name, description, rules, type, units of the first row, an area and the points.
  std::string Summary() const {
    return Joined(Army.Management.ArmyName.Text, Header.ArmyDesc.Text, Header.ArmyDescription,
                  SpecialRulesText(Header), ArmyTypeCode(Header), Army.BaseUnits[1].Bought,
                  Work.Field.AreaTerrain[4], Army.PointsLeft);
  }
};

TEST_F(NewArmyTest, StartsFromTheChosenBaseArmy) {
  NewArmy("");  // a cancelled choice empties name and description only
  EXPECT_EQ(Summary(), "|||TRIBAL,LONGSWORD|FP|2|WOOD|500");
  EXPECT_TRUE(Army.Units.Buy[0].Visible);
  NewArmy("Strict Army");
  EXPECT_EQ(Summary(), "Strict Army||||P|0|CLEAR|100");
  EXPECT_EQ(Shown(Army.Command.LeaderName, 3), "Milo 40 [ 4 / 1 ] |-|-|");
  EXPECT_FALSE(Army.Units.Buy[0].Visible);
}

TEST_F(NewArmyTest, IsAPlainValue) {
  const WorkingArmy before = Work;
  const std::function<void()> changes[] = {
      [&] { Army.Command.SpecBuy[3].Tag = "1"; }, [&] { Army.Command.SpecBuy.Load(); },
      [&] { Field.Terrain.Area[8].Picture = 1; }, [&] { Header.ToData.Tag = "x"; },
      [&] { NewArmy("Strict Army"); }};
  for (const auto& change : changes) {
    change();
    EXPECT_FALSE(Work == before);
    Work = before;
    EXPECT_TRUE(Work == before);
  }
}

TEST_F(NewArmyTest, TheModuleMovesTheCatalogsAndLeavesTheArmy) {
  const std::string before = Summary();
  Folder.Write("Tyre.army", "[ARMY]\nimages=more.dat\n");
  Header.ArmyFile = "Tyre";
  for (const int module : {1, 0, 1}) {
    ChooseModule(module);
    const bool brakka = module == 1;
    EXPECT_EQ(Army.BrakkaMode, brakka);
    EXPECT_EQ(Army.ArmyListFile, Folder / (brakka ? "brakka/armylist.dat" : "armylist.dat"));
    EXPECT_EQ(Header.HistoricTab.Visible, !brakka);
    EXPECT_EQ(Army.Catalog.TotImages, brakka ? 2 : 7);
    EXPECT_EQ(Summary(), before);
  }
  Header.TYPE_IsFantasy.Value = false;
  NewArmy("Trolls");
  EXPECT_EQ(Summary(), "Trolls||||FP|0|CLEAR|77");
}

TEST_F(NewArmyTest, TheEditorStartsWithThePictures) {
  EXPECT_EQ(Army.EditFrame.Front, Panel::Management);
  EXPECT_EQ(Army.Catalog.TotImages, 6);
  Form_Load(Work, Store);
  EXPECT_EQ(Army.Title, "Velmora Tarnwick ver. 1.2.1");
  EXPECT_TRUE(Army.FormReady);
  EXPECT_FALSE(Army.SpecRowsLoaded);
  Folder.Write("images.dat", "[IMAGES]\ntotal=201\n");
  EXPECT_THROW(Form_Load(Work, Store), SubscriptError);
  EXPECT_FALSE(Army.FormReady);
}

}  // namespace
}  // namespace tarnwick
