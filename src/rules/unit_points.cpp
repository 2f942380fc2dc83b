// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_points.h"

#include "base/numbers.h"

namespace tarnwick {

Int16 UnitPoints(const ArmyState& state, Int16 row) {
  const UnitRec& unit = state.BaseUnits[row];
  if (unit.UnitType == "SK") return 1;
  if (unit.UnitType == "EL" || unit.UnitType == "CH") return 2;
  if (unit.UnitType == "PH") return RoundToInt16(StrictNumber(unit.TQ) * 2);
  return StrictInt16(unit.TQ);
}

Int16 RowCost(Int16 quantity, std::string_view costText) {
  return RoundToInt16(LenientNumber(costText) * quantity.Value());
}

}  // namespace tarnwick
