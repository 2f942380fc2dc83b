// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/verification.h"

#include "base/numbers.h"
#include "rules/unit_types.h"

namespace tarnwick {
namespace {

/// A limit with a class counts its alternative type too but names the class alone.
std::string LimitMessage(const LimitLine& line) {
  const LimitRec& limit = line.Limit;
  const std::string start = "You must buy at least " + line.Minimum + " units of ";
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

bool LimitLine::IsMet() const {
  return LenientNumber(Minimum) <= Have.Value();
}

LimitLine CountLimit(const ArmyState& state, Int16 j, const UnitCounts& counts) {
  const LimitRec& limit = state.Limits[LenientInt16(state.Units.TypeLimit[j].Tag)];
  return {limit, state.Units.MinLimit[j].Caption, CountFor(limit, counts)};
}

std::vector<Shortfall> Shortfalls(const ArmyState& state, std::size_t most) {
  std::vector<Shortfall> missing;
  const UnitCounts counts = CountUnits(state);
  for (Int16 j = 0; j < state.TotLimits && missing.size() < most; ++j) {
    const LimitLine line = CountLimit(state, j, counts);
    if (!line.IsMet()) missing.push_back({LimitMessage(line), Panel::Units});
  }
  if (state.SelectedLeader == -1 && missing.size() < most) {
    missing.push_back({"Please select a Leader", Panel::Command});
  }
  return missing;
}

bool VerifyArmy(const ArmyState& state, Host& host, bool confirm) {
  const std::vector<Shortfall> missing = Shortfalls(state, 1);
  if (!missing.empty()) {
    host.Message(missing.front().Message);
  } else if (confirm) {
    host.Message("Army is OK");
  }
  return missing.empty();
}

void VerifyBtn_Click(const ArmyState& state, Host& host) {
  static_cast<void>(VerifyArmy(state, host, true));
}

}  // namespace tarnwick
