// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/leaders.h"

#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/sample_state.h"

namespace tarnwick {
namespace {

class LeaderChoice : public testing::Test {
 protected:
  /// The chosen leader, the ticked option (−1 is none) and the command points left.
  std::string Choice() const {
    int ticked = -1;
    for (int i = 0; i <= 6; ++i)
      if (state_.Command.LeaderName[i].Value) ticked = i;
    return NumberText(state_.SelectedLeader) + " " + std::to_string(ticked) + " " +
           NumberText(state_.CommandPts);
  }

  SampleState sample_{
      "command_pts=160\ntot_leader=3\nleader1=Arcas,7,2,150\nleader2=Milo,4,1,40\n"
      "leader3=Dear,7,1,161\n"};
  ArmyState& state_ = sample_.State;
};

TEST_F(LeaderChoice, IsPaidAndChangedForTheDifference) {
  const struct {
    int PointsLeft, Clicked;
    const char* Choice;
  } clicks[] = {
      {160, 2, "-1 -1 160"}, {160, 0, "0 0 10"}, {10, 1, "1 1 120"}, {120, 1, "1 1 120"},
      {109, 0, "1 1 109"},   {110, 0, "0 0 0"},  {-50, 1, "1 1 60"}};  // a loaded army may have
                                                                       // overspent; a refund is
                                                                       // still taken
  for (const auto& click : clicks) {
    state_.CommandPts = click.PointsLeft;
    TickOption(state_.Command.LeaderName, click.Clicked);  // as the window has done by then
    LeaderName_Click(state_, sample_.Host, click.Clicked);
    EXPECT_EQ(Choice(), click.Choice);
  }
  const std::string refusal = "Insufficient points left";
  EXPECT_EQ(sample_.Host.Heard(), (Lines{refusal, refusal}));
  EXPECT_EQ(state_.Command.LeaderFrame.Caption, " Leaders (pts left: 60)");
}

TEST_F(LeaderChoice, TheDialogDefinesLeadersThatNobodyHasChosenYet) {
  LeaderMgmtForm form;
  const auto cost = [&form](int initiative, int command) {  // entries of the lists, -1 for none
    form.InitiativeBox.ListIndex = initiative;
    form.CommandBox.ListIndex = command;
    UpdateLeaderCost(form);
    return form.leaderCost.Caption;
  };
  std::string costs;
  for (int i = 0; i < 8; ++i)
    costs += cost(i % 4, i / 4) + " ";
  EXPECT_EQ(costs, "40 70 100 120 0 0 0 150 ");
  EXPECT_EQ(cost(-1, 0) + cost(0, -1), "150150");  // until both lists have a selection
  EXPECT_EQ(LeaderCost(7, 0) + LeaderCost(8, 1) + LeaderCost(3, 1), 150);
  for (const int initiative : {-1, 0, 2}) {
    cost(initiative, 1);
    EXPECT_TRUE(CommandBox_Validate(form, sample_.Host)) << initiative;
    EXPECT_EQ(sample_.Host.Heard(),
              Lines{"Only leaders with initiative = 7 can have 2 command points"});
  }
  form.InitiativeBox.ListIndex = 3;
  EXPECT_FALSE(CommandBox_Validate(form, sample_.Host));
  EXPECT_EQ(form.leaderCost.Caption, "150");
  EXPECT_FALSE(DefineLeader(state_, sample_.Host, form));
  EXPECT_EQ(sample_.Host.Heard(), Lines{"Please insert the leader's name"});

  form.LeaderName.Text = " Cato the Elder";
  cost(2, 1);
  EXPECT_TRUE(DefineLeader(state_, sample_.Host, form));
  EXPECT_EQ(state_.Command.LeaderName[3].Caption, " Cato the Elder 0 [ 6 / 2 ] ");
  EXPECT_TRUE(state_.Command.LeaderName[3].Visible);
  EXPECT_EQ(Choice(), "-1 -1 160");
  cost(0, 0);
  cost(0, -1);  // without a selection the cost is what the dialog shows
  EXPECT_TRUE(DefineLeader(state_, sample_.Host, form));
  EXPECT_EQ(state_.Command.LeaderName[4].Caption, " Cato the Elder 40 [ 4 / 0 ] ");

  // The eighth leader has no button, the twelfth no row.
  for (int i = 5; i < 7; ++i)
    EXPECT_TRUE(DefineLeader(state_, sample_.Host, form));
  for (int i = 7; i < 12; ++i)
    EXPECT_THROW(std::ignore = DefineLeader(state_, sample_.Host, form), SubscriptError);
  EXPECT_EQ(state_.Leaders[10].Initiative, "4");
  EXPECT_EQ(state_.LeaderCount, 12);
}

}  // namespace
}  // namespace tarnwick
