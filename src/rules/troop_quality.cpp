// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/troop_quality.h"

#include "base/numbers.h"
#include "rules/unit_points.h"

namespace tarnwick {

std::string PrintTQInfo(const ArmyState& state) {
  Int16 armyTq;
  Int16 armySize;
  for (Int16 r = 1; r <= state.TotUnits; ++r) {
    const UnitRec& unit = state.BaseUnits[r];
    if (unit.Bought <= 0) continue;
    // Rounded at every row: two rows of half a size each come to nothing.
    armySize = RoundToInt16(StrictNumber(unit.Size) * unit.Bought.Value() + armySize.Value());
    armyTq += unit.Bought * UnitPoints(state, r);
  }
  if (armySize == 0) return "";
  const double percentOfTq = Int((armyTq * 30).Value() / 100.0);
  const double ratio = RoundToCents(double{1} * armyTq.Value() / armySize.Value());
  return "TQ: " + NumberText(armyTq) + " (" + NumberText(percentOfTq) +
         ") - TQ ratio: " + NumberText(ratio);
}

}  // namespace tarnwick
