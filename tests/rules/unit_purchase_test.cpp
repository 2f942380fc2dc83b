// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_purchase.h"

#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/sample_state.h"

namespace tarnwick {
namespace {

/// Infantry lines: 0 costs 7 (4 at most), 1 costs 30 (90), 2 costs nothing (500), 3 costs 1000.
class Purchase : public testing::Test {
 protected:
  /// Types a quantity into a line and leaves it; what was said comes back, "" for nothing.
  std::string Buy(int line, const std::string& text) {
    grid_.Buy[line].Text = text;
    const bool cancel = Buy_Validate(state_, sample_.Host, line);
    const Lines said = sample_.Host.Heard();
    EXPECT_EQ(cancel, !said.empty()) << text;
    return said.empty() ? "" : said.front();
  }

  /// What the line shows: text of the box, total, and how many are bought.
  std::string Line(int line) const {
    return grid_.Buy[line].Text + " for " + grid_.UnitTotalLabel[line].Caption + ", " +
           NumberText(state_.BaseUnits[line + 1].Bought) + " bought";
  }

  SampleState sample_{
      "points=100\ntot_units=4\nunit1=HI,,3,1,,7,4,\nunit2=MI,,2,1,,30,90,\n"
      "unit3=SK,,1,1,,0,500,\nunit4=LI,,1,1,,1000,99,\n"};
  ArmyState& state_ = sample_.State;
  UnitsPanel& grid_ = state_.Units;
};

TEST_F(Purchase, QuantitiesAreCutDownPaidForAndGivenBack) {
  EXPECT_EQ(Buy(0, "  3 units "), "");
  EXPECT_EQ(Line(0), "3 for 21, 3 bought");
  EXPECT_EQ(Points(state_), "79/21");
  EXPECT_EQ(grid_.TotalCost.Caption, "Points left: 79 of 100");
  EXPECT_EQ(grid_.TQinfo.Caption, "TQ: 9 (2) - TQ ratio: 3");
  EXPECT_EQ(state_.Title, "Velmora Tarnwick ver 1.2.1 [ #cards: 3 units: 3 (100%) ]");

  EXPECT_EQ(Buy(0, "+5.50 units"), "You can only buy 4 units");
  EXPECT_EQ(Line(0), "5.5 for 21, 3 bought");
  EXPECT_EQ(Points(state_), "79/21");

  EXPECT_EQ(Buy(0, "2.9"), "");
  EXPECT_EQ(Line(0), "2 for 14, 2 bought");
  EXPECT_EQ(Points(state_), "86/14");

  EXPECT_EQ(Buy(0, "4.5"), "");  // cut down before it meets the maximum
  EXPECT_EQ(Line(0), "4 for 28, 4 bought");

  EXPECT_EQ(Buy(0, " none "), "");
  EXPECT_EQ(Line(0), "none for 0, 0 bought");
  EXPECT_EQ(Points(state_), "100/0");
  EXPECT_EQ(Buy(0, ""), "");
  EXPECT_EQ(Points(state_), "100/0");
}

TEST_F(Purchase, ReleaseGivesBackTheTotalThatIsShown) {
  Buy(0, "3");
  grid_.UnitTotalLabel[0].Caption = "10.5 points";
  Buy(0, "0.0x");
  EXPECT_EQ(Line(0), "0.0x for 0, 0 bought");
  EXPECT_EQ(Points(state_), "89/11");  // 10.5 goes to 10
  // The counters are shown while the units are still counted.
  EXPECT_EQ(state_.Title, "Velmora Tarnwick ver 1.2.1 [ #cards: 3 units: 3 (100%) ]");
}

TEST_F(Purchase, RefusalNamesWhatTheRowMayGrowTo) {
  Buy(0, "3");
  state_.PointsLeft = 10;
  grid_.MaxLabel[0].Caption = "90";
  EXPECT_EQ(Buy(0, "5.7"), "Insufficient points left - max 4");
  EXPECT_EQ(Line(0), "5 for 21, 3 bought");
  EXPECT_EQ(Points(state_), "10/21");
  EXPECT_EQ(Buy(0, "4"), "");
  EXPECT_EQ(Points(state_), "3/28");
  EXPECT_EQ(Buy(1, "1"), "Insufficient points left - max 0");
  state_.PointsLeft = -5;
  EXPECT_EQ(Buy(1, "1"), "Insufficient points left - max -1");
  state_.PointsLeft = 30;
  EXPECT_EQ(Buy(1, "1"), "");  // to the last point
  EXPECT_EQ(state_.PointsLeft, 0);
}

TEST_F(Purchase, NegativeQuantitiesGivePoints) {
  EXPECT_EQ(Buy(0, "-1"), "");
  EXPECT_EQ(Line(0), "-1 for -7, -1 bought");
  EXPECT_EQ(Points(state_), "107/-7");
  EXPECT_EQ(Buy(0, "-1.5"), "");
  EXPECT_EQ(Line(0), "-2 for -14, -2 bought");
  EXPECT_EQ(Buy(0, "0.5"), "");  // cut down to 0, which is a purchase of none
  EXPECT_EQ(Line(0), "0 for 0, 0 bought");
  EXPECT_EQ(Points(state_), "100/0");
}

TEST_F(Purchase, WhatLeaves16BitsAndDividingByZeroAreErrors) {
  state_.GridFilling = true;  // nothing counts while code fills the grid
  EXPECT_EQ(Buy(0, " 99999 "), "");
  EXPECT_EQ(Line(0), " 99999  for 0, 0 bought");
  state_.GridFilling = false;
  EXPECT_THROW(Buy(0, "32768"), OverflowError);
  EXPECT_THROW(Buy(3, "40"), OverflowError);
  EXPECT_EQ(Buy(2, "300"), "");
  EXPECT_EQ(Points(state_), "100/0");
  state_.PointsLeft = -1;
  EXPECT_THROW(Buy(2, "301"), DivisionByZeroError);
  EXPECT_EQ(Line(2), "301 for 0, 300 bought");
}

TEST_F(Purchase, ALineWhoseTagWasEmptiedIsFilledAgainFirst) {
  for (int k = 0; k <= 22; ++k)
    grid_.Buy[k].Tag = "";
  for (int k = 0; k <= 22; ++k)
    grid_.UnitTotalLabel[k].Caption = "";
  EXPECT_EQ(Buy(1, " 2 "), "");
  EXPECT_EQ(Line(1), "2 for 60, 2 bought");
  EXPECT_EQ(Points(state_), "40/60");
  EXPECT_EQ(grid_.Buy[0].Tag, "1");

  // In the view of what is bought such a line shows no unit.
  for (int k = 0; k <= 22; ++k)
    grid_.Buy[k].Tag = "";
  state_.BaseUnits[2].Bought = 0;
  TickOption(state_.Units.ViewOption, 2);
  EXPECT_EQ(Buy(1, "1"), "");
  EXPECT_EQ(Points(state_), "40/60");
}

}  // namespace
}  // namespace tarnwick
