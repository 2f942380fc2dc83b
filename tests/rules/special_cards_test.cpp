// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/special_cards.h"

#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "rules/budget.h"
#include "support/sample_state.h"

namespace tarnwick {
namespace {

/// Card row 0 costs 2 (9 at most), row 1 costs 1.5 (4), row 2 has no numbers.
class Cards : public testing::Test {
 protected:
  /// Types a quantity into a row and leaves it; what was said comes back, "" for nothing.
  std::string Buy(int row, const std::string& text) {
    panel_.SpecBuy[row].Text = text;
    const bool cancel = SpecBuy_Validate(state_, sample_.Host, row);
    const Lines said = sample_.Host.Heard();
    EXPECT_EQ(cancel, !said.empty()) << text;
    return said.empty() ? "" : said.front();
  }

  /// What the row shows, how many cards are paid for, and the command points left.
  std::string Row(int row) const {
    return panel_.SpecBuy[row].Text + " (" + panel_.SpecBuy[row].Tag + " paid), " +
           NumberText(state_.CommandPts) + " left";
  }

  SampleState sample_{
      "command_pts=11\ntot_units=1\nunit1=HI,,3,1,,0,999,\n"
      "tot_special=3\nspecial1=RALLY,2,9\nspecial2=FLANK,1.5,4\nspecial3=COHESION\n"};
  ArmyState& state_ = sample_.State;
  CommandPanel& panel_ = state_.Command;
};

TEST_F(Cards, AreBoughtAndGivenBackForCommandPoints) {
  EXPECT_EQ(Buy(0, " 3.9 cards "), "");
  EXPECT_EQ(Row(0), "3 (3 paid), 5 left");
  EXPECT_EQ(panel_.LeaderFrame.Caption, " Leaders (pts left: 5)");
  EXPECT_EQ(Buy(0, "5"), "");
  EXPECT_EQ(Row(0), "5 (5 paid), 1 left");
  state_.CommandPts = 2;  // exactly what one more costs
  EXPECT_EQ(Buy(0, "6"), "");
  EXPECT_EQ(Row(0), "6 (6 paid), 0 left");
  Buy(0, "5");
  EXPECT_EQ(Buy(0, "8.5"), "Insufficient points left ");
  EXPECT_EQ(Row(0), "8 (5 paid), 2 left");
  EXPECT_EQ(Buy(0, "9.5"), "Insufficient points left ");  // cut down to the maximum first
  EXPECT_EQ(Buy(0, "10.5"), "You can only buy 9 cards");
  EXPECT_EQ(Row(0), "10.5 (5 paid), 2 left");
  EXPECT_EQ(Buy(0, "none"), "");
  EXPECT_EQ(Row(0), " (0 paid), 12 left");
  EXPECT_EQ(Buy(2, "1"), "You can only buy  cards");
}

TEST_F(Cards, ZeroStaysInABoxWithoutCardsOnly) {
  EXPECT_EQ(Buy(0, " 0 "), "");
  EXPECT_EQ(Row(0), "0 (0 paid), 11 left");
  Buy(0, "3");
  EXPECT_EQ(Buy(0, "0"), "");
  EXPECT_EQ(Row(0), " (0 paid), 11 left");
}

TEST_F(Cards, NegativeQuantitiesGivePointsAndAreNotReleased) {
  EXPECT_EQ(Buy(0, "-1.5"), "");
  EXPECT_EQ(Row(0), "-2 (-2 paid), 15 left");
  EXPECT_EQ(Buy(0, ""), "");
  EXPECT_EQ(Row(0), " (-2 paid), 15 left");
  EXPECT_EQ(Buy(0, "1"), "");
  EXPECT_EQ(Row(0), "1 (1 paid), 9 left");
}

TEST_F(Cards, ATagThatIsNoNumberIsAnError) {
  panel_.SpecBuy[0] = {.Text = "1", .Tag = "", .Visible = true};
  EXPECT_THROW(SpecBuy_Validate(state_, sample_.Host, 0), TypeMismatchError);
  panel_.SpecBuy[0].Text = "";
  EXPECT_THROW(SpecBuy_Validate(state_, sample_.Host, 0), TypeMismatchError);
  panel_.SpecBuy[0] = {.Text = "32768", .Tag = "0", .Visible = true};
  EXPECT_THROW(SpecBuy_Validate(state_, sample_.Host, 0), OverflowError);
}

TEST_F(Cards, TheTitleCountsWhatTheBoxesShow) {
  const std::string title = "Velmora Tarnwick ver 1.2.1 ";
  EXPECT_EQ(PrintDeckInfo(state_), title);
  Buy(0, "5");
  EXPECT_EQ(state_.Title, title + "[ #cards: 5 units: 0 (0%) ]");
  state_.BaseUnits[1].Bought = 20;
  EXPECT_EQ(PrintDeckInfo(state_), title + "[ #cards: 25 units: 20 (80%) ]");
  Buy(0, "8");  // refused, but it is in the box
  ShowPoints(state_);
  EXPECT_EQ(state_.Title, title + "[ #cards: 28 units: 20 (71%) ]");
  panel_.SpecBuy[0].Text = "0.5";
  panel_.SpecBuy[1].Text = "0.5";
  panel_.SpecBuy[2].Text = "1 card";
  EXPECT_EQ(PrintDeckInfo(state_), title + "[ #cards: 21 units: 20 (95%) ]");

  state_.BaseUnits[1].Bought = -3;
  EXPECT_EQ(PrintDeckInfo(state_), title + "[ #cards: 1 units: 0 (0%) ]");
  panel_.SpecBuy[2].Text = "-3";
  state_.BaseUnits[1].Bought = 2;
  EXPECT_EQ(PrintDeckInfo(state_), title + "[ #cards: -1 units: 2 (-200%) ]");
  panel_.SpecBuy[2].Text = "-2";
  EXPECT_THROW(PrintDeckInfo(state_), DivisionByZeroError);
  state_.BaseUnits[1].Bought = 327;
  EXPECT_NO_THROW(PrintDeckInfo(state_));
  state_.BaseUnits[1].Bought = 328;
  EXPECT_THROW(PrintDeckInfo(state_), OverflowError);
}

}  // namespace
}  // namespace tarnwick
