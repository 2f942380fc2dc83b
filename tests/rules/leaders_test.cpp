// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/leaders.h"

#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/sample_state.h"

namespace tarnwick {
namespace {

class LeaderChoice : public testing::Test {
 protected:
  /// Clicks an option, which the window has ticked by then; what was said comes back.
  std::string Click(int index) {
    TickOption(state_.Command.LeaderName, index);
    LeaderName_Click(state_, sample_.Host, index);
    const Lines said = sample_.Host.Heard();
    return said.empty() ? "" : said.front();
  }

  /// The chosen leader, the ticked option (−1 is none) and the command points left.
  std::string Choice() const {
    int ticked = -1;
    for (int i = 0; i <= 6; ++i) {
      if (state_.Command.LeaderName[i].Value) ticked = i;
    }
    return NumberText(state_.SelectedLeader) + " " + std::to_string(ticked) + " " +
           NumberText(state_.CommandPts);
  }

  SampleState sample_{
      "command_pts=160\ntot_leader=3\nleader1=Arcas,7,2,150\nleader2=Milo,4,1,40\n"
      "leader3=Dear,7,1,161\n"};
  ArmyState& state_ = sample_.State;
};

TEST_F(LeaderChoice, IsPaidAndChangedForTheDifference) {
  EXPECT_EQ(Click(2), "Insufficient points left");
  EXPECT_EQ(Choice(), "-1 -1 160");
  EXPECT_EQ(Click(0), "");
  EXPECT_EQ(Choice(), "0 0 10");
  EXPECT_EQ(state_.Command.LeaderFrame.Caption, " Leaders (pts left: 10)");
  EXPECT_EQ(Click(1), "");
  EXPECT_EQ(Choice(), "1 1 120");
  EXPECT_EQ(Click(1), "");
  EXPECT_EQ(Choice(), "1 1 120");
  state_.CommandPts = 109;
  EXPECT_EQ(Click(0), "Insufficient points left");
  EXPECT_EQ(Choice(), "1 1 109");
  state_.CommandPts = 110;
  EXPECT_EQ(Click(0), "");
  EXPECT_EQ(Choice(), "0 0 0");
  state_.CommandPts = -50;  // a loaded army may have overspent; a refund is still taken
  EXPECT_EQ(Click(1), "");
  EXPECT_EQ(Choice(), "1 1 60");
}

class LeaderDialog : public LeaderChoice {
 protected:
  /// Selects an entry, −1 for none, of each list and shows the cost.
  std::string Cost(int initiative, int command) {
    form_.InitiativeBox.ListIndex = initiative;
    form_.CommandBox.ListIndex = command;
    UpdateLeaderCost(form_);
    return form_.leaderCost.Caption;
  }

  LeaderMgmtForm form_;
};

TEST_F(LeaderDialog, ShowsTheCostAndAsksForInitiative7) {
  EXPECT_EQ(Cost(3, 1), "150");
  EXPECT_EQ(Cost(-1, 0), "150");  // the cost stays until both lists have a selection
  EXPECT_EQ(Cost(0, -1), "150");
  EXPECT_EQ(Cost(0, 0), "40");
  EXPECT_EQ(Cost(2, 1), "0");
  const Lines refusal = {"Only leaders with initiative = 7 can have 2 command points"};
  for (const int initiative : {-1, 0, 1, 2}) {
    Cost(initiative, 1);
    EXPECT_TRUE(CommandBox_Validate(form_, sample_.Host)) << initiative;
    EXPECT_EQ(sample_.Host.Heard(), refusal);
    form_.CommandBox.ListIndex = 0;
    EXPECT_FALSE(CommandBox_Validate(form_, sample_.Host)) << initiative;
  }
  EXPECT_EQ(form_.leaderCost.Caption, "100");
  form_.InitiativeBox.ListIndex = 3;
  form_.CommandBox.ListIndex = 1;
  EXPECT_FALSE(CommandBox_Validate(form_, sample_.Host));
  EXPECT_EQ(form_.leaderCost.Caption, "150");
  EXPECT_EQ(sample_.Host.Heard(), Lines{});
}

TEST_F(LeaderDialog, DefinesLeadersThatNobodyHasChosenYet) {
  Cost(3, 1);
  EXPECT_FALSE(DefineLeader(state_, sample_.Host, form_));
  EXPECT_EQ(sample_.Host.Heard(), Lines{"Please insert the leader's name"});
  EXPECT_EQ(state_.LeaderCount, 3);

  form_.LeaderName.Text = " Cato the Elder";
  Cost(2, 1);
  EXPECT_TRUE(DefineLeader(state_, sample_.Host, form_));
  EXPECT_EQ(state_.LeaderCount, 4);
  EXPECT_EQ(state_.Command.LeaderName[3].Caption, " Cato the Elder 0 [ 6 / 2 ] ");
  EXPECT_TRUE(state_.Command.LeaderName[3].Visible);
  EXPECT_EQ(Choice(), "-1 -1 160");
  EXPECT_EQ(Click(3), "");
  EXPECT_EQ(Choice(), "3 3 160");

  // Without a selection the cost is what the dialog shows.
  Cost(0, 0);
  Cost(0, -1);
  EXPECT_TRUE(DefineLeader(state_, sample_.Host, form_));
  EXPECT_EQ(state_.Command.LeaderName[4].Caption, " Cato the Elder 40 [ 4 / 0 ] ");
}

}  // namespace
}  // namespace tarnwick
