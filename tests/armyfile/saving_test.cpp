// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/saving.h"

#include "support/sample_army.h"

namespace tarnwick {

/// An army of two skirmishers and a phalanx that was loaded.
struct Saving : testing::Test, SampleArmy {
  Saving() {
    Folder.Write("Tyre.army", file);
    Load("Tyre");
  }

  std::string Saved(const std::string& name = "Tyre") const { return Folder.Read(name + ".army"); }

  const std::string file = TempFolder::ReadBytes(TEST_DATA "/armies/saved.army");
};

TEST_F(Saving, WritesTheWholeArmy) {
  std::filesystem::remove(Folder / "Tyre.army");
  EXPECT_EQ(Save(), "Army Saved");
  EXPECT_EQ(Saved(), file);

  ClearSpecialRules(Header);
  Army.BaseUnits[1].Bought = 1;
  Army.BaseUnits[4].Bought = -1;  // gives no line
  Army.Command.SpecBuy[2].Text = "";
  Army.Command.SpecBuy[3].Text = "1";
  EXPECT_EQ(Save(), "Army Saved");
  const char* const changed =
      "\r\nimages=more.dat\r\nrally=2\r\nflank=3\r\n\xE9lan=1\r\n"
      "unit1=HI,Vet,2.5,4,AF,pictures/vet.svg,Line\r\nunit2=SK,,3,1,J,pictures/sk two.svg\r\n";
  EXPECT_NE(Saved().find(changed), std::string::npos) << Saved();
  Load("Tyre");  // the missile "A" is not found again
  EXPECT_EQ(Host.Heard(), Lines{"Unit number 1 not found in " + (Folder / "Tyre.army").string()});
}

TEST_F(Saving, AsksBeforeItReplacesAFile) {
  const std::string question = "Do you want to replace the existing Tyre.army file ?";
  Folder.Write("Tyre.army", "[SETUP 7]\ndescription=old\n");
  const auto save = [this] {
    SaveArmy(Work, Store, Host);
    return Host.Heard();
  };
  Army.SelectedLeader = -1;
  EXPECT_EQ(save(), Lines{"Please select a Leader"});
  Army.SelectedLeader = 0;
  Host.Answers = {false, true};
  EXPECT_EQ(save(), Lines{question});
  EXPECT_EQ(Saved(), "[SETUP 7]\ndescription=old\n");
  EXPECT_EQ(save(), (Lines{question, "Army Saved"}));
  EXPECT_EQ(Saved(), file);
  // Setups go with the name of the loaded army, also when none was loaded.
  const std::string setups = file.substr(file.find("[SETUP"));
  Army.Management.ArmyFileName.Text = "brakka\\Tyre";
  Header.ArmyFile = "";
  EXPECT_EQ(save(), Lines{"Army Saved"});
  EXPECT_EQ(Saved("brakka/Tyre") + setups, file);
  EXPECT_EQ(Saved(""), setups);
}

TEST_F(Saving, WhatCanNotBeWrittenLeavesTheOldFile) {
  std::filesystem::permissions(Folder / "Tyre.army", std::filesystem::perms::owner_read);
  Army.Management.ArmyName.Text = "New";
  for (const char* name : {"Tyre", "none/Tyre"}) {
    Army.Management.ArmyFileName.Text = name;
    const std::string path = (Folder / name).string() + ".army";
    EXPECT_TRUE(ErrorOf([this] { Save(); }).starts_with("File " + path + " cannot be written: "));
  }
  EXPECT_EQ(Saved(), file);
  EXPECT_FALSE(Folder.Has("none"));
}

TEST_F(Saving, AnErrorOnTheWayKeepsTheLinesWrittenSoFar) {
  Army.BaseUnits[3].Bought = 0;
  Army.BaseUnits[5].Bought = 3;  // the second of them takes the sum of TQ over the edge
  EXPECT_THROW(Save(), OverflowError);
  const std::string band = "=BI,,20000,4,,pictures/bi.svg\r\n";
  EXPECT_TRUE(Saved().ends_with("two.svg\r\nunit3" + band + "unit4" + band)) << Saved();
  Army.BaseUnits[4].Bought = 1;
  Army.BaseUnits[4].ChosenImageIdx = 0;
  EXPECT_THROW(Save(), SubscriptError);
  EXPECT_TRUE(Saved().ends_with("\nunit2=SK,,3,1,J,pictures/sk two.svg\r\n")) << Saved();
  Army.SelectedLeader = 11;
  EXPECT_THROW(Save(), SubscriptError);
  EXPECT_TRUE(Saved().ends_with("\r\n\r\n[LEADER]\r\n")) << Saved();
}

}  // namespace tarnwick
