// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "battlefield/setups.h"

#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {

/// An army of three rows, two of them alike.
struct Setups : testing::Test {
  Setups() {
    for (const Int16 r : {1, 2, 3})
      State.BaseUnits[r] = ParseIdentity(r == 1 ? "HI,,4,2,J" : "SK,,4,2,J");
    State.NumUnits = 3;
  }

  /// Description, first and last place of a stored setup.
  std::string Stored(const std::string& number) const {
    const auto read = [&](const char* key) {
      return Store.Files.ReadIniString("SETUP " + number, key, Folder / "working.setup");
    };
    return Joined(read("description"), read("field1"), read("field9"));
  }
  /// Clicks "<->" of a place; what lies there comes back.
  std::string Assign(int place, int selected) {
    Panel.unitList.ListIndex = selected;
    assignBtn_Click(Field, State, Store, Host, place);
    EXPECT_FALSE(Panel.unitList.HasSelection());
    return Panel.unit[place].Caption;
  }
  std::string Describe(const char* text) {
    Panel.description.Text = text;
    description_Change(Field, State, Store);
    return Stored("2");
  }
  Lines Listed() const { return Entries(Panel.unitList); }

  TempFolder Folder;
  Disk Store{Folder.Path()};
  ArmyState State;
  Battlefield Field;
  SetupPanel& Panel = Field.Setup;
  FakeHost Host;
};

TEST_F(Setups, ANewSetupIsWrittenWithThePlacesShownBeforeIt) {
  Command6_Click(Field, State, Store);
  EXPECT_EQ(Joined(Panel.setupList.Text(), Panel.setupFramePanel.Visible), "1|1");
  Assign(0, 0);
  EXPECT_EQ(Stored("1"), "New setup|HI,,4,2,J|");
  Command6_Click(Field, State, Store);
  EXPECT_EQ(Stored("2"), "New setup|HI,,4,2,J|");
  EXPECT_EQ(Panel.unit[0].Caption, "");
  EXPECT_EQ(Listed(), (Lines{"HI,,4,2,J", "SK,,4,2,J", "SK,,4,2,J"}));
  EXPECT_EQ(Describe(" two\r\nlines "), "two\\nlines||");
  EXPECT_EQ(Describe("  "), "<new setup>||");
  State.SetupLoading = true;
  EXPECT_EQ(Describe("not written"), "<new setup>||");

  Panel.setupList.Entries = {{"1", 0}, {"5", 0}, {"2", 0}};
  Command6_Click(Field, State, Store);
  EXPECT_EQ(Panel.setupList.Text(), "6");
}

TEST_F(Setups, ShowingASetupWritesNothing) {
  const std::string stored =
      "[SETUP 3]\r\ndescription=\"  a\\nb \"\r\nfield1=EL\r\nfield9=SK,,4,2,J\r\n; mine\r\n";
  Folder.Write("working.setup", stored);
  Panel.setupList.Entries = {{"3", 0}, {"4", 0}};
  const auto shown = [this](int entry) {
    Panel.setupList.ListIndex = entry;
    setupList_Click(Field, State, Store);
    return Joined(Field.CurrentSetup, Panel.setupFramePanel.Visible, Panel.description.Text,
                  Panel.unit[0].Caption, Panel.unit[8].Caption);
  };
  EXPECT_EQ(shown(-1), "0|0|<insert the setup description here>||");
  EXPECT_EQ(shown(0), "3|1|a\r\nb|EL|SK,,4,2,J");
  EXPECT_EQ(Listed(), Lines{"HI,,4,2,J"});  // of two rows alike neither is listed
  EXPECT_EQ(shown(1), "4|1|||");
  ShowSetup_Click(Field, State);
  EXPECT_FALSE(Panel.setupFramePanel.Visible || State.SetupLoading);
  EXPECT_EQ(State.EditFrame.Front, tarnwick::Panel::Setup);
  Command3_Click(State);  // deletes nothing but shows the monster laboratory
  EXPECT_EQ(State.EditFrame.Front, tarnwick::Panel::MonsterLaboratory);
  EXPECT_EQ(Folder.Read("working.setup"), stored);
}

TEST_F(Setups, UnitsAreDeployedExchangedAndWithdrawn) {
  Command6_Click(Field, State, Store);
  EXPECT_EQ(Assign(8, 1), "SK,,4,2,J");
  EXPECT_EQ(Listed(), (Lines{"HI,,4,2,J", "SK,,4,2,J"}));
  EXPECT_EQ(Assign(8, 0), "HI,,4,2,J");
  EXPECT_EQ(Listed(), (Lines{"SK,,4,2,J", "SK,,4,2,J"}));
  EXPECT_EQ(Stored("1"), "New setup||HI,,4,2,J");
  EXPECT_EQ(Assign(8, -1), "");
  EXPECT_EQ(Listed(), (Lines{"SK,,4,2,J", "SK,,4,2,J", "HI,,4,2,J"}));
  Panel.description.Text = "not yet stored";
  EXPECT_EQ(Assign(4, -1), "");
  EXPECT_EQ(Host.Heard(), Lines{"Please select a unit"});
  EXPECT_EQ(Stored("1"), "not yet stored||");
  State.BaseUnits[200].UnitType = "EL";
  State.NumUnits = 400;  // more unit lines than the table has rows
  FillDeployList(Field, State);
  EXPECT_EQ(Listed(), (Lines{"HI,,4,2,J", "SK,,4,2,J", "SK,,4,2,J", "EL,,,,"}));
}

TEST_F(Setups, TwentyTravelBetweenArmyAndScratchFile) {
  const std::string none = "[SETUP 3]\r\nfield1=x\r\n[SETUP 21]\r\ndescription=d\r\n";
  Folder.Write(
      "x.army",
      "[SETUP 20]\r\ndescription=a\\nb\r\n[SETUP 2]\r\nfield9=HI\r\ndescription=two\r\n" + none);
  Folder.Write("working.setup", "[SETUP 1]\r\ndescription=old\r\n");
  LoadSetupsFromArmy(Field, Store, Folder / "x.army");
  EXPECT_EQ(Entries(Panel.setupList), (Lines{"2", "20"}));
  EXPECT_EQ((Lines{Stored("1"), Stored("2"), Stored("3"), Stored("20"), Stored("21")}),
            (Lines{"||", "two||HI", "||", "a\\nb||", "||"}));
  const std::string scratch = Folder.Read("working.setup");
  Folder.Write("working.setup", scratch + none);
  Folder.Write("y.army", "[ARMY]\r\nname=y\r\n");
  PendingFiles files;
  CopySetupsToArmy(Store, files, Folder / "y.army");
  files.Replace(Store.Files);
  EXPECT_EQ(Folder.Read("y.army"), "[ARMY]\r\nname=y\r\n" + scratch);
  LoadSetupsFromArmy(Field, Store, Folder / "none.army");
  EXPECT_EQ(Entries(Panel.setupList), Lines{});
  EXPECT_FALSE(Folder.Has("working.setup"));
}

}  // namespace tarnwick
