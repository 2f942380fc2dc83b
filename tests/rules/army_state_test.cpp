// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/army_state.h"

#include "support/testing.h"

namespace tarnwick {

TEST(ArmyState, StartsWithTheDesignsTexts) {
  ArmyState state;
  InitializeVariables(state, Disk("/games"));
  const CommandPanel& command = state.Command;
  EXPECT_TRUE(state.ArmyListFile == "/games/armylist.dat" && state.SelectedLeader == -1);
  EXPECT_EQ(Shown(state.Units.ViewOption, 3), "Infantry|Mounted|Buy|");
  EXPECT_EQ(Shown(state.Management.modOption, 2), "Velmora|Brakka|");
  EXPECT_TRUE(state.Units.ViewOption[0].Value && state.Management.modOption[0].Value);
  EXPECT_EQ(
      Joined(state.Units.TotalCost.Caption, command.LeaderFrame.Caption,
             command.LeaderName[0].Caption, command.SpecNameLabel[0].Caption,
             command.SpecMaxLabel[0].Caption, command.SpecBuy[0].Text, command.SpecBuy[0].Tag),
      "Total: |Leaders |Option1|Card|0||0");
  EXPECT_FALSE(command.SpecNameLabel[0].Visible || command.SpecCostLabel[0].Visible ||
               command.SpecMaxLabel[0].Visible || command.SpecBuy[0].Visible ||
               state.Units.Buy[22].Visible);
  EXPECT_EQ((Lines{Shown(state.Units.TypeLimit, 7), Shown(state.Units.MinLimit, 7),
                   Shown(command.LeaderName, 7)}),
            Lines(3, "-|-|-|-|-|-|-|"));
}

TEST(MonsterLaboratory, OffersSizeQualityAndType) {
  MonsterPanel panel;
  NewMonster(panel);
  EXPECT_EQ(Joined(panel.M_Size.Text(), panel.M_TQ.Text(), panel.M_Type.Text()), "5|4|SM");
  EXPECT_EQ(Joined(panel.M_Size.Entries.back().Text, panel.M_TQ.Entries.back().Text), "15|9");
  EXPECT_EQ(Entries(panel.M_Type),
            (Lines{"SM", "LM", "EL", "PH", "HI", "MI", "LI", "SK", "LC", "HC"}));
}

}  // namespace tarnwick
