// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/base_army_loading.h"

#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/sample_state.h"

namespace tarnwick {
namespace {

/// `count` numbered rows: "leader1=row" and so on, with their total.
std::string Rows(const std::string& total, const std::string& word, int count,
                 const std::string& row) {
  std::string text = total + "=" + std::to_string(count) + "\n";
  for (int i = 1; i <= count; ++i)
    text += word + std::to_string(i) + "=" + row + "\n";
  return text;
}

/// The captions of what can be seen of a row of labels, with "-" for what is hidden.
template <typename Labels>
std::string Shown(const Labels& labels, int count) {
  std::string text;
  for (int i = 0; i < count; ++i)
    text += (labels[i].Visible ? labels[i].Caption : "-") + "|";
  return text;
}

TEST(LoadBaseArmy, FillsTheStateAndItsPanels) {
  SampleState sample(
      "points=400 or so\ncommand_pts=250\n"
      "tot_units=2\nunit1=HI,Vet,2.5,4, J ,16.5,8,Line\nunit2=SK,,3,1,,4,\" 7\"\n"
      "tot_limits=1\nlimit1=HI,1\n"
      "tot_leader=2\nleader1=Arcas of Tyre,7,1,120\nleader2=Milo,x,2,0\n");
  const ArmyState& state = sample.State;
  EXPECT_EQ(sample.Host.Heard(), Lines{});
  EXPECT_EQ(state.Management.ArmyName.Text, "Sample");
  EXPECT_EQ(state.ArmyPoints, 400);
  EXPECT_EQ(Points(state), "400/0");
  EXPECT_EQ(state.CommandPts, 250);
  EXPECT_EQ(state.Units.TotalCost.Caption, "Points left: 400 of 400");
  EXPECT_EQ(state.Command.LeaderFrame.Caption, " Leaders (pts left: 250)");

  ASSERT_EQ(state.TotUnits, 2);
  const UnitRec& unit = state.BaseUnits[1];
  EXPECT_EQ((Lines{unit.UnitType, unit.UnitClass, unit.TQ, unit.Size, unit.Missile,
                   unit.SpecialsKey, unit.ChosenImage}),
            (Lines{"HI", "Vet", "2.5", "4", " J ", "Line", ""}));
  EXPECT_EQ(unit.Cost, 16);  // halves go to the even neighbour
  EXPECT_EQ(unit.MaxCount, 8);

  EXPECT_EQ(state.SelectedLeader, -1);
  EXPECT_EQ(Shown(state.Command.LeaderName, 7),
            "Arcas of Tyre 120 [ 7 / 1 ] |Milo 0 [ x / 2 ] |-|-|-|-|-|");
  EXPECT_EQ(state.Leaders[1].Initiative, "x");
}

TEST(LoadBaseArmy, KeepsTheNameAndForgetsTheArmyBefore) {
  SampleState sample(
      "points=100\ncommand_pts=50\n"
      "tot_units=1\nunit1=HI,,3,1,,5,9,\ntot_leader=1\nleader1=Milo,5,1,20\n"
      "[Other]\npoints=70\ncommand_pts=30\n"
      "tot_units=1\nunit1=MI,,3,1,,5,9,\ntot_leader=1\nleader1=Cato,5,1,20\n");
  ArmyState& state = sample.State;
  state.Management.ArmyName.Text = "Mine";
  state.BaseUnits[1].Bought = 3;
  state.PointsSpent = 15;
  state.SelectedLeader = 0;
  TickOption(state.Command.LeaderName, 0);
  sample.Load("Other");
  EXPECT_EQ(state.Management.ArmyName.Text, "Mine");
  EXPECT_EQ(Points(state), "70/0");
  EXPECT_EQ(state.CommandPts, 30);
  EXPECT_EQ(state.BaseUnits[1].UnitType, "MI");
  EXPECT_EQ(state.BaseUnits[1].Bought, 0);
  EXPECT_EQ(state.SelectedLeader, -1);
  EXPECT_FALSE(state.Command.LeaderName[0].Value);
}

TEST(LoadBaseArmy, ReportsWhatIsMissing) {
  SampleState sample(
      "points=100\ntot_units=3\nunit1=HI,,3,1,,5,9,\nunit3=HI,,3,1,,5,9,\n"
      "tot_limits=2\nlimit2=HI,1\n"
      "tot_leader=3\nleader1=Milo,5,1,20\nleader3=Cato,5,1,20\n"
      "tot_special=2\nspecial2=RALLY,8,4\n");
  const ArmyState& state = sample.State;
  EXPECT_EQ(sample.Host.Heard(), (Lines{"Leader # 2 not present", "Army unit 2 not found"}));
  EXPECT_EQ(state.TotUnits, 0);
  EXPECT_FALSE(state.Units.Buy[0].Visible);
  EXPECT_EQ(state.PointsLeft, 100);
  EXPECT_EQ(state.LeaderCount, 3);
  EXPECT_EQ(state.Leaders[0].Name, "Milo");
  EXPECT_EQ(Shown(state.Units.MinLimit, 3), "0|1|-|");  // limits and cards miss rows silently
  EXPECT_EQ(Shown(state.Command.SpecNameLabel, 2), "|RALLY|");

  sample.Load("Unheard of");
  EXPECT_EQ(sample.Host.Heard(), Lines{});
  EXPECT_EQ(Points(state), "0/0");
  EXPECT_EQ(state.TotUnits + state.TotLimits + state.LeaderCount + state.TotSpecial, 0);
  EXPECT_EQ(Shown(state.Command.LeaderName, 7), "-|-|-|-|-|-|-|");
}

TEST(LoadBaseArmy, ARowThatBreaksTheRulesEndsItQuietly) {
  for (const char* row : {"HI,,3,1,,,9,", "HI,,3,1,,5,many,", "HI,,3,1,,70000,9,", "HI"}) {
    SampleState sample(std::string("points=100\ntot_units=3\nunit1=MI,,3,1,,5,9,\nunit2=")
                           .append(row)
                           .append("\n"));
    EXPECT_EQ(sample.Host.Heard(), Lines{}) << row;
    EXPECT_EQ(sample.State.BaseUnits[1].UnitType, "MI") << row;
    EXPECT_EQ(sample.State.BaseUnits[3].UnitType, "") << row;
    EXPECT_EQ(sample.State.PointsLeft, 100) << row;
  }
  // A leader breaks off before the points are read.
  SampleState sample("points=100\ntot_leader=2\nleader1=Milo,5,1,20\nleader2=Cato,5,,20\n");
  EXPECT_EQ(sample.Host.Heard(), Lines{});
  EXPECT_EQ(sample.State.Leaders[0].Name, "Milo");
  EXPECT_EQ(sample.State.PointsLeft, 0);
  EXPECT_THROW(LoadLeaders(sample.State, sample.Host), TypeMismatchError);
}

TEST(LoadBaseArmy, TablesAndControlsHoldSoManyRowsAndNoMore) {
  SampleState eightLeaders("points=100\n" + Rows("tot_leader", "leader", 8, "Milo,5,1,20"));
  EXPECT_EQ(eightLeaders.State.Leaders[7].Name, "Milo");
  EXPECT_TRUE(eightLeaders.State.Command.LeaderName[6].Visible);
  EXPECT_EQ(eightLeaders.State.PointsLeft, 0);
  EXPECT_THROW(LoadLeaders(eightLeaders.State, eightLeaders.Host), SubscriptError);

  SampleState eightLimits(Rows("tot_limits", "limit", 8, "HI,1"));
  EXPECT_EQ(eightLimits.State.Limits[8].TypeA, "HI");
  EXPECT_THROW(LoadLimits(eightLimits.State), SubscriptError);

  SampleState units(Rows("tot_units", "unit", 200, "HI,,3,1,,5,9,") + "[More]\npoints=70\n" +
                    Rows("tot_units", "unit", 201, "HI,,3,1,,5,9,"));
  EXPECT_EQ(units.State.BaseUnits[200].UnitType, "HI");
  units.State.BaseArmyName = "More";
  EXPECT_NO_THROW(LoadBaseArmy(units.State, units.Host));
  EXPECT_EQ(units.Host.Heard(), Lines{});
  EXPECT_EQ(units.State.PointsLeft, 70);
}

TEST(LoadLimits, SplitsAlternativesAndShowsThemAsWritten) {
  SampleState sample(
      "tot_limits=5\nlimit1=HI+MI,4\nlimit2=CO,2,Vet\nlimit3=HI+MI+BI,3 at least\n"
      "limit4=LI+SK,1,Yth\nlimit5=EL\n");
  const ArmyState& state = sample.State;
  EXPECT_EQ(Shown(state.Units.TypeLimit, 7), "HI+MI|CO[Vet]|HI+MI+BI|LI[Yth]|EL|-|-|");
  EXPECT_EQ(Shown(state.Units.MinLimit, 7), "4|2|3|1|0|-|-|");
  const char* const alternatives[] = {"HI/MI", "CO/", "HI/MI+BI", "LI/SK", "EL/"};
  for (int i = 1; i <= 5; ++i) {
    EXPECT_EQ(state.Limits[i].TypeA + "/" + state.Limits[i].TypeB, alternatives[i - 1]);
    EXPECT_EQ(state.Units.TypeLimit[i - 1].Tag, std::to_string(i));
  }
}

constexpr const char* cardArmies =
    "tot_special=2\nspecial1=RALLY,8,4\nspecial2=FLANK,x,y\n"
    "[One]\ntot_special=1\nspecial1=MISSILE,6,3\n"
    "[Six]\ntot_special=6\nspecial1=A,1,1\nspecial2=B,2,1\nspecial3=C,3,1\nspecial4=D,4,1\n"
    "special5=E,5,1\nspecial6=F,6,1\n";

TEST(LoadSpecials, TheFirstArmyMakesAtLeastFourRows) {
  SampleState sample(cardArmies);
  const CommandPanel& panel = sample.State.Command;
  ASSERT_EQ(panel.SpecBuy.Count(), 4);
  EXPECT_EQ(Shown(panel.SpecNameLabel, 4), "RALLY|FLANK|-|-|");
  for (int j = 0; j < 4; ++j) {
    // The rows without a card have no name but can be seen.
    EXPECT_TRUE(panel.SpecCostLabel[j].Visible && panel.SpecMaxLabel[j].Visible) << j;
    EXPECT_TRUE(panel.SpecBuy[j].Visible) << j;
    EXPECT_EQ(panel.SpecBuy[j].Tag, "0") << j;
  }
  EXPECT_EQ(panel.SpecCostLabel[1].Caption + panel.SpecMaxLabel[1].Caption, "xy");
}

TEST(LoadSpecials, LaterArmiesOnlyLabelTheirRows) {
  SampleState sample(cardArmies);
  CommandPanel& panel = sample.State.Command;
  panel.SpecBuy[0] = {.Text = "2", .Tag = "2", .Visible = true};
  panel.SpecBuy[1] = {.Text = "3", .Tag = "3", .Visible = true};
  sample.Load("One");
  EXPECT_EQ(sample.State.TotSpecial, 1);
  EXPECT_EQ(Shown(panel.SpecNameLabel, 4), "MISSILE|FLANK|-|-|");
  EXPECT_EQ(panel.SpecBuy[0].Text + panel.SpecBuy[0].Tag, "0");
  EXPECT_EQ(panel.SpecBuy[1].Text + panel.SpecBuy[1].Tag, "33");

  sample.Load("Six");
  ASSERT_EQ(panel.SpecBuy.Count(), 6);
  EXPECT_EQ(Shown(panel.SpecNameLabel, 6), "A|B|-|-|E|F|");
  EXPECT_EQ(panel.SpecNameLabel[3].Caption, "D");
  EXPECT_TRUE(panel.SpecBuy[5].Visible);
  EXPECT_EQ(panel.SpecCostLabel[5].Caption, "6");
}

TEST(LoadSpecials, AnArmyWithoutCardsHidesTheFirstNameToo) {
  SampleState sample("points=1\n");
  EXPECT_EQ(Shown(sample.State.Command.SpecNameLabel, 4), "-|-|-|-|");
  EXPECT_TRUE(sample.State.Command.SpecBuy[0].Visible);
}

}  // namespace
}  // namespace tarnwick
