// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "battlefield/setups.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

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
    const char* const types[] = {"HI", "SK", "SK"};
    for (int r = 1; r <= 3; ++r) {
      UnitRec& unit = state_.BaseUnits[r];
      unit.UnitType = types[r - 1];
      unit.TQ = "4";
      unit.Size = "2";
      unit.Missile = "J";
    }
    state_.NumUnits = 3;
  }

  static std::string Listed(const ListBox& list) {
    std::string texts;
    for (const ListEntry& entry : list.Entries)
      texts += entry.Text + ";";
    return texts;
  }
  std::string Scratch() const { return folder_.Read("working.setup"); }

  /// Clicks "<->" of a place; what lies there and what is listed comes back.
  std::string Assign(int place, int selected) {
    panel_.unitList.ListIndex = selected;
    assignBtn_Click(field_, state_, disk_, host_, place);
    EXPECT_FALSE(panel_.unitList.HasSelection());
    return panel_.unit[place].Caption + " " + Listed(panel_.unitList);
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
  EXPECT_EQ(Listed(panel_.setupList) + panel_.setupList.Text(), "1;1");
  EXPECT_EQ(Scratch(), Section("1", "New setup"));
  EXPECT_TRUE(panel_.setupFramePanel.Visible);
  Assign(0, 0);
  std::string before = Section("1", "New setup", "HI,,4,2,J");
  EXPECT_EQ(Scratch(), before);
  Command6_Click(field_, state_, disk_);
  EXPECT_EQ(Scratch(), before + Section("2", "New setup", "HI,,4,2,J"));
  EXPECT_EQ(panel_.unit[0].Caption + Listed(panel_.unitList), "HI,,4,2,J;SK,,4,2,J;SK,,4,2,J;");
  Describe(" two\r\nlines ");
  EXPECT_EQ(Scratch(), before + Section("2", "two\\nlines"));
  Describe("  ");
  EXPECT_EQ(Scratch(), before + Section("2", "<new setup>"));
  state_.SetupLoading = true;
  Describe("not written");
  EXPECT_EQ(Scratch(), before + Section("2", "<new setup>"));

  panel_.setupList.Clear();
  for (const char* number : {"1", "5", "2"})
    panel_.setupList.AddItem(number);
  Command6_Click(field_, state_, disk_);
  EXPECT_EQ(Listed(panel_.setupList) + panel_.setupList.Text(), "1;5;2;6;6");
}

TEST_F(Setups, ShowingASetupWritesNothing) {
  const std::string stored = "[SETUP 3]\r\ndescription=  a\\nb \r\nfield9=SK,,4,2,J\r\n; mine\r\n";
  folder_.Write("working.setup", stored);
  const auto stamp = std::filesystem::last_write_time(folder_ / "working.setup");
  panel_.setupList.AddItem("3");
  panel_.setupList.AddItem("4");
  setupList_Click(field_, state_, disk_);  // nothing is selected
  EXPECT_FALSE(panel_.setupFramePanel.Visible);
  panel_.setupList.ListIndex = 0;
  setupList_Click(field_, state_, disk_);
  EXPECT_EQ(panel_.description.Text + panel_.unit[8].Caption, "a\r\nbSK,,4,2,J");
  EXPECT_EQ(Listed(panel_.unitList), "HI,,4,2,J;");  // of two rows alike neither is listed
  panel_.setupList.ListIndex = 1;
  setupList_Click(field_, state_, disk_);
  EXPECT_EQ(panel_.description.Text + panel_.unit[8].Caption, "");
  EXPECT_EQ(field_.CurrentSetup, 4);
  EXPECT_EQ(Scratch(), stored);
  EXPECT_EQ(std::filesystem::last_write_time(folder_ / "working.setup"), stamp);

  ShowSetup_Click(field_, state_);
  EXPECT_FALSE(panel_.setupFramePanel.Visible);
  Command3_Click(state_);  // deletes nothing but shows the monster laboratory
  EXPECT_EQ(state_.EditFrame.Front, Panel::MonsterLaboratory);
  EXPECT_EQ(Listed(panel_.setupList), "3;4;");
  NewMonster(state_.Monster);
  EXPECT_EQ(state_.Monster.M_TQ.Text() + state_.Monster.M_Type.Text(), "4SM");
  EXPECT_EQ(state_.Monster.M_Size.Text(), "5");
}

TEST_F(Setups, UnitsAreDeployedExchangedAndWithdrawn) {
  Command6_Click(field_, state_, disk_);
  Assign(4, -1);
  EXPECT_EQ(host_.Heard(), Lines{"Please select a unit"});
  EXPECT_EQ(Assign(8, 1), "SK,,4,2,J HI,,4,2,J;SK,,4,2,J;");
  EXPECT_EQ(Assign(8, 0), "HI,,4,2,J SK,,4,2,J;SK,,4,2,J;");
  EXPECT_EQ(Scratch(), Section("1", "New setup", "", "HI,,4,2,J"));
  EXPECT_EQ(Assign(8, -1), " SK,,4,2,J;SK,,4,2,J;HI,,4,2,J;");
  EXPECT_EQ(Scratch(), Section("1", "New setup"));
  state_.BaseUnits[200].UnitType = "EL";
  state_.NumUnits = 400;  // more unit lines than the table has rows
  FillDeployList(field_, state_);
  EXPECT_EQ(Listed(panel_.unitList), "HI,,4,2,J;SK,,4,2,J;SK,,4,2,J;EL,,,,;");
  state_.NumUnits = 1;
  FillDeployList(field_, state_);
  EXPECT_EQ(Listed(panel_.unitList), "HI,,4,2,J;");
}

TEST_F(Setups, TwentyTravelBetweenArmyAndScratchFile) {
  const std::string scratch = Section("2", "two", "", "HI,,4,2,J") + Section("20", "a\\nb");
  const std::string army = "[ARMY]\r\nname=x\r\n";
  folder_.Write(
      "x.army",
      army +
          "[SETUP 20]\r\ndescription=a\\nb\r\n[SETUP 2]\r\nfield9=HI,,4,2,J"
          "\r\ndescription=two\r\n[SETUP 3]\r\nfield1=x\r\n[SETUP 21]\r\ndescription=d\r\n");
  folder_.Write("working.setup", Section("1", "old"));
  LoadSetupsFromArmy(field_, disk_, folder_ / "x.army");
  EXPECT_EQ(Listed(panel_.setupList), "2;20;");
  EXPECT_EQ(Scratch(), scratch);
  folder_.Write("y.army", army);
  folder_.Write("working.setup", scratch + Section("3", "") + Section("21", "d"));
  PendingFiles files;
  CopySetupsToArmy(disk_, files, folder_ / "y.army");
  files.Replace(disk_.Files);
  EXPECT_EQ(folder_.Read("y.army"), army + scratch);
  LoadSetupsFromArmy(field_, disk_, folder_ / "none.army");
  EXPECT_EQ(Listed(panel_.setupList) + Scratch(), "<missing>");
}

}  // namespace
}  // namespace tarnwick
