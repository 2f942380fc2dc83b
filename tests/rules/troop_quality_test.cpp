// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/troop_quality.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "rules/army_state.h"

namespace tarnwick {
namespace {

struct Row {
  const char *Type, *TQ, *Size;
  int Bought;
};

std::string LineFor(const std::vector<Row>& rows) {
  ArmyState state{"/"};
  for (const Row& row : rows) {
    UnitRec& unit = state.BaseUnits[++state.TotUnits];
    unit.UnitType = row.Type;
    unit.TQ = row.TQ;
    unit.Size = row.Size;
    unit.Bought = row.Bought;
  }
  // What lies behind the army's rows is not counted.
  state.BaseUnits[state.TotUnits + 1].Bought = 1;
  return PrintTQInfo(state);
}

TEST(PrintTQInfo, SumsUpWhatIsBought) {
  const struct {
    std::vector<Row> Rows;
    const char* Line;
  } cases[] = {
      {{}, ""},
      {{{"HI", "3", "1", 0}, {"HI", "x", "x", -2}}, ""},
      {{{"HI", "3", "1", 10}, {"SK", "5", "1", 4}}, "TQ: 34 (10) - TQ ratio: 2.43"},
      {{{"HI", "34", "8", 1}}, "TQ: 34 (10) - TQ ratio: 4.25"},
      {{{"HI", "34", "17", 1}}, "TQ: 34 (10) - TQ ratio: 2"},
      {{{"HI", "7", "2", 1}}, "TQ: 7 (2) - TQ ratio: 3.5"},
      {{{"HI", "-7", "2", 1}}, "TQ: -7 (-3) - TQ ratio: -3.5"},  // cut down, not cut off
      {{{"HI", "1", "8", 1}}, "TQ: 1 (0) - TQ ratio: 0.12"},     // 0.125 goes to the even cent
      {{{"PH", "4", "2", 2}, {"EL", "9", "4", 1}}, "TQ: 18 (5) - TQ ratio: 2.25"},
      // The size is rounded at every row.
      {{{"HI", "3", "0.5", 1}, {"MI", "3", "0.5", 1}}, ""},
      {{{"HI", "3", "1.5", 1}, {"MI", "3", "0.5", 1}}, "TQ: 6 (1) - TQ ratio: 3"},
      {{{"HI", "3", "0.5", 2}}, "TQ: 6 (1) - TQ ratio: 6"},
      {{{"HI", "1092", "1", 1}}, "TQ: 1092 (327) - TQ ratio: 1092"}};
  for (const auto& c : cases)
    EXPECT_EQ(LineFor(c.Rows), c.Line);
}

TEST(PrintTQInfo, ErrorsReachTheCaller) {
  EXPECT_THROW(LineFor({{"HI", "1093", "1", 1}}), OverflowError);
  EXPECT_THROW(LineFor({{"HI", "200", "1", 200}}), OverflowError);
  EXPECT_THROW(LineFor({{"HI", "1", "200", 200}}), OverflowError);
  EXPECT_THROW(LineFor({{"HI", "1", "", 1}}), TypeMismatchError);
  EXPECT_THROW(LineFor({{"HI", "", "1", 1}}), TypeMismatchError);
}

}  // namespace
}  // namespace tarnwick
