// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/cheapest_army.h"

#include <algorithm>
#include <limits>
#include <map>

#include "rules/verification.h"

namespace tarnwick {
namespace {

/// More states than any sensible catalog has.
constexpr std::size_t mostStates = 200000;

constexpr int never = std::numeric_limits<int>::max();

/// How far all limits are met, as one number: 0 is not at all, the last one is in full.
class States {
 public:
  explicit States(const std::vector<LimitRec>& limits) {
    for (const LimitRec& limit : limits) {
      minima_.push_back(static_cast<std::size_t>(std::max(0, limit.Minimum.Value())));
      count_ *= minima_.back() + 1;
      if (count_ > mostStates) return;
    }
  }

  std::size_t Count() const { return count_; }

  /// For every state the one after a unit that counts so much for each limit.
  std::vector<std::size_t> After(const std::vector<std::size_t>& counted) const {
    std::vector<std::size_t> after(count_);
    for (std::size_t state = 0; state < count_; ++state) {
      std::size_t step = 1;
      for (std::size_t i = 0; i < minima_.size(); ++i) {
        const std::size_t met = state / step % (minima_[i] + 1);
        after[state] += std::min(minima_[i], met + counted[i]) * step;
        step *= minima_[i] + 1;
      }
    }
    return after;
  }

  std::size_t MostUnits() const {
    return minima_.empty() ? 0 : *std::max_element(minima_.begin(), minima_.end());
  }

 private:
  std::vector<std::size_t> minima_;
  std::size_t count_ = 1;
};

}  // namespace

std::optional<int> CheapestLegalArmy(const std::vector<UnitRec>& units,
                                     const std::vector<LimitRec>& limits) {
  const States states(limits);
  if (states.Count() > mostStates) return std::nullopt;
  // The prices of all units that count alike.
  std::map<std::vector<std::size_t>, std::vector<int>> prices;
  for (const UnitRec& unit : units) {
    std::vector<std::size_t> counted;
    counted.reserve(limits.size());
    for (const LimitRec& limit : limits)
      counted.push_back(static_cast<std::size_t>(CountFor(limit, unit).Value()));
    if (std::ranges::count(counted, 0U) == std::ssize(counted)) continue;
    const auto copies =
        std::min(static_cast<std::size_t>(unit.MaxCount.Value()), states.MostUnits());
    prices[counted].insert(prices[counted].end(), copies, unit.Cost.Value());
  }
  std::vector<int> cheapest(states.Count(), never);
  cheapest.front() = 0;
  for (auto& [counted, unitPrices] : prices) {
    const auto after = states.After(counted);
    std::ranges::sort(unitPrices);
    unitPrices.resize(std::min(unitPrices.size(), states.MostUnits()));
    for (const int price : unitPrices) {
      for (std::size_t state = states.Count(); state-- > 0;) {
        if (cheapest[state] == never || after[state] == state) continue;
        cheapest[after[state]] = std::min(cheapest[after[state]], cheapest[state] + price);
      }
    }
  }
  return cheapest.back();
}

}  // namespace tarnwick
