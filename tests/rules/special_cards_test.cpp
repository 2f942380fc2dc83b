// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/special_cards.h"

#include "rules/budget.h"
#include "support/sample_state.h"

namespace tarnwick {

/// Card row 0 costs 2 (9 at most), row 1 costs 1.5 (4), row 2 has no numbers.
struct Cards : testing::Test, SampleState {
  Cards() : SampleState("Cards") {}

  /// Types a quantity into a row and leaves it. What was said, if that was refused; what the row
  /// shows, how many cards are paid for, and the command points left.
  std::string Buy(int row, const std::string& text) {
    TextBox& box = Command.SpecBuy[row];
    box.Text = text;
    const std::string refusal = SpecBuy_Validate(State, Host, row) ? Host.Heard().at(0) + ": " : "";
    return refusal + Joined(box.Text, box.Tag, State.CommandPts);
  }
};

TEST_F(Cards, AreBoughtAndGivenBackForCommandPoints) {
  EXPECT_EQ(Buy(0, " 3.9 cards "), "3|3|5");
  EXPECT_EQ(Command.LeaderFrame.Caption, " Leaders (pts left: 5)");
  State.CommandPts = 4;  // exactly what two more cost
  EXPECT_EQ(Buy(0, "5"), "5|5|0");
  EXPECT_EQ(Buy(0, "9.5"), "Insufficient points left : 9|5|0");  // cut down before the maximum
  EXPECT_EQ(Buy(0, "10.5"), "You can only buy 9 cards: 10.5|5|0");
  EXPECT_EQ(Buy(0, "none"), "|0|10");
  EXPECT_EQ(Command.LeaderFrame.Caption, " Leaders (pts left: 10)");
  EXPECT_EQ(Buy(0, " 0 "), "0|0|10");  // stays in a box without cards
  EXPECT_EQ(Buy(0, "-1.5"), "-2|-2|14");
  EXPECT_EQ(Buy(0, ""), "|-2|14");  // what gave points is not released
  EXPECT_EQ(Buy(2, "1"), "You can only buy  cards: 1|0|14");
  // Prices are rounded to the even neighbour.
  State.CommandPts = 11;
  EXPECT_EQ(Buy(1, "1"), "1|1|9");  // 1.5 goes to 2
  EXPECT_EQ(Buy(1, "3"), "3|3|7");  // 4.5 goes to 4
  EXPECT_EQ(Buy(1, "5"), "You can only buy 4 of them cards: 5|3|7");
  EXPECT_EQ(Buy(1, ""), "|0|12");  // 11.5 goes to 12
  Command.SpecBuy[0].Tag = "";
  for (const char* text : {"1", ""})
    EXPECT_THROW(Buy(0, text), TypeMismatchError);
  EXPECT_THROW(Buy(0, "32768"), OverflowError);
}

TEST_F(Cards, TheTitleCountsWhatTheBoxesShow) {
  const auto deck = [this](int bought, const char* first, const char* last) {
    State.BaseUnits[1].Bought = bought;
    Command.SpecBuy[0].Text = first;
    Command.SpecBuy[2].Text = last;
    ShowPoints(State);
    EXPECT_TRUE(State.Title.starts_with("Velmora Tarnwick ver 1.2.1 "));
    return State.Title.substr(27);
  };
  EXPECT_EQ(deck(0, "", ""), "");
  EXPECT_EQ(deck(2, "", "1 card"), "[ #cards: 3 units: 2 (66%) ]");  // paid for or not; cut down
  EXPECT_EQ(deck(-3, "", "1"), "[ #cards: 1 units: 0 (0%) ]");
  EXPECT_EQ(deck(2, "", "-3"), "[ #cards: -1 units: 2 (-200%) ]");
  // The running sum is rounded at every row: 0.5 goes to 0, 1.5 to 2.
  EXPECT_EQ(deck(1, "0.5", "0.5"), "[ #cards: 1 units: 1 (100%) ]");
  EXPECT_EQ(deck(1, "1", "0.5"), "[ #cards: 3 units: 1 (33%) ]");
  EXPECT_EQ(ErrorOf([&] { deck(2, "", "-2"); }), "Division by zero");
  EXPECT_THROW(deck(328, "", ""), OverflowError);  // 32800 parts of a hundred
}

}  // namespace tarnwick
