// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/army_header.h"

#include "support/sample_army.h"

namespace tarnwick {

constexpr int bc = 0, ac = 1;

struct HeaderTest : testing::Test, SampleArmy {
  void Enter(const std::string& from, int fromEra, const std::string& to, int toEra) {
    Header.FromData.Text = from;
    Header.ToData.Text = to;
    TickOption(Header.FromACBC, fromEra);
    TickOption(Header.toACBC, toEra);
  }
  /// The boxes, "-" for BC.
  std::string Boxes() const {
    return (Header.FromACBC[bc].Value ? "-" : "") + Header.FromData.Text +
           (Header.toACBC[bc].Value ? ",-" : ",") + Header.ToData.Text;
  }
};

TEST_F(HeaderTest, EachPeriodBoxReportsEveryFailedCheckAndCountsAllTheSame) {
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
    EXPECT_EQ(FromData_Validate(Header, Host), !c.LeavingFrom.empty()) << c.From;
    EXPECT_EQ(Host.Heard(), c.LeavingFrom) << c.From;
    EXPECT_EQ(std::exchange(Header.ArmyPeriod, ""), c.ArmyPeriod);
    EXPECT_EQ(ToData_Validate(Header, Host), !c.LeavingTo.empty()) << c.To;
    EXPECT_EQ(Host.Heard(), c.LeavingTo) << c.To;
    EXPECT_EQ(Header.ArmyPeriod, c.ArmyPeriod);
  }
  // What begins AC also ends AC, whichever button is clicked.
  for (const auto click : {FromACBC_Click, toACBC_Click}) {
    Enter("100", ac, "200", bc);
    click(Header);
    EXPECT_EQ(Joined(Boxes(), Header.ArmyPeriod), "100,200|100,200");
    Enter("100", bc, "200", ac);
    click(Header);
    EXPECT_EQ(Joined(Boxes(), Header.ArmyPeriod), "-100,200|-100,200");
  }
}

TEST_F(HeaderTest, APeriodIsShownInItsBoxes) {
  EXPECT_EQ(Joined(Boxes(), Header.FromACBC[bc].Caption, Header.toACBC[ac].Caption), "-,-|BC|AC");
  for (const char* period : {"-500,30", "0,-1", "-12,0"}) {
    Header.ArmyPeriod = period;
    ShowPeriod(Header);
    EXPECT_EQ(Boxes(), period);
  }
  const std::pair<const char*, const char*> errors[] = {
      {" -2.5 ,7, more", ""},        {"", ""},
      {"-500", "Type mismatch"},     {"1,x", "Type mismatch"},
      {"500 BC,1", "Type mismatch"}, {"40000,1", "Overflow"},
      {"1,40000", "Overflow"},       {"-32768,1", "Overflow"}};
  for (const auto& [period, error] : errors) {
    Header.ArmyPeriod = period;
    EXPECT_EQ(ErrorOf([this] { ShowPeriod(Header); }), error) << period;
  }
  EXPECT_EQ(Boxes(), "-2,7");  // still
}

TEST_F(HeaderTest, TypeAndRulesComeFromTheFile) {
  for (const std::string type : {"", "F", "P", "FP"}) {
    TakeArmyType(Header, "xf" + type);
    EXPECT_EQ(ArmyTypeCode(Header), type);
  }
  const std::pair<std::string, const char*> cases[] = {
      {"FOW,DISCIPLINE,TRIBAL,FEROCITY,MOBILITY,LONGSWORD",
       "TRIBAL,FEROCITY,MOBILITY,LONGSWORD,FOW,DISCIPLINE"},
      {"", "LONGSWORD,FOW,DISCIPLINE"},  // the other three are left alone
      {"Tribal, FEROCITY,MOBILITY,,TRIBAL", "MOBILITY,LONGSWORD,FOW,DISCIPLINE"}};
  for (const auto& [rules, ticked] : cases) {
    Folder.Write("x.army", "[ARMY]\nspecial_rules=" + rules);
    LoadSpecialRules(Header, Store.Files, Folder / "x.army");
    EXPECT_EQ(SpecialRulesText(Header), ticked);
  }
  Header.ArmyDesc.Text = "a\r\n\r\nb\nc@";
  ArmyDesc_Change(Header);
  EXPECT_EQ(Header.ArmyDescription, "a@@b\nc@");
}

}  // namespace tarnwick
