// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/limits.h"

#include "rules/unit_types.h"

namespace tarnwick {

UnitCounts CountUnits(const ArmyState& state) {
  UnitCounts counts;
  for (Int16 r = 1; r <= state.TotUnits; ++r) {
    const UnitRec& unit = state.BaseUnits[r];
    if (unit.Bought > 0) counts[UnitTypeCode(unit.UnitType, unit.UnitClass)] += unit.Bought;
  }
  return counts;
}

Int16 CountFor(const LimitRec& limit, const UnitCounts& counts) {
  Int16 count = counts[UnitTypeCode(limit.TypeA, limit.Class)];
  if (!limit.TypeB.empty()) count += counts[UnitTypeCode(limit.TypeB, "")];
  return count;
}

Int16 CountFor(const LimitRec& limit, const UnitRec& unit) {
  UnitCounts one;
  one[UnitTypeCode(unit.UnitType, unit.UnitClass)] = 1;
  return CountFor(limit, one);
}

}  // namespace tarnwick
