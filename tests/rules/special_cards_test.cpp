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
  /// Types a quantity into a row and leaves it; what was said comes back, or else what the row
  /// shows, how many cards are paid for, and the command points left.
  std::string Buy(int row, const std::string& text) {
    panel_.SpecBuy[row].Text = text;
    const bool cancel = SpecBuy_Validate(state_, sample_.Host, row);
    const Lines said = sample_.Host.Heard();
    EXPECT_EQ(cancel, !said.empty()) << text;
    return said.empty() ? Row(row) : said.front();
  }
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
  EXPECT_EQ(Buy(0, " 3.9 cards "), "3 (3 paid), 5 left");
  EXPECT_EQ(panel_.LeaderFrame.Caption, " Leaders (pts left: 5)");
  state_.CommandPts = 4;  // exactly what two more cost
  EXPECT_EQ(Buy(0, "5"), "5 (5 paid), 0 left");
  EXPECT_EQ(Buy(0, "9.5"), "Insufficient points left ");  // cut down to the maximum first
  EXPECT_EQ(Row(0), "9 (5 paid), 0 left");
  EXPECT_EQ(Buy(0, "10.5"), "You can only buy 9 cards");
  EXPECT_EQ(Row(0), "10.5 (5 paid), 0 left");
  EXPECT_EQ(Buy(0, "none"), " (0 paid), 10 left");
  EXPECT_EQ(Buy(0, " 0 "), "0 (0 paid), 10 left");  // stays in a box without cards
  EXPECT_EQ(Buy(0, "-1.5"), "-2 (-2 paid), 14 left");
  EXPECT_EQ(Buy(0, ""), " (-2 paid), 14 left");  // what gave points is not released
  EXPECT_EQ(Buy(2, "1"), "You can only buy  cards");
  panel_.SpecBuy[0].Tag = "";
  EXPECT_THROW(Buy(0, "1"), TypeMismatchError);
  EXPECT_THROW(Buy(0, ""), TypeMismatchError);
  EXPECT_THROW(Buy(0, "32768"), OverflowError);
}

TEST_F(Cards, PricesAreRoundedToTheEvenNeighbour) {
  EXPECT_EQ(Buy(1, "1"), "1 (1 paid), 9 left");  // 1.5 goes to 2
  EXPECT_EQ(Buy(1, "3"), "3 (3 paid), 7 left");  // 4.5 goes to 4
  EXPECT_EQ(Buy(1, ""), " (0 paid), 12 left");   // 11.5 goes to 12
}

TEST_F(Cards, TheTitleCountsWhatTheBoxesShow) {
  const std::string title = "Velmora Tarnwick ver 1.2.1 ";
  const auto deck = [&](int bought, const char* box) {
    state_.BaseUnits[1].Bought = bought;
    panel_.SpecBuy[2].Text = box;
    ShowPoints(state_);
    return state_.Title;
  };
  EXPECT_EQ(deck(0, ""), title);
  EXPECT_EQ(deck(20, "8 cards"), title + "[ #cards: 28 units: 20 (71%) ]");  // paid for or not
  EXPECT_EQ(deck(-3, "1"), title + "[ #cards: 1 units: 0 (0%) ]");
  EXPECT_EQ(deck(2, "-3"), title + "[ #cards: -1 units: 2 (-200%) ]");
  panel_.SpecBuy[0].Text = panel_.SpecBuy[1].Text = "0.5";  // rounded one by one
  EXPECT_EQ(deck(20, "1"), title + "[ #cards: 21 units: 20 (95%) ]");
  EXPECT_THROW(deck(2, "-2"), DivisionByZeroError);
  EXPECT_NO_THROW(deck(327, ""));
  EXPECT_THROW(deck(328, ""), OverflowError);
}

}  // namespace
}  // namespace tarnwick
