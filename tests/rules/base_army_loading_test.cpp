// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/base_army_loading.h"

#include <string>

#include <gtest/gtest.h>

#include "support/sample_state.h"

namespace tarnwick {
namespace {

/// `count` numbered rows: "leader1=row" and so on, with their total.
std::string Rows(const std::string& total, const std::string& word, int count,
                 const std::string& row) {
  std::string text = total + "=" + std::to_string(count) + "\n";
  for (int i = 1; i <= count; ++i)
    text.append(RowKey(word, i)).append("=").append(row).append("\n");
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

/// Name, points, command points and how many units, limits, leaders and cards there are.
std::string Summary(const ArmyState& state) {
  std::string text = state.Management.ArmyName.Text + " " + Points(state) + " " +
                     NumberText(state.CommandPts) + ":";
  for (const Int16 total : {state.TotUnits, state.TotLimits, state.LeaderCount, state.TotSpecial})
    text += " " + NumberText(total);
  return text;
}

TEST(LoadBaseArmy, FillsTheStateAndForgetsTheArmyBefore) {
  SampleState sample(
      "points=400 or so\ncommand_pts=250\n"
      "tot_units=2\nunit1=HI,Vet,2.5,4, J ,16.5,8,Line\nunit2=SK,,3,1,,4, 7\n"
      "tot_leader=2\nleader1=Arcas of Tyre,7,1,120\nleader2=Milo,x,2,0\n"
      "tot_limits=5\nlimit1=HI+MI,4\nlimit2=CO,2,Vet\nlimit3=HI+MI+BI,3 at least\n"
      "limit4=LI+SK,1,Yth\nlimit5=EL\n"
      "[Other]\npoints=70\ntot_units=1\nunit1=MI,,3,1,,5,9,\ntot_leader=1\nleader1=Cato,5,1,20\n");
  ArmyState& state = sample.State;
  EXPECT_EQ(Summary(state), "Sample 400/0 250: 2 5 2 0");
  EXPECT_EQ(state.Command.SpecBuy.Count(), 4);  // rows for the cards of later armies
  UnitRec& unit = state.BaseUnits[1];
  EXPECT_EQ((Lines{unit.UnitType, unit.UnitClass, unit.TQ, unit.Size, unit.Missile,
                   NumberText(unit.Cost), NumberText(unit.MaxCount), unit.SpecialsKey}),
            (Lines{"HI", "Vet", "2.5", "4", " J ", "16", "8", "Line"}));  // halves to the even
  EXPECT_EQ(Shown(state.Command.LeaderName, 7),
            "Arcas of Tyre 120 [ 7 / 1 ] |Milo 0 [ x / 2 ] |-|-|-|-|-|");
  EXPECT_EQ(Shown(state.Units.TypeLimit, 7), "HI+MI|CO[Vet]|HI+MI+BI|LI[Yth]|EL|-|-|");
  EXPECT_EQ(Shown(state.Units.MinLimit, 7), "4|2|3|1|0|-|-|");
  std::string limits;
  for (int i = 1; i <= 5; ++i)
    limits += state.Units.TypeLimit[i - 1].Tag + state.Limits[i].TypeA + "/" +
              state.Limits[i].TypeB + " ";
  EXPECT_EQ(limits, "1HI/MI 2CO/ 3HI/MI+BI 4LI/SK 5EL/ ");

  state.Management.ArmyName.Text = "Mine";
  unit.Bought = state.PointsSpent = 15;
  state.SelectedLeader = 0;
  TickOption(state.Command.LeaderName, 0);
  sample.Load("Other");
  EXPECT_EQ(Summary(state), "Mine 70/0 0: 1 0 1 0");
  EXPECT_EQ(unit.UnitType + NumberText(unit.Bought) + state.BaseUnits[2].UnitType, "MI0");
  EXPECT_EQ(Shown(state.Units.TypeLimit, 5) + Shown(state.Units.MinLimit, 5),
            "-|-|-|-|-|-|-|-|-|-|");
  EXPECT_EQ(state.SelectedLeader, -1);
  EXPECT_EQ(Shown(state.Command.LeaderName, 2), "Cato 20 [ 5 / 1 ] |-|");
  EXPECT_FALSE(state.Command.LeaderName[0].Value);
  EXPECT_EQ(sample.Host.Heard(), Lines{});
}

TEST(LoadBaseArmy, ReportsWhatIsMissing) {
  SampleState sample(
      "points=100\ntot_units=3\nunit1=HI,,3,1,,5,9,\nunit3=HI,,3,1,,5,9,\n"
      "tot_limits=2\nlimit2=HI,1\ntot_leader=3\nleader1=Milo,5,1,20\nleader3=Cato,5,1,20\n"
      "tot_special=2\nspecial2=RALLY,8,4\n");
  const ArmyState& state = sample.State;
  EXPECT_EQ(sample.Host.Heard(), (Lines{"Leader # 2 not present", "Army unit 2 not found"}));
  EXPECT_EQ(Summary(state), "Sample 100/0 0: 0 2 3 2");
  EXPECT_EQ(Shown(state.Units.MinLimit, 3), "0|1|-|");  // limits and cards miss rows silently
  EXPECT_EQ(Shown(state.Command.SpecNameLabel, 2), "|RALLY|");
  EXPECT_EQ(Shown(state.Units.TypeLabel, 1), "-|");
}

TEST(LoadBaseArmy, ARowThatBreaksTheRulesEndsItQuietly) {
  const std::string good = "points=70\ncommand_pts=9\n";
  const std::string twoUnits = "tot_units=2\nunit1=MI,,3,1,,5,9,\nunit2=";
  const struct {
    std::string Army, Summary, Limits;
  } cases[] = {
      {good + Rows("tot_units", "unit", 201, "HI,,3,1,,5,9,"), "70/0 9: 200 0 0 0", "-|-|-|-|-|"},
      {good + twoUnits + "HI,,3,1,,,9,", "70/0 9: 1 0 0 0", "-|-|-|-|-|"},
      {good + twoUnits + "HI,,3,1,,5,many,", "70/0 9: 1 0 0 0", "-|-|-|-|-|"},
      {good + twoUnits + "HI,,3,1,,70000,9,", "70/0 9: 1 0 0 0", "-|-|-|-|-|"},
      {good + twoUnits + "HI", "70/0 9: 1 0 0 0", "-|-|-|-|-|"},
      // What comes behind the fault stays as the army before had it.
      {"points=70000\n" + twoUnits + "HI,,3,1,,5,9,", "100/0 50: 0 0 0 0", "-|-|-|-|-|"},
      {good + twoUnits + "\ntot_special=70000", "100/0 50: 0 0 0 1", "-|-|-|-|-|"},
      {good + Rows("tot_limits", "limit", 8, "LI,1"), "100/0 50: 0 7 0 1", "LI|LI|LI|LI|LI|"},
      {good + "tot_limits=2\nlimit1=LI,1\nlimit2=LI,70000", "100/0 50: 0 1 0 1", "LI|-|-|-|-|"},
      {good + Rows("tot_leader", "leader", 8, "Milo,5,1,20"), "100/0 50: 0 0 8 1", "-|-|-|-|-|"},
      {good + "tot_leader=2\nleader1=Milo,5,1,20\nleader2=Cato,5,,20", "100/0 50: 0 0 2 1",
       "-|-|-|-|-|"},
      {"points=70000\ntot_units=-3", "100/0 50: 0 0 0 0", "-|-|-|-|-|"},
      // A negative number of rows is none.
      {good + twoUnits + "HI,,3,1,,5,9,\ntot_limits=-1\ntot_leader=-1\ntot_special=-1",
       "70/0 9: 2 0 0 0", "-|-|-|-|-|"}};
  for (const auto& [army, summary, limits] : cases) {
    SCOPED_TRACE(army.substr(0, 200));
    SampleState sample("points=100\ncommand_pts=50\n" +
                       Rows("tot_units", "unit", 3, "HI,,3,1,,5,9,") +
                       Rows("tot_limits", "limit", 5, "HI,1") +
                       "tot_special=1\nspecial1=RALLY,1,1\n[More]\n" + army + "\n");
    sample.State.PointsSpent = 5;
    sample.Load("More");
    EXPECT_EQ(sample.Host.Heard(), Lines{});
    EXPECT_EQ(Summary(sample.State), "Sample " + summary);
    EXPECT_EQ(Shown(sample.State.Units.TypeLimit, 5), limits);
    EXPECT_EQ(sample.State.Units.Buy[0].Visible, sample.State.TotUnits > 0);
  }
}

TEST(LoadSpecials, TheFirstArmyMakesFourRowsAndLaterOnesLabelTheirs) {
  SampleState sample(
      "tot_special=2\nspecial1=RALLY,8,4\nspecial2=FLANK,x,y\n"
      "[One]\ntot_special=1\nspecial1=MISSILE,6,3\n"
      "[Six]\ntot_special=6\nspecial1=A,1,1\nspecial2=B,2,1\nspecial3=C,3,1\nspecial4=D,4,1\n"
      "special5=E,5,1\nspecial6=F,6,1\n");
  CommandPanel& panel = sample.State.Command;
  ASSERT_EQ(panel.SpecBuy.Count(), 4);
  EXPECT_EQ(Shown(panel.SpecNameLabel, 4), "RALLY|FLANK|-|-|");
  EXPECT_EQ(Shown(panel.SpecCostLabel, 4), "8|x|8|8|");  // can be seen without a name
  EXPECT_TRUE(panel.SpecBuy[0].Visible && panel.SpecBuy[3].Visible);

  for (const int j : {0, 1})
    panel.SpecBuy[j].Text = panel.SpecBuy[j].Tag = "3";
  sample.Load("One");
  EXPECT_EQ(Shown(panel.SpecNameLabel, 4), "MISSILE|FLANK|-|-|");
  EXPECT_EQ(panel.SpecBuy[0].Text + panel.SpecBuy[0].Tag, "0");
  EXPECT_EQ(panel.SpecBuy[1].Text + panel.SpecBuy[1].Tag, "33");
  sample.Load("Six");
  ASSERT_EQ(panel.SpecBuy.Count(), 6);
  EXPECT_EQ(Shown(panel.SpecNameLabel, 6), "A|B|-|-|E|F|");
  EXPECT_EQ(Shown(panel.SpecMaxLabel, 6), "1|1|1|1|1|1|");
}

}  // namespace
}  // namespace tarnwick
