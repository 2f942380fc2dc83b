// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/army_header.h"

#include <string>

#include <gtest/gtest.h>

#include "rules/army_state.h"
#include "support/fake_host.h"

namespace tarnwick {
namespace {

constexpr int bc = 0, ac = 1;

class Period : public testing::Test {
 protected:
  void Enter(const std::string& from, int fromEra, const std::string& to, int toEra) {
    header_.FromData.Text = from;
    header_.ToData.Text = to;
    TickOption(header_.FromACBC, fromEra);
    TickOption(header_.toACBC, toEra);
  }

  ArmyHeader header_;
  FakeHost host_;
};

TEST_F(Period, EachBoxReportsEveryFailedCheckAndCountsAllTheSame) {
  const std::string range = "Please insert a numeric value between 3500 and 0";
  const std::string before = "the date must be precedent to ";
  const std::string after = "the date must be successive to ";
  const struct {
    int FromEra, ToEra;
    const char *From, *To;
    Lines LeavingFrom, LeavingTo;
    const char* ArmyPeriod;
  } cases[] = {{bc, ac, "500", "30", {}, {}, "-500,30"},
               {bc, bc, "3500", "0", {}, {}, "-3500,0"},
               {bc, bc, "300", "300", {}, {}, "-300,-300"},
               {ac, ac, "50", "50", {}, {}, "50,50"},
               {bc, bc, "300", "500", {before + "500"}, {after + "300"}, "-300,-500"},
               {ac, ac, "100", "50", {before + "50"}, {after + "100"}, "100,50"},
               {ac, ac, "50", "100", {}, {}, "50,100"},
               {bc, ac, "4000", "30", {range}, {}, "-4000,30"},
               {bc, ac, "30", "3500.5", {}, {range}, "-30,3500.5"},
               {ac, ac, "abc", "30", {range}, {}, "0,30"},
               {ac, ac, "", "", {range}, {range}, "0,0"},
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
}

TEST_F(Period, WhatBeginsACAlsoEndsAC) {
  EXPECT_TRUE(header_.FromACBC[bc].Value && header_.toACBC[bc].Value);
  Enter("100", ac, "200", bc);
  FromACBC_Click(header_);
  EXPECT_FALSE(header_.toACBC[bc].Value);
  EXPECT_EQ(header_.ArmyPeriod, "100,200");
  TickOption(header_.toACBC, bc);
  toACBC_Click(header_);
  EXPECT_TRUE(header_.toACBC[ac].Value);
  EXPECT_EQ(header_.ArmyPeriod, "100,200");
  Enter("100", bc, "200", bc);
  FromACBC_Click(header_);
  EXPECT_TRUE(header_.toACBC[bc].Value);
  EXPECT_EQ(header_.ArmyPeriod, "-100,-200");
}

TEST(ArmyHeader, KeepsTheDescriptionOnOneLine) {
  ArmyHeader header;
  header.ArmyDesc.Text = "a\r\n\r\nb\nc@";
  ArmyDesc_Change(header);
  EXPECT_EQ(header.ArmyDescription, "a@@b\nc@");
}

}  // namespace
}  // namespace tarnwick
