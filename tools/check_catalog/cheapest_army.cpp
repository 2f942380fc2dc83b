// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/cheapest_army.h"

#include <algorithm>
#include <map>

#include "rules/unit_types.h"

namespace tarnwick {
namespace {

/// How many units each limit still asks for.
using Open = std::vector<int>;

/// More states than any sensible catalog has.
constexpr std::size_t mostStates = 200000;

bool Counts(const LimitRec& limit, const UnitRec& unit) {
  const Int16 code = UnitTypeCode(unit.UnitType, unit.UnitClass);
  return code == UnitTypeCode(limit.TypeA, limit.Class) ||
         (!limit.TypeB.empty() && code == UnitTypeCode(limit.TypeB, ""));
}

/// One more unit of the row. False when no limit needs it any more.
bool Take(Open& open, const UnitRec& unit, const std::vector<LimitRec>& limits) {
  bool useful = false;
  for (std::size_t i = 0; i < limits.size(); ++i) {
    if (open[i] == 0 || !Counts(limits[i], unit)) continue;
    --open[i];
    useful = true;
  }
  return useful;
}

}  // namespace

std::optional<int> CheapestLegalArmy(const std::vector<UnitRec>& units,
                                     const std::vector<LimitRec>& limits) {
  Open start;
  for (const LimitRec& limit : limits)
    start.push_back(std::max(0, limit.Minimum.Value()));
  std::map<Open, int> cheapest = {{start, 0}};
  for (const UnitRec& unit : units) {
    // Row by row: every state so far, with none to all of the row's units added.
    std::map<Open, int> next = cheapest;
    for (const auto& [open, cost] : cheapest) {
      Open state = open;
      int price = cost;
      for (int copy = 0; copy < unit.MaxCount.Value() && Take(state, unit, limits); ++copy) {
        price += unit.Cost.Value();
        const auto [found, isNew] = next.try_emplace(state, price);
        if (!isNew) found->second = std::min(found->second, price);
      }
    }
    cheapest = std::move(next);
    if (cheapest.size() > mostStates) return std::nullopt;
  }
  const auto done = cheapest.find(Open(limits.size(), 0));
  if (done == cheapest.end()) return std::nullopt;
  return done->second;
}

}  // namespace tarnwick
