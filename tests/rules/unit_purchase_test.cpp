// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_purchase.h"

#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/sample_state.h"

namespace tarnwick {
namespace {

/// Infantry lines: 0 costs 7 (4 at most), 1 costs 30 (90), 2 costs nothing (500), 3 costs 1000.
class Purchase : public testing::Test {
 protected:
  /// Types a quantity into a line and leaves it; what was said comes back, or else the line.
  std::string Buy(int line, const std::string& text) {
    grid_.Buy[line].Text = text;
    const bool cancel = Buy_Validate(state_, sample_.Store, sample_.Host, line);
    const Lines said = sample_.Host.Heard();
    EXPECT_EQ(cancel, !said.empty()) << text;
    return said.empty() ? Line(line) : said.front();
  }

  /// What the line shows: text of the box, total, how many are bought, and the points.
  std::string Line(int line) const {
    return grid_.Buy[line].Text + " for " + grid_.UnitTotalLabel[line].Caption + ", " +
           NumberText(state_.BaseUnits[line + 1].Bought) + " bought, " + Points(state_);
  }

  SampleState sample_{
      "points=100\ntot_units=4\nunit1=HI,,3,1,,7,4,\nunit2=MI,,2,1,,30,90,\n"
      "unit3=SK,,1,1,,0,500,\nunit4=LI,,1,1,,1000,99,\n"};
  ArmyState& state_ = sample_.State;
  UnitsPanel& grid_ = state_.Units;
};

TEST_F(Purchase, QuantitiesAreCutDownPaidForAndGivenBack) {
  EXPECT_EQ(Buy(0, "  3 units "), "3 for 21, 3 bought, 79/21");
  EXPECT_EQ(grid_.TotalCost.Caption, "Points left: 79 of 100");
  EXPECT_EQ(grid_.TQinfo.Caption, "TQ: 9 (2) - TQ ratio: 3");
  EXPECT_EQ(state_.Title, "Velmora Tarnwick ver 1.2.1 [ #cards: 3 units: 3 (100%) ]");
  EXPECT_EQ(Buy(0, "+5.50 units"), "You can only buy 4 units");
  EXPECT_EQ(Line(0), "5.5 for 21, 3 bought, 79/21");
  EXPECT_EQ(Buy(0, "2.9"), "2 for 14, 2 bought, 86/14");
  EXPECT_EQ(Buy(0, "4.5"), "4 for 28, 4 bought, 72/28");  // cut down before it meets the maximum
  EXPECT_EQ(Buy(0, " none "), "none for 0, 0 bought, 100/0");
  EXPECT_EQ(Buy(0, "-1.5"), "-2 for -14, -2 bought, 114/-14");  // nobody refuses it
  // Cut down to 0, which is a purchase of none.
  EXPECT_EQ(Buy(0, "0.5"), "0 for 0, 0 bought, 100/0");

  Buy(0, "3");  // what is released gives back the total that is shown
  grid_.UnitTotalLabel[0].Caption = "10.5 points";
  EXPECT_EQ(Buy(0, "0.0x"), "0.0x for 0, 0 bought, 89/11");  // 10.5 goes to 10
  // The counters are shown while the units are still counted.
  EXPECT_EQ(state_.Title, "Velmora Tarnwick ver 1.2.1 [ #cards: 3 units: 3 (100%) ]");
}

TEST_F(Purchase, RefusalNamesWhatTheRowMayGrowTo) {
  Buy(0, "3");
  state_.PointsLeft = 10;
  grid_.MaxLabel[0].Caption = "90";
  EXPECT_EQ(Buy(0, "5.7"), "Insufficient points left - max 4");
  EXPECT_EQ(Line(0), "5 for 21, 3 bought, 10/21");
  EXPECT_EQ(Buy(0, "4"), "4 for 28, 4 bought, 3/28");
  state_.PointsLeft = -5;
  EXPECT_EQ(Buy(1, "1"), "Insufficient points left - max -1");
  state_.PointsLeft = 30;
  Buy(1, "1");  // to the last point
  EXPECT_EQ(Points(state_), "0/58");
}

TEST_F(Purchase, WhatLeaves16BitsAndDividingByZeroAreErrors) {
  state_.GridFilling = true;  // nothing counts while code fills the grid
  EXPECT_EQ(Buy(0, " 99999 "), " 99999  for 0, 0 bought, 100/0");
  state_.GridFilling = false;
  EXPECT_THROW(Buy(0, "32768"), OverflowError);
  EXPECT_THROW(Buy(3, "40"), OverflowError);
  Buy(2, "300");
  state_.PointsLeft = -1;
  EXPECT_THROW(Buy(2, "301"), DivisionByZeroError);
  EXPECT_EQ(Line(2), "301 for 0, 300 bought, -1/0");
}

TEST_F(Purchase, TheTagNamesTheRow) {
  TickOption(grid_.ViewOption, 2);
  state_.BaseUnits[2].Bought = 1;
  ShowSelectUnits(state_, sample_.Store);
  Buy(0, "2");
  EXPECT_EQ(state_.BaseUnits[2].Bought, 2);
}

TEST_F(Purchase, AfterAResetQuantitiesCountForWhatTheLinesShow) {
  SampleState twins{
      "points=100\ntot_units=5\nunit1=HI,,3,1,,9,4,A\nunit2=HI,,3,1,,7,4,A\nunit3=MI,,2,1,,5,9,\n"
      "unit4=HI,,3,1,,7,4,B\nunit5=HI,,3,1,,7,4,\n"};
  ArmyState& state = twins.State;
  UnitsPanel& grid = state.Units;
  const auto buy = [&](int line, const char* text) {
    grid.Buy[line].Text = text;
    std::ignore = BuyUnits(state, twins.Store, twins.Host, line);
    std::string bought;
    for (int r = 1; r <= 5; ++r)
      bought += NumberText(state.BaseUnits[r].Bought);
    return bought + " " + Points(state);
  };
  for (const int view : {0, 2}) {
    for (int r = 2; r <= 5; ++r)
      state.BaseUnits[r].Bought = 1;
    TickOption(grid.ViewOption, view);
    ShowSelectUnits(state, twins.Store);
    for (int k = 0; k <= 22; ++k)
      grid.Buy[k].Tag = grid.Buy[k].Text = grid.UnitTotalLabel[k].Caption = "";
    for (int r = 1; r <= 5; ++r)
      state.BaseUnits[r].Bought = 0;
    state.PointsLeft = 100;
    state.PointsSpent = 0;

    const int first = view == 0 ? 1 : 0;  // the line of the second row
    EXPECT_EQ(buy(first, ""), "00000 100/0");
    EXPECT_EQ(buy(first + 2, "5"), "00000 100/0");
    EXPECT_EQ(twins.Host.Heard(), Lines{"You can only buy 4 units"});
    EXPECT_EQ(buy(first + 2, "2"), "00020 86/14");  // one of two rows alike
    EXPECT_EQ(buy(first, "1"), "01020 79/21");
    EXPECT_EQ(buy(first + 3, "1"), "01021 72/28");
    EXPECT_TRUE(grid.Buy[first + 1].Visible);
  }
  grid.Buy[1].Tag = grid.TypeLabel[1].Caption = "";  // shows none of the army's units
  EXPECT_EQ(buy(1, "1"), "01021 72/28");
}

}  // namespace
}  // namespace tarnwick
