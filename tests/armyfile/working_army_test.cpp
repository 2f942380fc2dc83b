// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/working_army.h"

#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "base/numbers.h"
#include "support/sample_army.h"

namespace tarnwick {
namespace {

TEST(StartUp, ShowsTheManagementPanelAndReadsThePictures) {
  const SampleArmy sample;
  const ArmyState& army = sample.Work.Army;
  EXPECT_EQ(army.Title, "Velmora Tarnwick ver. 1.2.1");
  EXPECT_EQ(army.EditFrame.Front, 4);
  EXPECT_TRUE(army.FormReady);
  EXPECT_EQ(army.ArmyListFile, sample.Folder / "armylist.dat");
  EXPECT_EQ(army.Catalog.TotImages, 5);
  EXPECT_EQ(sample.Work.Field.AreaTerrain[8], "CLEAR");
  EXPECT_EQ(sample.Work.Field.TerrainKinds[5].Name, "CLIFF");

  sample.Folder.Write("images.dat", "[IMAGES]\ntotal=201\n");
  WorkingArmy another(sample.Folder.Path());
  EXPECT_THROW(Form_Load(another), SubscriptError);
}

class NewArmy : public testing::Test {
 protected:
  NewArmy() {
    sample_.NewArmy("Sample Army");
    sample_.Buy(0, "2");
    army_.Management.ArmyName.Text = "Mine";
    header_.ArmyDesc.Text = "Words";
    ArmyDesc_Change(header_);
    for (CheckBox* box :
         {&header_.TribalCheck, &header_.Ferocity, &header_.Mobility, &header_.LongSword,
          &header_.FOW, &header_.Discipline, &header_.TYPE_IsPersonal, &header_.TYPE_IsFantasy}) {
      box->Value = true;
    }
    sample_.Work.Field.AreaTerrain[4] = "WOOD";
  }

  /// Names, points spent and the first area.
  std::string Summary() const {
    return army_.Management.ArmyName.Text + "|" + header_.ArmyDesc.Text + header_.ArmyDescription +
           "|" + SpecialRulesText(header_) + "|" + ArmyTypeCode(header_) + "|" +
           NumberText(army_.PointsSpent) + "|" + sample_.Work.Field.AreaTerrain[4];
  }

  SampleArmy sample_;
  ArmyState& army_ = sample_.Work.Army;
  ArmyHeader& header_ = sample_.Work.Header;
};

TEST_F(NewArmy, StartsFromTheChosenBaseArmy) {
  sample_.NewArmy("Strict Army");
  EXPECT_EQ(Summary(), "Strict Army|||P|0|CLEAR");
  EXPECT_EQ(army_.PointsLeft, 100);
  EXPECT_EQ(army_.Command.LeaderName[0].Caption, "Milo 40 [ 4 / 1 ] ");
  EXPECT_FALSE(army_.Units.Buy[0].Visible);
  EXPECT_EQ(army_.Units.TQinfo.Caption, "");
}

TEST_F(NewArmy, ACancelledChoiceEmptiesNameAndDescriptionOnly) {
  sample_.NewArmy("");
  EXPECT_EQ(Summary(), "||TRIBAL,FEROCITY,MOBILITY,LONGSWORD,FOW,DISCIPLINE|FP|32|WOOD");
  EXPECT_EQ(army_.BaseUnits[1].Bought, 2);
  EXPECT_TRUE(army_.Units.Buy[0].Visible);
}

TEST_F(NewArmy, TheModuleMovesTheCatalogsAndLeavesTheArmy) {
  const std::string before = Summary();
  sample_.Folder.Write("brakka/armylist.dat", "[Trolls]\npoints=77\n");
  sample_.ChooseModule(1);
  EXPECT_TRUE(army_.BrakkaMode);
  EXPECT_EQ(army_.ArmyListFile, sample_.Folder / "brakka/armylist.dat");
  EXPECT_FALSE(header_.HistoricTab.Visible);
  EXPECT_EQ(army_.Catalog.Images[1].Name, "Troll");
  EXPECT_EQ(Summary(), before);

  sample_.ChooseModule(0);
  EXPECT_FALSE(army_.BrakkaMode);
  EXPECT_EQ(army_.ArmyListFile, sample_.Folder / "armylist.dat");
  EXPECT_TRUE(header_.HistoricTab.Visible);
  EXPECT_EQ(army_.Catalog.TotImages, 5);

  // The army that was loaded may name a further catalog.
  sample_.Folder.Write("Tyre.army", "[ARMY]\nimages=images.dat\n");
  header_.ArmyFile = "Tyre";
  sample_.ChooseModule(1);
  EXPECT_EQ(army_.Catalog.TotImages, 6);
  header_.TYPE_IsFantasy.Value = false;
  sample_.NewArmy("Trolls");
  EXPECT_EQ(Summary(), "Trolls|||FP|0|CLEAR");
  EXPECT_EQ(army_.ArmyPoints, 77);
}

}  // namespace
}  // namespace tarnwick
