// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/verification.h"

#include <string>

#include "base/numbers.h"
#include "rules/unit_types.h"

namespace tarnwick {
namespace {

/// A limit with a class counts its alternative type too but names the class alone.
std::string LimitMessage(const LimitRec& limit, const std::string& minimum) {
  const std::string start = "You must buy at least " + minimum + " units of ";
  if (!limit.Class.empty()) return start + "class " + limit.Class;
  if (!limit.TypeB.empty()) return start + "type " + limit.TypeA + " or " + limit.TypeB;
  return start + "type " + limit.TypeA;
}

}  // namespace

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

bool VerifyArmy(const ArmyState& state, Host& host, bool confirm) {
  const UnitCounts counts = CountUnits(state);
  for (Int16 j = 0; j < state.TotLimits; ++j) {
    const LimitRec& limit = state.Limits[LenientInt16(state.Units.TypeLimit[j].Tag)];
    const std::string& minimum = state.Units.MinLimit[j].Caption;
    if (LenientNumber(minimum) > CountFor(limit, counts).Value()) {
      host.Message(LimitMessage(limit, minimum));
      return false;
    }
  }
  if (state.SelectedLeader == -1) {
    host.Message("Please select a Leader");
    return false;
  }
  if (confirm) host.Message("Army is OK");
  return true;
}

void VerifyBtn_Click(const ArmyState& state, Host& host) {
  static_cast<void>(VerifyArmy(state, host, true));
}

}  // namespace tarnwick
