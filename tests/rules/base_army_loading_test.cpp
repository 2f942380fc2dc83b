// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/base_army_loading.h"

#include "support/sample_state.h"

namespace tarnwick {

/// Army points of the base army, left and spent, command points; units, limits, leaders, cards.
std::string Summary(const SampleState& sample) {
  const ArmyState& state = sample.State;
  return Joined(state.ArmyPoints, sample.Points(), state.CommandPts, state.TotUnits,
                state.TotLimits, state.LeaderCount, state.TotSpecial);
}

TEST(LoadBaseArmy, FillsTheStateAndForgetsTheArmyBefore) {
  SampleState sample("Full");
  ArmyState& state = sample.State;
  const UnitsPanel& units = sample.Units;
  EXPECT_EQ(Summary(sample), "400|400/0|250|2|7|7|0");
  EXPECT_EQ(Joined(state.Management.ArmyName.Text, units.TotalCost.Caption),
            "Full|Points left: 400 of 400");
  UnitRec& unit = state.BaseUnits[1];
  EXPECT_EQ(Joined(IdentityText(unit), unit.Cost, unit.MaxCount, unit.SpecialsKey),
            "HI,Vet,2.5,4, J |16|8|Line");  // halves to the even
  EXPECT_EQ(Shown(sample.Command.LeaderName, 1), "Ana 0 [ x / 2 ] |");
  EXPECT_EQ(Shown(units.TypeLimit, 7), "HI+MI|CO[Vet]|HI+MI+BI|LI[Yth]|EL|LN|LG|");
  EXPECT_EQ(Shown(units.MinLimit, 7), "4|2|3|1|0|6|7|");
  const LimitRec &two = state.Limits[4], &three = state.Limits[3], &one = state.Limits[5];
  EXPECT_EQ(Joined(two.TypeA, two.TypeB, three.TypeA, three.TypeB, one.TypeA, one.TypeB),
            "LI|SK|HI|MI+BI|EL|");
  EXPECT_EQ(Joined(units.TypeLimit[0].Tag, units.TypeLimit[6].Tag), "1|7");

  state.Management.ArmyName.Text = "Mine";
  unit.Bought = state.PointsSpent = 15;
  state.SelectedLeader = 0;
  TickOption(sample.Command.LeaderName, 0);
  sample.Load("Small");
  EXPECT_EQ(Summary(sample), "70|70/0|0|1|1|3|0");
  EXPECT_EQ(Joined(state.Management.ArmyName.Text, unit.UnitType, unit.Bought,
                   state.BaseUnits[2].UnitType),
            "Mine|MI|0|");
  EXPECT_EQ(Shown(units.TypeLimit, 7), "MI|-|-|-|-|-|-|");
  EXPECT_EQ(Shown(units.MinLimit, 7), "1|-|-|-|-|-|-|");
  // A missing leader's button and those behind it stay as they were; the count hides the rest.
  EXPECT_EQ(sample.Host.Heard(), Lines{"Leader # 2 not present"});
  EXPECT_EQ(Shown(sample.Command.LeaderName, 7),
            "Cato 20 [ 5 / 1 ] |Bel 40 [ 4 / 1 ] |Cyr 40 [ 4 / 1 ] |-|-|-|-|");
  EXPECT_EQ(Joined(state.SelectedLeader, sample.Command.LeaderName[0].Value), "-1|0");
}

TEST(LoadBaseArmy, AMissingUnitLeavesNone) {
  SampleState sample("Gaps");
  EXPECT_EQ(sample.Host.Heard(), (Lines{"Leader # 1 not present", "Army unit 2 not found"}));
  EXPECT_EQ(Summary(sample), "100|100/0|0|0|2|1|2");
  EXPECT_EQ(Shown(sample.Command.LeaderName, 2), "Option1|-|");
  EXPECT_EQ(Shown(sample.Units.MinLimit, 3), "0|1|-|");  // limits and cards miss rows silently
  EXPECT_EQ(Shown(sample.Command.SpecNameLabel, 2), "|RALLY|");
  EXPECT_EQ(Shown(sample.Units.TypeLabel, 1), "-|");
}

TEST(LoadBaseArmy, ACatalogSavedMeanwhileCountsForTheNextArmy) {
  struct Author : FakeHost {  // saves while the user reads a message
    void Message(const std::string& text) override {
      FakeHost::Message(text);
      Folder.Write("armylist.dat", "[Gaps]\r\npoints=9\r\n");
    }
    explicit Author(const TempFolder& folder) : Folder(folder) {}
    const TempFolder& Folder;
  };
  SampleState sample("Full");
  Author author(sample.Folder);
  sample.State.BaseArmyName = "Gaps";
  LoadBaseArmy(sample.State, sample.Store, author);
  EXPECT_EQ(author.Heard(), (Lines{"Leader # 1 not present", "Army unit 2 not found"}));
  EXPECT_EQ(Summary(sample), "100|100/0|0|0|2|1|2");
  LoadBaseArmy(sample.State, sample.Store, author);
  EXPECT_EQ(Summary(sample), "9|9/0|0|0|0|0|0");
}

TEST(LoadBaseArmy, ARowThatBreaksTheRulesEndsItQuietly) {
  const std::pair<const char*, const char*> cases[] = {
      {"Too Many Units", "70|70/0|9|200|0|0|0"},
      {"Price in Words", "70|70/0|9|1|0|0|0"},
      {"Maximum in Words", "70|70/0|9|1|0|0|0"},
      {"Negative Counts", "70|70/0|9|2|0|0|0"},
      // What comes behind the fault stays as the army before had it.
      {"Too Many Points", "400|400/0|250|0|0|0|0"},
      {"Too Many Cards", "400|400/0|250|0|0|0|0"},
      {"Eight Limits", "400|400/0|250|0|7|0|0"},
      {"Minimum Too Big", "400|400/0|250|0|1|0|0"},
      {"Eight Leaders", "400|400/0|250|0|0|8|0"},
      {"Leader Without Command", "400|400/0|250|0|0|1|0"},
      {"Cost in Words", "400|400/0|250|0|0|1|0"}};
  for (const auto& [army, summary] : cases) {
    SampleState sample("Full");
    sample.State.PointsSpent = 5;
    sample.Load(army);
    EXPECT_EQ(sample.Host.Heard(), Lines{}) << army;
    EXPECT_EQ(Summary(sample), summary) << army;
    EXPECT_EQ(sample.Units.TypeLimit[0].Visible, sample.State.TotLimits > 0) << army;
    EXPECT_EQ(sample.Units.Buy[0].Visible, sample.State.TotUnits > 0) << army;
  }
}

TEST(LoadSpecials, TheFirstArmyMakesFourRowsAndLaterOnesLabelTheirs) {
  SampleState sample("Two Cards");
  CommandPanel& panel = sample.Command;
  const auto row = [&](int j) {
    return Joined(panel.SpecBuy[j].Text, panel.SpecBuy[j].Tag, panel.SpecBuy[j].Visible);
  };
  ASSERT_EQ(panel.SpecBuy.Count(), 4);
  EXPECT_EQ(Shown(panel.SpecNameLabel, 4), "RALLY|FLANK|-|-|");
  EXPECT_EQ(Shown(panel.SpecCostLabel, 4), "8|x|8|8|");  // can be seen without a name
  EXPECT_EQ(Shown(panel.SpecMaxLabel, 4), "4|y|4|4|");
  EXPECT_EQ((Lines{row(0), row(3)}), Lines(2, "|0|1"));

  for (const int j : {0, 1})
    panel.SpecBuy[j].Text = panel.SpecBuy[j].Tag = "3";
  sample.Load("One Card");
  EXPECT_EQ(Shown(panel.SpecNameLabel, 4), "MISSILE|FLANK|-|-|");
  EXPECT_EQ((Lines{row(0), row(1)}), (Lines{"|0|1", "3|3|1"}));
  sample.Load("Six Cards");
  ASSERT_EQ(panel.SpecBuy.Count(), 6);
  EXPECT_EQ(Shown(panel.SpecNameLabel, 6), "A|B|-|-|E|F|");
  EXPECT_EQ(Shown(panel.SpecMaxLabel, 6), "1|1|1|1|1|1|");
}

}  // namespace tarnwick
