// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/cheapest_army.h"

#include <algorithm>
#include <map>

#include "rules/verification.h"

namespace tarnwick {
namespace {

/// How many units each limit still asks for.
using Open = std::vector<int>;

/// More states than any sensible catalog has.
constexpr std::size_t mostStates = 200000;

/// One more unit, which counts so much for each limit. False when no limit needs it any more.
bool Take(Open& open, const std::vector<int>& counted) {
  bool useful = false;
  for (std::size_t i = 0; i < open.size(); ++i) {
    useful |= open[i] > 0 && counted[i] > 0;
    open[i] = std::max(0, open[i] - counted[i]);
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
    std::vector<int> counted;
    counted.reserve(limits.size());
    for (const LimitRec& limit : limits)
      counted.push_back(CountFor(limit, unit).Value());
    // Row by row: every state so far, with none to all of the row's units added.
    std::map<Open, int> next = cheapest;
    for (const auto& [open, cost] : cheapest) {
      Open state = open;
      int price = cost;
      for (int copy = 0; copy < unit.MaxCount.Value() && Take(state, counted); ++copy) {
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
