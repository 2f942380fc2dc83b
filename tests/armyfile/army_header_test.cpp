// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/army_header.h"

#include "rules/army_state.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

constexpr int bc = 0, ac = 1;

struct Header : testing::Test {
  void Enter(const std::string& from, int fromEra, const std::string& to, int toEra) {
    header_.FromData.Text = from;
    header_.ToData.Text = to;
    TickOption(header_.FromACBC, fromEra);
    TickOption(header_.toACBC, toEra);
  }

  /// The boxes, "-" for BC.
  std::string Shown() const {
    return (header_.FromACBC[bc].Value ? "-" : "") + header_.FromData.Text +
           (header_.toACBC[bc].Value ? ",-" : ",") + header_.ToData.Text;
  }

  ArmyHeader header_;
  FakeHost host_;
};

TEST_F(Header, EachPeriodBoxReportsEveryFailedCheckAndCountsAllTheSame) {
  const std::string range = "Please insert a numeric value between 3500 and 0";
  const std::string before = "the date must be precedent to ";
  const std::string after = "the date must be successive to ";
  const struct {
    int FromEra, ToEra;
    const char *From, *To;
    Lines LeavingFrom, LeavingTo;
    const char* ArmyPeriod;
  } cases[] = {{bc, bc, "3500", "0", {}, {}, "-3500,0"},
               {bc, bc, "300", "300", {}, {}, "-300,-300"},
               {ac, ac, "50", "50", {}, {}, "50,50"},
               {bc, bc, "300", "500", {before + "500"}, {after + "300"}, "-300,-500"},
               {ac, ac, "100", "50", {before + "50"}, {after + "100"}, "100,50"},
               {bc, ac, "4000", "30", {range}, {}, "-4000,30"},
               {bc, ac, "30", "3500.5", {}, {range}, "-30,3500.5"},
               {ac, ac, "abc", "", {range}, {range}, "0,0"},
               {ac, ac, "-5 years", "30", {range, range}, {}, "-5,30"},
               {ac, ac, " 12 ", "-1", {before + "-1"}, {range, after + " 12 "}, "12,-1"},
               {bc, bc, "-5x", "5", {range, range, before + "5"}, {after + "-5x"}, "5,-5"}};
  for (const auto& c : cases) {
    Enter(c.From, c.FromEra, c.To, c.ToEra);
    EXPECT_EQ(FromData_Validate(header_, host_), !c.LeavingFrom.empty()) << c.From;
    EXPECT_EQ(host_.Heard(), c.LeavingFrom) << c.From;
    EXPECT_EQ(header_.ArmyPeriod, c.ArmyPeriod);
    header_.ArmyPeriod = "";
    EXPECT_EQ(ToData_Validate(header_, host_), !c.LeavingTo.empty()) << c.To;
    EXPECT_EQ(host_.Heard(), c.LeavingTo) << c.To;
    EXPECT_EQ(header_.ArmyPeriod, c.ArmyPeriod);
  }
  // What begins AC also ends AC, whichever button is clicked.
  Enter("100", ac, "200", bc);
  FromACBC_Click(header_);
  EXPECT_EQ(Joined(Shown(), header_.ArmyPeriod), "100,200|100,200");
  TickOption(header_.toACBC, bc);
  toACBC_Click(header_);
  EXPECT_EQ(Shown(), "100,200");
  Enter("100", bc, "200", ac);
  toACBC_Click(header_);
  EXPECT_EQ(Joined(Shown(), header_.ArmyPeriod), "-100,200|-100,200");
}

TEST_F(Header, APeriodIsShownInItsBoxes) {
  EXPECT_EQ(Shown(), "-,-");
  EXPECT_EQ(Joined(header_.FromACBC[bc].Caption, header_.toACBC[ac].Caption), "BC|AC");
  for (const char* period : {"-500,30", "0,-1", "-12,0"}) {
    header_.ArmyPeriod = period;
    ShowPeriod(header_);
    EXPECT_EQ(Shown(), period);
  }
  header_.ArmyPeriod = " -2.5 ,7, more";
  ShowPeriod(header_);
  header_.ArmyPeriod = "";
  ShowPeriod(header_);
  for (const char* period : {"-500", "1,x", ",", "500 BC,1"}) {
    header_.ArmyPeriod = period;
    EXPECT_THROW(ShowPeriod(header_), TypeMismatchError) << period;
  }
  for (const char* period : {"40000,1", "1,40000", "-32768,1", "1,-32768"}) {
    header_.ArmyPeriod = period;
    EXPECT_THROW(ShowPeriod(header_), OverflowError) << period;
  }
  EXPECT_EQ(Shown(), "-2,7");  // still
}

TEST_F(Header, TypeAndRulesComeFromTheFile) {
  for (const std::string type : {"xPF", "F", "P", "fp"}) {
    TakeArmyType(header_, type);
    EXPECT_EQ(ArmyTypeCode(header_), type == "xPF" ? "FP" : type == "fp" ? "" : type);
  }
  const TempFolder folder;
  const ProfileFiles files;
  const struct {
    const char *Rules, *Ticked;
  } cases[] = {{"FOW,DISCIPLINE,TRIBAL,FEROCITY,MOBILITY,LONGSWORD",
                "TRIBAL,FEROCITY,MOBILITY,LONGSWORD,FOW,DISCIPLINE"},
               {"", "LONGSWORD,FOW,DISCIPLINE"},  // the other three are left alone
               {"Tribal, FEROCITY,MOBILITY,,TRIBAL", "MOBILITY,LONGSWORD,FOW,DISCIPLINE"}};
  for (const auto& c : cases) {
    folder.Write("x.army", std::string("[ARMY]\nspecial_rules=") + c.Rules);
    LoadSpecialRules(header_, files, folder / "x.army");
    EXPECT_EQ(SpecialRulesText(header_), c.Ticked);
  }
  header_.ArmyDesc.Text = "a\r\n\r\nb\nc@";
  ArmyDesc_Change(header_);
  EXPECT_EQ(header_.ArmyDescription, "a@@b\nc@");
}

}  // namespace
}  // namespace tarnwick
