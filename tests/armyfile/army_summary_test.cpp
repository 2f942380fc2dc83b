// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/army_summary.h"

#include "support/sample_army.h"

namespace tarnwick {

struct Summary : testing::Test, SampleArmy {
  /// What the army has of both points, spent and left; "-" when that can't be told.
  std::string Points() const {
    const ArmySummary summary = Summarize(Work);
    std::string points;
    for (const auto& budget : {summary.Army, summary.Command})
      points += budget ? Joined(budget->Spent, budget->Left, budget->Whole()) + " " : "- ";
    return points;
  }
  Lines Missing() const {
    Lines missing;
    const ArmySummary summary = Summarize(Work);
    for (const Shortfall& shortfall : summary.Missing.value())
      missing.push_back(Joined(shortfall.Message, static_cast<int>(shortfall.Where)));
    return missing;
  }
};

TEST_F(Summary, TellsWhatIsSpentAndOnWhat) {
  EXPECT_FALSE(Summarize(Work).Begun);
  EXPECT_EQ(Points(), "- - ");
  Folder.Copy(TEST_DATA "/armies");
  Load("saved");
  EXPECT_EQ(Points(), "78|422|500 179|21|200 ");
  const ArmySummary summary = Summarize(Work);
  EXPECT_EQ(Joined(summary.Begun, summary.Leader, summary.Cards, summary.Deck),
            "1|Arcas of Tyre|2 RALLY, 3 FLANK|8 cards, 3 units (37%)");
  EXPECT_EQ(Missing(), Lines{});
  Army.BaseArmyName = "";  // lost
  EXPECT_TRUE(Summarize(Work).Begun);
}

TEST_F(Summary, ListsAllThatIsMissingAndNeverFails) {
  NewArmy("Strict Army");
  const std::string leader = Joined("Please select a Leader", static_cast<int>(Panel::Command));
  EXPECT_EQ(Missing(), (Lines{"You must buy at least 1 units of type HI|0", leader}));
  EXPECT_EQ(Joined(Points(), Summarize(Work).Deck), "0|100|100 0|200|200 |");
  Army.BaseUnits[1] = ParseIdentity("HI,,4,4,");
  Army.BaseUnits[2] = ParseIdentity("HI,Vet,4,4,");
  Army.BaseUnits[3] = ParseIdentity("HI,Rec,4,4,");
  Army.BaseUnits[4] = ParseIdentity("SK,,4,4,");
  Army.TotUnits = 4;
  for (const int row : {1, 2, 3, 4})
    Army.BaseUnits[row].Bought = row == 3 ? -1 : row;
  const LimitSummary limit = Summarize(Work).Limits.at(0);
  EXPECT_EQ(Joined(limit.Have, limit.Met, limit.Counts),
            "1|1|Counts: HI 1\nDoesn't: HI[Rec] 0, HI[Vet] 2");
  EXPECT_EQ(Missing(), Lines{leader});

  Army.Units.TypeLimit[0].Tag = Army.Command.SpecBuy[0].Tag = "11 of them";
  Army.TotSpecial = 1;
  Army.SelectedLeader = 11;
  Army.PointsLeft = -32768;
  const ArmySummary summary = Summarize(Work);
  EXPECT_EQ(Joined(Points(), summary.Limits.size(), summary.Missing.has_value(), summary.Leader,
                   summary.Cards),
            "- - |0|0||");
}

}  // namespace tarnwick
