// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/saving.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
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

const std::string clearTerrain =
    "[TERRAIN]\r\narea1=CLEAR\r\narea2=CLEAR\r\narea3=CLEAR\r\narea4=CLEAR\r\narea5=CLEAR\r\n"
    "area6=CLEAR\r\narea7=CLEAR\r\narea8=CLEAR\r\narea9=CLEAR\r\n";

const std::string plainArmy = plainStart + "numunits=0\r\nTQ=0\r\nroute=30\r\n";

/// An army without units, with a leader and a file name.
class Saving : public testing::Test {
 protected:
  Saving() { Start("Sample Army"); }

  void Start(const std::string& base) {
    sample_.NewArmy(base);
    LeaderName_Click(army_, sample_.Host, 0);
    army_.Management.ArmyFileName.Text = "Tyre";
  }

  Lines Save() {
    SaveArmy(work_, sample_.Host);
    return sample_.Host.Heard();
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
  header.ArmyDesc.Text = "First line\r\nsecond line";
  ArmyDesc_Change(header);
  header.FromData.Text = "300";
  header.ToData.Text = "50";
  TickOption(header.toACBC, 1);
  toACBC_Click(header);
  for (CheckBox* box :
       {&header.TribalCheck, &header.Ferocity, &header.Mobility, &header.LongSword, &header.FOW,
        &header.Discipline, &header.TYPE_IsPersonal, &header.TYPE_IsFantasy}) {
    box->Value = true;
  }
  sample_.Buy(0, "2");
  sample_.Buy(1, "3");
  sample_.Buy(2, "1");
  army_.BaseUnits[4].Bought = -1;  // gives no line
  army_.Units.ImageName[1].ListIndex = 1;
  ImageName_Click(army_, 1);
  sample_.BuyCards(0, "2 cards");
  sample_.BuyCards(1, "0");
  sample_.BuyCards(3, "1");
  work_.Field.AreaTerrain[3] = "WOOD";
  work_.Field.AreaTerrain[8] = "CLIFF";

  EXPECT_EQ(Save(), Lines{"Army Saved"});
  EXPECT_EQ(Saved(), TempFolder::ReadBytes(TEST_DATA "/saved.army"));
  EXPECT_FALSE(sample_.Folder.Has("Tyre.army.new"));
}

TEST_F(Saving, LeavesOutWhatIsNotThere) {
  EXPECT_EQ(Save(), Lines{"Army Saved"});
  EXPECT_EQ(Saved(), plainArmy + clearTerrain);

  work_.Header.FOW.Value = work_.Header.Ferocity.Value = true;
  work_.Header.TYPE_IsPersonal.Value = true;
  army_.Management.ArmyFileName.Text = "";
  Save();
  const std::string named = sample_.Folder.Read(".army");
  EXPECT_NE(named.find("\r\nimages=\r\nspecial_rules=FEROCITY,FOW\r\nnumunits=0\r\n"),
            std::string::npos)
      << named;
  EXPECT_NE(named.find("\r\ntype=P\r\n"), std::string::npos) << named;
}

TEST_F(Saving, ReplacesAFileOnlyWhenTheUserAgrees) {
  sample_.Folder.Write("Tyre.army", "[ARMY]\nname=old\n[SETUP 1]\ndescription=old\n");
  sample_.Host.Answers = {false, true};
  EXPECT_EQ(Save(), Lines{question});
  EXPECT_EQ(Saved(), "[ARMY]\nname=old\n[SETUP 1]\ndescription=old\n");
  EXPECT_EQ(Save(), (Lines{question, "Army Saved"}));
  EXPECT_EQ(Saved(), plainArmy + clearTerrain);
}

TEST_F(Saving, NeedsAnArmyThatPassesVerification) {
  sample_.Folder.Write("Tyre.army", "old");
  army_.SelectedLeader = -1;
  EXPECT_EQ(Save(), Lines{"Please select a Leader"});
  Start("Strict Army");
  EXPECT_EQ(Save(), Lines{"You must buy at least 1 units of type HI"});
  EXPECT_EQ(Saved(), "old");
}

TEST_F(Saving, SetupsGoWithTheNameOfTheLoadedArmy) {
  Save();
  EXPECT_FALSE(sample_.Folder.Has(".army"));  // no army was loaded, and there are no setups
  sample_.Folder.Write("working.setup",
                       "[SETUP 2]\ndescription=a\\nb\nfield1=HI\n[SETUP 3]\nfield1=SK\n"
                       "[SETUP 20]\ndescription=c\n[SETUP 21]\ndescription=d\n");
  work_.Header.ArmyFile = "Loaded";
  sample_.Host.Answers = {true};
  Save();
  const std::string fields =
      "field2=\r\nfield3=\r\nfield4=\r\nfield5=\r\nfield6=\r\nfield7=\r\nfield8=\r\nfield9=\r\n";
  EXPECT_EQ(sample_.Folder.Read("Loaded.army"),
            "[SETUP 2]\r\ndescription=a\\nb\r\nfield1=HI\r\n" + fields +
                "[SETUP 20]\r\ndescription=c\r\nfield1=\r\n" + fields);
  EXPECT_EQ(Saved(), plainArmy + clearTerrain);
}

TEST_F(Saving, WhatCanNotBeWrittenLeavesTheOldFile) {
  army_.Management.ArmyFileName.Text = "none/Tyre";
  EXPECT_THROW(Save(), FileError);
  EXPECT_FALSE(sample_.Folder.Has("none"));
  EXPECT_EQ(sample_.Host.Heard(), Lines{});

  army_.Management.ArmyFileName.Text = "Tyre";
  sample_.Folder.Write("Tyre.army", "old");
  sample_.Host.Answers = {true, true};
  fs::permissions(sample_.Folder / "Tyre.army", fs::perms::owner_read);
  EXPECT_THROW(Save(), FileError);
  fs::permissions(sample_.Folder / "Tyre.army", fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(Saved(), "old");

  if (!fs::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  fs::create_symlink("/dev/full", sample_.Folder / "Tyre.army.new");
  EXPECT_THROW(Save(), FileError);
  EXPECT_EQ(Saved(), "old");
  EXPECT_EQ(sample_.Host.Heard(), (Lines{question, question}));
}

TEST_F(Saving, AnErrorOnTheWayKeepsTheLinesWrittenSoFar) {
  sample_.Folder.Write("Tyre.army", "old");
  sample_.Host.Answers = {true, true, true};
  army_.BaseUnits[5].Bought = 3;  // the second of them takes the sum of TQ over the edge
  EXPECT_THROW(Save(), OverflowError);
  const std::string band = "=BI,,20000,4,,pictures/bi.svg\r\n";
  EXPECT_EQ(Saved(), plainStart + "unit1" + band + "unit2" + band);

  army_.BaseUnits[5].Bought = 0;
  army_.BaseUnits[2].Bought = 1;
  army_.BaseUnits[4].Bought = 1;  // no picture fits the elephant
  EXPECT_THROW(Save(), SubscriptError);
  EXPECT_EQ(Saved(), plainStart + "unit1=SK,,3,1,J,pictures/sk one.svg\r\n");

  army_.SelectedLeader = 11;
  EXPECT_THROW(Save(), SubscriptError);
  EXPECT_EQ(Saved(), plainStart.substr(0, plainStart.find("name=Arcas")));
  EXPECT_EQ(sample_.Host.Heard(), (Lines{question, question, question}));
}

}  // namespace
}  // namespace tarnwick
