// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "battlefield/setups.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

/// An army of three rows, two of them alike, in a folder of its own.
struct SetupsTest : testing::Test {
  SetupsTest() {
    const char* const types[] = {"HI", "SK", "SK"};
    for (int r = 1; r <= 3; ++r) {
      UnitRec& unit = State.BaseUnits[r];
      unit.UnitType = types[r - 1];
      unit.TQ = "4";
      unit.Size = "2";
      unit.Missile = "J";
    }
    State.TotUnits = State.NumUnits = 3;
  }

  std::string Listed(const ListBox& list) const {
    std::string texts;
    for (const ListEntry& entry : list.Entries)
      texts += entry.Text + ";";
    return texts;
  }

  std::string Scratch(const char* key, int setup = 1) const {
    return State.Files.ReadIniString("SETUP " + std::to_string(setup), key,
                                     Folder / "working.setup");
  }

  void Assign(int place, int selected) {
    Setup.unitList.ListIndex = selected;
    assignBtn_Click(Field, State, Host, place);
  }

  TempFolder Folder;
  ArmyState State{Folder.Path()};
  Battlefield Field;
  SetupPanel& Setup = Field.Setup;
  FakeHost Host;
};

TEST_F(SetupsTest, ANewSetupIsWrittenWithThePlacesShownBeforeIt) {
  Command6_Click(Field, State);
  EXPECT_EQ(Listed(Setup.setupList), "1;");
  EXPECT_EQ(Scratch("description"), "New setup");
  EXPECT_TRUE(Setup.setupFramePanel.Visible);
  EXPECT_EQ(Listed(Setup.unitList), "HI,,4,2,J;SK,,4,2,J;SK,,4,2,J;");
  Assign(0, 0);
  Command6_Click(Field, State);
  EXPECT_EQ(Field.CurrentSetup, 2);
  EXPECT_EQ(Scratch("field1", 2), "HI,,4,2,J");  // as it was shown
  EXPECT_EQ(Setup.unit[0].Caption, "");
  Setup.description.Text = " two\r\nlines ";
  description_Change(Field, State);
  EXPECT_EQ(Scratch("field1", 2), "");
  EXPECT_EQ(Scratch("description", 2), "two\\nlines");
  Setup.description.Text = "  ";
  description_Change(Field, State);
  EXPECT_EQ(Scratch("description", 2), "<new setup>");

  Setup.setupList.Clear();
  for (const char* number : {"1", "5", "2"})
    Setup.setupList.AddItem(number);
  Command6_Click(Field, State);
  EXPECT_EQ(Setup.setupList.Text(), "6");
}

TEST_F(SetupsTest, ShowingASetupWritesNothing) {
  const std::string stored = "[SETUP 3]\r\ndescription=  a\\nb \r\nfield2=SK,,4,2,J\r\n; mine\r\n";
  Folder.Write("working.setup", stored);
  Setup.setupList.AddItem("3");
  setupList_Click(Field, State);  // nothing is selected
  EXPECT_FALSE(Setup.setupFramePanel.Visible);
  Setup.setupList.ListIndex = 0;
  setupList_Click(Field, State);
  EXPECT_EQ(Setup.description.Text, "a\r\nb");
  EXPECT_EQ(Setup.unit[1].Caption, "SK,,4,2,J");
  EXPECT_EQ(Listed(Setup.unitList), "HI,,4,2,J;");  // of two rows alike neither is listed
  EXPECT_EQ(Folder.Read("working.setup"), stored);
  State.SetupLoading = true;
  SaveSetup(Field, State);
  EXPECT_EQ(Folder.Read("working.setup"), stored);
}

TEST_F(SetupsTest, UnitsAreDeployedExchangedAndWithdrawn) {
  Command6_Click(Field, State);
  Assign(4, -1);
  EXPECT_EQ(Host.Heard(), Lines{"Please select a unit"});
  Assign(4, 1);
  EXPECT_EQ(Setup.unit[4].Caption + " " + Listed(Setup.unitList), "SK,,4,2,J HI,,4,2,J;SK,,4,2,J;");
  Assign(4, 0);
  EXPECT_EQ(Setup.unit[4].Caption + " " + Listed(Setup.unitList), "HI,,4,2,J SK,,4,2,J;SK,,4,2,J;");
  EXPECT_EQ(Scratch("field5"), "HI,,4,2,J");
  Assign(4, -1);
  EXPECT_EQ(Setup.unit[4].Caption + Listed(Setup.unitList), "SK,,4,2,J;SK,,4,2,J;HI,,4,2,J;");
  EXPECT_EQ(Scratch("field5"), "");
  State.NumUnits = 400;  // more unit lines than the table has rows
  FillDeployList(Field, State);
  EXPECT_EQ(Setup.unitList.Entries.size(), 3U);
  State.NumUnits = 1;
  FillDeployList(Field, State);
  EXPECT_EQ(Listed(Setup.unitList), "HI,,4,2,J;");
  ShowSetup_Click(Field, State);
  EXPECT_FALSE(Setup.setupFramePanel.Visible);
  Command3_Click(State);
  EXPECT_EQ(State.EditFrame.Front, 5);
}

TEST_F(SetupsTest, TwentySetupsTravelBetweenArmyAndScratchFile) {
  std::string army = "[ARMY]\r\nname=x\r\n[SETUP 2]\r\ndescription=two\r\nfield9=HI,,4,2,J\r\n";
  army += "[SETUP 3]\r\nfield1=without a description\r\n[SETUP 20]\r\ndescription=a\\nb\r\n";
  army += "[SETUP 21]\r\ndescription=one too many\r\n";
  Folder.Write("x.army", army);
  Folder.Write("working.setup", "[SETUP 1]\r\ndescription=old\r\n");
  LoadSetupsFromArmy(Field, State, Folder / "x.army");
  EXPECT_EQ(Listed(Setup.setupList), "2;20;");
  std::string empty;
  for (int k = 1; k <= 9; ++k)
    empty += "field" + std::to_string(k) + "=\r\n";
  const std::string scratch = "[SETUP 2]\r\ndescription=two\r\n" +
                              empty.substr(0, empty.size() - 2) +
                              "HI,,4,2,J\r\n[SETUP 20]\r\ndescription=a\\nb\r\n" + empty;
  EXPECT_EQ(Folder.Read("working.setup"), scratch);

  Folder.Write("y.army", "[ARMY]\r\nname=y\r\n");
  CopySetupsToArmy(State, Folder / "y.army");
  EXPECT_EQ(Folder.Read("y.army"), "[ARMY]\r\nname=y\r\n" + scratch);
  Folder.Write("none.army", "[ARMY]\r\n");
  LoadSetupsFromArmy(Field, State, Folder / "none.army");
  EXPECT_FALSE(Folder.Has("working.setup"));
}

}  // namespace
}  // namespace tarnwick
