// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_purchase.h"

#include "support/sample_state.h"

namespace tarnwick {

/// Infantry lines: 0 costs 7 (4 at most), 1 costs 30 (90), 2 costs nothing (500), 3 costs 1000.
struct Purchase : testing::Test, SampleState {
  Purchase() : SampleState("Purchase") {}

  /// Types a quantity into a line and leaves it. What was said, if that was refused; quantity and
  /// total that the line shows, how many are bought, and the points.
  std::string Buy(int line, const std::string& text) {
    std::string& shown = Units.Buy[line].Text = text;
    const std::string refusal =
        Buy_Validate(State, Store, Host, line) ? Host.Heard().at(0) + ": " : "";
    return refusal + Joined(shown, Units.UnitTotalLabel[line].Caption,
                            State.BaseUnits[line + 1].Bought, Points());
  }
};

TEST_F(Purchase, QuantitiesAreCutDownPaidForAndGivenBack) {
  EXPECT_EQ(Buy(0, "  3 units "), "3|21|3|79/21");
  EXPECT_EQ(Units.TotalCost.Caption, "Points left: 79 of 100");
  EXPECT_EQ(Units.TQinfo.Caption, "TQ: 9 (2) - TQ ratio: 3");
  EXPECT_EQ(Buy(0, "+5.50 units"), "You can only buy 4 units: 5.5|21|3|79/21");
  EXPECT_EQ(Buy(0, "2.9"), "2|14|2|86/14");
  EXPECT_EQ(Buy(0, "4.5"), "4|28|4|72/28");  // cut down before it meets the maximum
  EXPECT_EQ(Buy(0, " none "), "none|0|0|100/0");
  EXPECT_EQ(Units.TotalCost.Caption, "Points left: 100 of 100");
  EXPECT_EQ(Buy(0, "-1.5"), "-2|-14|-2|114/-14");  // nobody refuses it
  EXPECT_EQ(Buy(0, "0.5"), "0|0|0|100/0");         // cut down to a purchase of none
  State.GridFilling = true;                        // nothing counts while code fills the grid
  EXPECT_EQ(Buy(0, " 99999 "), " 99999 |0|0|100/0");
}

TEST_F(Purchase, WhatTheLineShowsCountsAsFarAsItIsANumber) {
  Buy(0, "3");
  Units.UnitTotalLabel[0].Caption = "10.5 points";  // 10
  EXPECT_EQ(Buy(0, "0.0x"), "0.0x|0|0|89/11");
  EXPECT_EQ(State.Title, "Velmora Tarnwick ver 1.2.1 [ #cards: 3 units: 3 (100%) ]");  // still
  Units.CostLabel[0].Caption = "2.5 each";
  Units.MaxLabel[0].Caption = "3.5 at most";
  EXPECT_EQ(Buy(0, "3"), "3|8|3|81/19");  // 7.5
  Units.UnitTotalLabel[0].Caption = "1 or so";
  EXPECT_EQ(Buy(0, "1"), "1|2|1|80/20");  // 2.5
  EXPECT_EQ(Buy(0, "4"), "You can only buy 3.5 at most units: 4|2|1|80/20");
}

TEST_F(Purchase, RefusalNamesWhatTheRowMayGrowTo) {
  Units.MaxLabel[0].Caption = "90";
  Buy(0, "3");
  State.PointsLeft = 10;
  EXPECT_EQ(Buy(0, "5.7"), "Insufficient points left - max 4: 5|21|3|10/21");
  EXPECT_EQ(Buy(0, "4"), "4|28|4|3/28");
  State.PointsLeft = 30;
  EXPECT_EQ(Buy(1, "1"), "1|30|1|0/58");  // to the last point
  State.PointsLeft = -65;
  EXPECT_EQ(Buy(1, "2"), "Insufficient points left - max -2: 2|30|1|-65/58");
  EXPECT_THROW(Buy(0, "32768"), OverflowError);
  EXPECT_THROW(Buy(3, "40"), OverflowError);
  EXPECT_THROW(Buy(2, "1"), DivisionByZeroError);
  EXPECT_EQ(Buy(2, "0"), "0|0|0|-65/58");
  Units.Buy[2].Tag = "3 or so";
  EXPECT_THROW(Buy(2, "1"), TypeMismatchError);
}

TEST_F(Purchase, AfterAResetCountsForWhatTheLinesShow) {
  Load("Twins");
  for (const int shown : {2, 3, 4, 5})
    State.BaseUnits[shown].Bought = 1;
  TickOption(Units.ViewOption, 2);
  ShowSelectUnits(State, Store);
  for (int line = 0; line < 4; ++line) {
    Units.Buy[line].Tag = Units.UnitTotalLabel[line].Caption = "";
    State.BaseUnits[line + 2].Bought = 0;
  }
  const auto buy = [this](int line, const char* text) {
    Units.Buy[line].Text = text;
    EXPECT_EQ(Buy_Validate(State, Store, Host, line), std::string(text) == "5");
    const auto bought = [this](int row) { return State.BaseUnits[row].Bought; };
    return Joined(bought(1), bought(2), bought(3), bought(4), bought(5), Points());
  };
  EXPECT_EQ(buy(2, "5"), "0|0|0|0|0|100/0");
  EXPECT_EQ(Host.Heard(), Lines{"You can only buy 4 units"});
  EXPECT_EQ(buy(2, "2"), "0|0|0|2|0|86/14");  // one of two rows alike
  EXPECT_EQ(buy(0, "1"), "0|1|0|2|0|79/21");
  EXPECT_EQ(buy(3, "1"), "0|1|0|2|1|72/28");
  Units.Buy[1].Tag = Units.TypeLabel[1].Caption = "";  // shows none of the army's units
  EXPECT_EQ(buy(1, "1"), "0|1|0|2|1|72/28");
}

}  // namespace tarnwick
