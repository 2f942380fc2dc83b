// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/verification.h"

#include <map>

#include "support/sample_state.h"

namespace tarnwick {

/// What the limits say of the units bought, by row: 1 LI, 2 LP, 3 HI, 4 HI of class x, 5 CO of
/// class Vet, 6 HC, 7 LM, 8 CO without a class.
std::string Verify(const std::string& limits, const std::map<int, int>& bought) {
  SampleState sample(
      "Sample",
      "[Sample]\ntot_units=8\nunit1=LI,,3,1,,5,9,\nunit2=LP,,3,1,,5,9,\nunit3=HI,,3,1,,5,9,\n"
      "unit4=HI,x,3,1,,5,9,\nunit5=CO,Vet,3,1,,5,9,\nunit6=HC,,3,1,,5,9,\n"
      "unit7=LM,,3,1,,5,9,\nunit8=CO,,3,1,,5,9,\ntot_limits=" +
          limits);
  for (const auto& [row, count] : bought)
    sample.State.BaseUnits[row].Bought = count;
  EXPECT_FALSE(VerifyArmy(sample.State, sample.Host, false));
  sample.State.SelectedLeader = 0;
  const bool passed = VerifyArmy(sample.State, sample.Host, false);
  const Lines said = sample.Host.Heard();
  EXPECT_EQ(passed, said == Lines{"Please select a Leader"});
  EXPECT_EQ(VerifyArmy(sample.State, sample.Host, true), passed);
  EXPECT_EQ(sample.Host.Heard(), passed ? Lines{"Army is OK"} : Lines{said.front()});
  return passed ? "" : said.front();
}

TEST(VerifyArmy, ReportsTheFirstFailure) {
  const std::string atLeast = "You must buy at least ";
  const struct {
    const char* Limits;
    std::map<int, int> Bought;
    std::string Message;
  } cases[] = {
      {"1\nlimit1=LI+LP,4\n", {{1, 2}, {2, 1}}, atLeast + "4 units of type LI or LP"},
      {"1\nlimit1=LI+LI,4\n", {{1, 2}}, ""},           // counted for either name
      {"1\nlimit1=LI+LP,4\n", {{1, 5}, {2, -3}}, ""},  // what is below 0 counts as none
      {"1\nlimit1=HI,2\n", {{3, 1}, {4, 5}}, atLeast + "2 units of type HI"},
      {"1\nlimit1=CO,1,Vet\n", {{8, 5}}, atLeast + "1 units of class Vet"},
      // A class limit counts the alternative, of no class, and does not name it.
      {"1\nlimit1=CO+HI,3,Vet\n", {{5, 1}, {3, 2}}, ""},
      {"1\nlimit1=CO+HI,3,Vet\n", {{5, 1}, {4, 2}}, atLeast + "3 units of class Vet"},
      {"1\nlimit1=SM,3\n", {{7, 1}, {8, 2}}, ""},  // types without a code count as one kind
      // In the order of the limits, and before the leader.
      {"3\nlimit1=HI,1\nlimit2=HC,1\nlimit3=LI,1\n", {{3, 1}}, atLeast + "1 units of type HC"},
      {"1\nlimit1=HC,0\n", {}, ""}};
  for (const auto& c : cases)
    EXPECT_EQ(Verify(c.Limits, c.Bought), c.Message) << c.Limits;
}

TEST(VerifyArmy, ReadsTheLimitLinesAsTheyStand) {
  SampleState sample("Limits As They Stand");
  ArmyState& state = sample.State;
  state.Units.TypeLimit[0].Tag = "2";
  state.Units.MinLimit[0].Caption = "1.5 men";
  const auto said = [&](int horse) {
    state.BaseUnits[2].Bought = horse;
    VerifyBtn_Click(state, sample.Host);
    return sample.Host.Heard();
  };
  EXPECT_EQ(said(1), Lines{"You must buy at least 1.5 men units of type HC"});
  EXPECT_EQ(said(2), Lines{"Please select a Leader"});
  for (const char* tag : {"", "11"}) {
    state.Units.TypeLimit[0].Tag = tag;
    EXPECT_THROW(said(2), SubscriptError);
  }
  state.BaseUnits[2].UnitType = "LM";  // counted with the other monsters
  state.BaseUnits[1].Bought = 20000;
  EXPECT_THROW(said(20000), OverflowError);
}

}  // namespace tarnwick
