// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/troop_quality.h"

#include "support/sample_state.h"

namespace tarnwick {

struct Row {
  const char *Type, *TQ, *Size;
  int Bought;
};

std::string LineFor(const std::vector<Row>& rows) {
  ArmyState state;
  for (const auto& [type, tq, size, bought] : rows) {
    UnitRec& unit = state.BaseUnits[++state.TotUnits];
    unit = ParseIdentity(std::string(type) + ",," + tq + "," + size);
    unit.Bought = bought;
  }
  state.BaseUnits[state.TotUnits + 1].Bought = 1;  // behind the army's rows, not counted
  return PrintTQInfo(state);
}

TEST(PrintTQInfo, SumsUpWhatIsBought) {
  const struct {
    std::vector<Row> Rows;
    const char* Line;
  } cases[] = {
      {{}, ""},
      {{{"HI", "3", "1", 0}, {"HI", "x", "x", -2}}, ""},
      {{{"HI", "3", "1", 10}, {"SK", "none", "1", 4}}, "TQ: 34 (10) - TQ ratio: 2.43"},
      {{{"EL", "9", "1", 1}, {"CH", "", "1", 1}}, "TQ: 4 (1) - TQ ratio: 2"},
      // Quality is rounded to the even neighbour, that of the phalanx after doubling.
      {{{"PH", "2.75", "1", 1}}, "TQ: 6 (1) - TQ ratio: 6"},
      {{{"HI", "2.5", "1", 3}}, "TQ: 6 (1) - TQ ratio: 2"},
      {{{"sk", " 3.5 ", "1", 1}}, "TQ: 4 (1) - TQ ratio: 4"},
      {{{"HI", "-7", "2", 1}}, "TQ: -7 (-3) - TQ ratio: -3.5"},  // cut down, not cut off
      {{{"HI", "9", "72", 1}}, "TQ: 9 (2) - TQ ratio: 0.12"},    // 2.7, and 0.125 to the even cent
      // The running sum of sizes is rounded at every row.
      {{{"HI", "3", "0.5", 1}, {"MI", "3", "0.5", 1}}, ""},
      {{{"HI", "3", "1", 1}, {"MI", "3", "0.5", 1}}, "TQ: 6 (1) - TQ ratio: 3"},
      {{{"HI", "1092", "1", 1}}, "TQ: 1092 (327) - TQ ratio: 1092"}};
  for (const auto& c : cases)
    EXPECT_EQ(LineFor(c.Rows), c.Line);
  for (const Row& row : {Row{"HI", "1093", "1", 1}, Row{"HI", "1", "200", 200}})
    EXPECT_THROW(LineFor({row}), OverflowError) << row.Size;
  for (const Row& row : {Row{"HI", "1", "", 1}, Row{"HI", "", "1", 1}, Row{"PH", "5x", "1", 1}})
    EXPECT_THROW(LineFor({row}), TypeMismatchError) << row.TQ;
}

}  // namespace tarnwick
