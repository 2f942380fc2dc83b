// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/saving.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "rules/leaders.h"
#include "rules/special_cards.h"
#include "rules/unit_grid.h"
#include "rules/unit_purchase.h"
#include "support/sample_army.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

const std::string question = "Do you want to replace the existing Tyre.army file ?";

const std::string plainStart =
    "[EDITOR]\r\nversion=1.2.1\r\nupdated=2026-11-21\r\n\r\n"
    "[LEADER]\r\nname=Arcas of Tyre\r\ninitiative=7\r\ncommand=2\r\n\r\n"
    "[ARMY]\r\nname=Sample Army\r\nbase=Sample Army\r\nauthor=\r\npoints=0\r\ndescription=\r\n"
    "period=\r\ntype=\r\nimages=\r\n";

const std::string plainArmy =
    plainStart +
    "numunits=0\r\nTQ=0\r\nroute=30\r\n"
    "[TERRAIN]\r\narea1=CLEAR\r\narea2=CLEAR\r\narea3=CLEAR\r\narea4=CLEAR\r\narea5=CLEAR\r\n"
    "area6=CLEAR\r\narea7=CLEAR\r\narea8=CLEAR\r\narea9=CLEAR\r\n";

/// An army without units, with a leader and a file name.
class Saving : public testing::Test {
 protected:
  Saving() {
    sample_.NewArmy("Sample Army");
    LeaderName_Click(army_, sample_.Host, 0);
    army_.Management.ArmyFileName.Text = "Tyre";
  }

  std::string Saved() const { return sample_.Folder.Read("Tyre.army"); }

  SampleArmy sample_;
  WorkingArmy& work_ = sample_.Work;
  ArmyState& army_ = work_.Army;
};

TEST_F(Saving, WritesTheWholeArmy) {
  ArmyHeader& header = work_.Header;
  army_.Management.ArmyName.Text = "Tyre in arms";
  header.ArmyAuthor = "A. Player";
  header.ArmyImages = "more.dat";
  header.ArmyDescription = "First line@second line";
  header.ArmyPeriod = "-300,50";
  for (CheckBox* box :
       {&header.TribalCheck, &header.Ferocity, &header.Mobility, &header.LongSword, &header.FOW,
        &header.Discipline, &header.TYPE_IsPersonal, &header.TYPE_IsFantasy}) {
    box->Value = true;
  }
  const char* const quantities[] = {"2", "3", "1"};
  for (int k = 0; k < 3; ++k) {
    army_.Units.Buy[k].Text = quantities[k];
    EXPECT_TRUE(BuyUnits(army_, sample_.Store, sample_.Host, k));
  }
  army_.BaseUnits[4].Bought = -1;  // gives no line
  army_.Units.ImageName[1].ListIndex = 1;
  ImageName_Click(army_, 1);
  const char* const cards[] = {"2 cards", "0", "", "1"};
  for (int j = 0; j < 4; ++j) {
    army_.Command.SpecBuy[j].Text = cards[j];
    EXPECT_FALSE(SpecBuy_Validate(army_, sample_.Host, j));
  }
  work_.Field.AreaTerrain[3] = "WOOD";
  work_.Field.AreaTerrain[8] = "CLIFF";
  EXPECT_EQ(sample_.Save(), "Army Saved");
  EXPECT_EQ(Saved(), TempFolder::ReadBytes(TEST_DATA "/saved.army"));

  sample_.Load("Tyre");  // the missile "A" is not found again
  EXPECT_EQ(sample_.Host.Heard(),
            Lines{"Unit number 1 not found in " + (sample_.Folder / "Tyre.army").string()});
}

TEST_F(Saving, AsksBeforeItReplacesAFile) {
  sample_.Folder.Write("Tyre.army", "[ARMY]\nname=old\n[SETUP 1]\ndescription=old\n");
  sample_.Host.Answers = {false, true};
  SaveArmy(work_, sample_.Store, sample_.Host);
  EXPECT_EQ(Saved(), "[ARMY]\nname=old\n[SETUP 1]\ndescription=old\n");
  SaveArmy(work_, sample_.Store, sample_.Host);
  EXPECT_EQ(sample_.Host.Heard(), (Lines{question, question, "Army Saved"}));
  EXPECT_EQ(Saved(), plainArmy);
  army_.Management.ArmyFileName.Text = "brakka\\Tyre";
  EXPECT_EQ(sample_.Save(), "Army Saved");
  EXPECT_EQ(sample_.Folder.Read("brakka/Tyre.army"), plainArmy);

  work_.Header.FOW.Value = work_.Header.Ferocity.Value = true;
  army_.Management.ArmyFileName.Text = "";
  EXPECT_EQ(sample_.Save(), "Army Saved");
  const std::string nameless = sample_.Folder.Read(".army");
  EXPECT_NE(nameless.find("images=\r\nspecial_rules=FEROCITY,FOW\r\nnum"), std::string::npos);
}

TEST_F(Saving, SetupsGoWithTheNameOfTheLoadedArmy) {
  sample_.Folder.Write("working.setup", "[SETUP 2]\ndescription=a\\nb\nfield1=HI\n");
  sample_.Save();
  EXPECT_EQ(Saved(), plainArmy);
  const std::string setup =
      "[SETUP 2]\r\ndescription=a\\nb\r\nfield1=HI\r\nfield2=\r\nfield3=\r\nfield4=\r\nfield5=\r\n"
      "field6=\r\nfield7=\r\nfield8=\r\nfield9=\r\n";
  EXPECT_EQ(sample_.Folder.Read(".army"), setup);  // no army was loaded
  work_.Header.ArmyFile = "Loaded";
  sample_.Save();
  EXPECT_EQ(sample_.Folder.Read("Loaded.army"), setup);
}

TEST_F(Saving, WhatCanNotBeWrittenLeavesTheOldFile) {
  sample_.Folder.Write("Tyre.army", "old");
  fs::permissions(sample_.Folder / "Tyre.army", fs::perms::owner_read);
  try {
    sample_.Save();
    ADD_FAILURE() << "a protected file was replaced";
  } catch (const FileError& error) {
    EXPECT_NE(std::string(error.what()).find(sample_.Folder / "Tyre.army"), std::string::npos);
  }
  army_.Management.ArmyFileName.Text = "none/Tyre";
  EXPECT_THROW(sample_.Save(), FileError);
  army_.SelectedLeader = -1;
  EXPECT_EQ(sample_.Save(), "Please select a Leader");
  EXPECT_EQ(Saved(), "old");
  EXPECT_FALSE(sample_.Folder.Has("none"));
}

TEST_F(Saving, AnErrorOnTheWayKeepsTheLinesWrittenSoFar) {
  army_.BaseUnits[5].Bought = 3;  // the second of them takes the sum of TQ over the edge
  EXPECT_THROW(sample_.Save(), OverflowError);
  const std::string band = "=BI,,20000,4,,pictures/bi.svg\r\n";
  EXPECT_EQ(Saved(), plainStart + "unit1" + band + "unit2" + band);

  army_.BaseUnits[2].Bought = 1;
  army_.BaseUnits[4].Bought = 1;  // no picture fits the elephant
  EXPECT_THROW(sample_.Save(), SubscriptError);
  EXPECT_EQ(Saved(), plainStart + "unit1=SK,,3,1,J,pictures/sk one.svg\r\n");

  army_.SelectedLeader = 11;
  EXPECT_THROW(sample_.Save(), SubscriptError);
  EXPECT_EQ(Saved(), plainStart.substr(0, plainStart.find("name=Arcas")));
}

}  // namespace
}  // namespace tarnwick
