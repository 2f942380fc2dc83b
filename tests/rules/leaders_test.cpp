// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/leaders.h"

#include "support/sample_state.h"

namespace tarnwick {

struct LeaderChoice : testing::Test, SampleState {
  LeaderChoice() : SampleState("Leaders") {}

  /// The chosen leader, the ticked options and the command points left.
  std::string Choice() const {
    std::string ticked;
    for (int i = 0; i <= 6; ++i)
      if (Command.LeaderName[i].Value) ticked += std::to_string(i);
    return Joined(State.SelectedLeader, ticked, State.CommandPts);
  }
};

TEST_F(LeaderChoice, IsPaidAndChangedForTheDifference) {
  const struct {
    int PointsLeft, Clicked;
    const char* Choice;
  } clicks[] = {
      {160, 2, "-1||160"}, {160, 0, "0|0|10"}, {10, 1, "1|1|120"}, {120, 1, "1|1|120"},
      {109, 0, "1|1|109"}, {110, 0, "0|0|0"},  {-50, 1, "1|1|60"}};  // a file's army may have
                                                                     // overspent; a refund is still
                                                                     // taken
  for (const auto& click : clicks) {
    State.CommandPts = click.PointsLeft;
    TickOption(Command.LeaderName, click.Clicked);  // as the window has done by then
    LeaderName_Click(State, Host, click.Clicked);
    EXPECT_EQ(Choice(), click.Choice);
  }
  EXPECT_EQ(Host.Heard(), Lines(2, "Insufficient points left"));
  EXPECT_EQ(Command.LeaderFrame.Caption, " Leaders (pts left: 60)");
}

TEST_F(LeaderChoice, TheDialogDefinesLeadersThatNobodyHasChosenYet) {
  LeaderMgmtForm form;
  EXPECT_EQ(form.leaderCost.Caption, "0");
  const auto cost = [&form](int initiative, int command) {  // entries of the lists, -1 for none
    form.InitiativeBox.ListIndex = initiative;
    form.CommandBox.ListIndex = command;
    UpdateLeaderCost(form);
    return form.leaderCost.Caption;
  };
  EXPECT_EQ((Lines{cost(0, 0), cost(1, 0), cost(2, 0), cost(3, 0)}),
            (Lines{"40", "70", "100", "120"}));
  EXPECT_EQ((Lines{cost(0, 1), cost(1, 1), cost(2, 1), cost(3, 1)}), (Lines{"0", "0", "0", "150"}));
  EXPECT_EQ((Lines{cost(-1, 0), cost(0, -1)}), Lines(2, "150"));  // until both are selected
  EXPECT_EQ(Joined(LeaderCost(7, 0), LeaderCost(8, 1), LeaderCost(3, 1)), "150|0|0");
  for (const int initiative : {-1, 0, 2}) {
    cost(initiative, 1);
    EXPECT_TRUE(CommandBox_Validate(form, Host)) << initiative;
    EXPECT_EQ(Host.Heard(), Lines{"Only leaders with initiative = 7 can have 2 command points"});
  }
  form.InitiativeBox.ListIndex = 3;
  EXPECT_FALSE(CommandBox_Validate(form, Host));
  EXPECT_EQ(form.leaderCost.Caption, "150");
  EXPECT_FALSE(DefineLeader(State, Host, form));
  EXPECT_EQ(Host.Heard(), Lines{"Please insert the leader's name"});

  form.LeaderName.Text = " Cato the Elder";
  cost(2, 1);
  EXPECT_TRUE(DefineLeader(State, Host, form));
  EXPECT_EQ(Choice(), "-1||160");
  cost(0, 0);
  cost(0, -1);  // without a selection the cost is what the dialog shows
  EXPECT_TRUE(DefineLeader(State, Host, form));
  EXPECT_EQ(Shown(Command.LeaderName, 7),
            "Arcas 150 [ 7 / 2 ] |Milo 40 [ 4 / 1 ] |Dear 161 [ 7 / 1 ] |"
            " Cato the Elder 0 [ 6 / 2 ] | Cato the Elder 40 [ 4 / 0 ] |-|-|");
  EXPECT_TRUE(DefineLeader(State, Host, form) && DefineLeader(State, Host, form));
  for (int i = 7; i < 12; ++i)  // The eighth leader has no button, the twelfth no row.
    EXPECT_THROW(EXPECT_TRUE(DefineLeader(State, Host, form)), SubscriptError);
  EXPECT_EQ(Joined(State.Leaders[10].Initiative, State.LeaderCount), "4|12");
}

}  // namespace tarnwick
