// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "battlefield/setups.h"

#include <filesystem>

#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

/// A section of a setup with units on its first and its last place.
std::string Section(const std::string& number, const std::string& description,
                    const std::string& first = "", const std::string& last = "") {
  return "[SETUP " + number + "]\r\ndescription=" + description + "\r\nfield1=" + first +
         "\r\nfield2=\r\nfield3=\r\nfield4=\r\nfield5=\r\nfield6=\r\nfield7=\r\nfield8=\r\n"
         "field9=" +
         last + "\r\n";
}

/// An army of three rows, two of them alike.
class Setups : public testing::Test {
 protected:
  Setups() {
    const char* const lines[] = {"HI,,4,2,J", "SK,,4,2,J", "SK,,4,2,J"};
    for (int r = 1; r <= 3; ++r)
      state_.BaseUnits[r] = ParseIdentity(lines[r - 1]);
    state_.NumUnits = 3;
  }

  std::string Scratch() const { return folder_.Read("working.setup"); }

  /// Clicks "<->" of a place; what lies there comes back.
  std::string Assign(int place, int selected) {
    panel_.unitList.ListIndex = selected;
    assignBtn_Click(field_, state_, disk_, host_, place);
    EXPECT_FALSE(panel_.unitList.HasSelection());
    return panel_.unit[place].Caption;
  }
  void Describe(const char* text) {
    panel_.description.Text = text;
    description_Change(field_, state_, disk_);
  }

  TempFolder folder_;
  Disk disk_{folder_.Path()};
  ArmyState state_;
  Battlefield field_;
  SetupPanel& panel_ = field_.Setup;
  FakeHost host_;
};

TEST_F(Setups, ANewSetupIsWrittenWithThePlacesShownBeforeIt) {
  Command6_Click(field_, state_, disk_);
  EXPECT_EQ(panel_.setupList.Text(), "1");
  EXPECT_EQ(Scratch(), Section("1", "New setup"));
  EXPECT_TRUE(panel_.setupFramePanel.Visible);
  Assign(0, 0);
  const std::string before = Section("1", "New setup", "HI,,4,2,J");
  EXPECT_EQ(Scratch(), before);
  Command6_Click(field_, state_, disk_);
  EXPECT_EQ(Scratch(), before + Section("2", "New setup", "HI,,4,2,J"));
  EXPECT_EQ(panel_.unit[0].Caption, "");
  EXPECT_EQ(Entries(panel_.unitList), (Lines{"HI,,4,2,J", "SK,,4,2,J", "SK,,4,2,J"}));
  Describe(" two\r\nlines ");
  EXPECT_EQ(Scratch(), before + Section("2", "two\\nlines"));
  Describe("  ");
  EXPECT_EQ(Scratch(), before + Section("2", "<new setup>"));
  state_.SetupLoading = true;
  Describe("not written");
  EXPECT_EQ(Scratch(), before + Section("2", "<new setup>"));

  panel_.setupList.Entries = {{"1", 0}, {"5", 0}, {"2", 0}};
  Command6_Click(field_, state_, disk_);
  EXPECT_EQ(Entries(panel_.setupList), (Lines{"1", "5", "2", "6"}));
  EXPECT_EQ(panel_.setupList.Text(), "6");
}

TEST_F(Setups, ShowingASetupWritesNothing) {
  const std::string stored =
      "[SETUP 3]\r\ndescription=\"  a\\nb \"\r\nfield9=SK,,4,2,J\r\n; mine\r\n";
  folder_.Write("working.setup", stored);
  const auto stamp = std::filesystem::last_write_time(folder_ / "working.setup");
  panel_.setupList.Entries = {{"3", 0}, {"4", 0}};
  const auto shown = [this](int entry) {
    panel_.setupList.ListIndex = entry;
    setupList_Click(field_, state_, disk_);
    return Joined(field_.CurrentSetup, panel_.setupFramePanel.Visible, panel_.description.Text,
                  panel_.unit[8].Caption);
  };
  EXPECT_EQ(shown(-1), "0|0|<insert the setup description here>|");
  EXPECT_EQ(shown(0), "3|1|a\r\nb|SK,,4,2,J");
  EXPECT_EQ(Entries(panel_.unitList), Lines{"HI,,4,2,J"});  // of two rows alike neither is listed
  EXPECT_EQ(shown(1), "4|1||");
  ShowSetup_Click(field_, state_);
  EXPECT_FALSE(panel_.setupFramePanel.Visible || state_.SetupLoading);
  EXPECT_EQ(state_.EditFrame.Front, Panel::Setup);
  Command3_Click(state_);  // deletes nothing but shows the monster laboratory
  EXPECT_EQ(state_.EditFrame.Front, Panel::MonsterLaboratory);
  EXPECT_EQ(panel_.setupList.Entries.size(), 2U);
  EXPECT_EQ(Scratch(), stored);
  EXPECT_EQ(std::filesystem::last_write_time(folder_ / "working.setup"), stamp);
}

TEST_F(Setups, UnitsAreDeployedExchangedAndWithdrawn) {
  Command6_Click(field_, state_, disk_);
  EXPECT_EQ(Assign(8, 1), "SK,,4,2,J");
  EXPECT_EQ(Entries(panel_.unitList), (Lines{"HI,,4,2,J", "SK,,4,2,J"}));
  EXPECT_EQ(Assign(8, 0), "HI,,4,2,J");
  EXPECT_EQ(Entries(panel_.unitList), (Lines{"SK,,4,2,J", "SK,,4,2,J"}));
  EXPECT_EQ(Scratch(), Section("1", "New setup", "", "HI,,4,2,J"));
  EXPECT_EQ(Assign(8, -1), "");
  EXPECT_EQ(Entries(panel_.unitList), (Lines{"SK,,4,2,J", "SK,,4,2,J", "HI,,4,2,J"}));
  EXPECT_EQ(Scratch(), Section("1", "New setup"));
  panel_.description.Text = "not yet stored";
  EXPECT_EQ(Assign(4, -1), "");
  EXPECT_EQ(host_.Heard(), Lines{"Please select a unit"});
  EXPECT_EQ(Scratch(), Section("1", "not yet stored"));
  state_.BaseUnits[200].UnitType = "EL";
  state_.NumUnits = 400;  // more unit lines than the table has rows
  FillDeployList(field_, state_);
  EXPECT_EQ(Entries(panel_.unitList), (Lines{"HI,,4,2,J", "SK,,4,2,J", "SK,,4,2,J", "EL,,,,"}));
  state_.NumUnits = 1;
  FillDeployList(field_, state_);
  EXPECT_EQ(Entries(panel_.unitList), Lines{"HI,,4,2,J"});
}

TEST_F(Setups, TwentyTravelBetweenArmyAndScratchFile) {
  const std::string scratch = Section("2", "two", "", "HI,,4,2,J") + Section("20", "a\\nb");
  const std::string army = "[ARMY]\r\nname=x\r\n";
  folder_.Write("x.army", army +
                              "[SETUP 20]\r\ndescription=a\\nb\r\n[SETUP 2]\r\nfield9=HI,,4,2,J\r\n"
                              "description=two\r\n[SETUP 3]\r\nfield1=x\r\n[SETUP 21]\r\n"
                              "description=d\r\n");
  folder_.Write("working.setup", Section("1", "old"));
  LoadSetupsFromArmy(field_, disk_, folder_ / "x.army");
  EXPECT_EQ(Entries(panel_.setupList), (Lines{"2", "20"}));
  EXPECT_EQ(Scratch(), scratch);
  folder_.Write("y.army", army);
  folder_.Write("working.setup", scratch + Section("3", "") + Section("21", "d"));
  PendingFiles files;
  CopySetupsToArmy(disk_, files, folder_ / "y.army");
  files.Replace(disk_.Files);
  EXPECT_EQ(folder_.Read("y.army"), army + scratch);
  LoadSetupsFromArmy(field_, disk_, folder_ / "none.army");
  EXPECT_EQ(Entries(panel_.setupList), Lines{});
  EXPECT_FALSE(folder_.Has("working.setup"));
}

}  // namespace
}  // namespace tarnwick
