// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <random>

#include <QString>

namespace tarnwick {

/// Chance that is the same for a seed on every machine.
class Dice {
 public:
  explicit Dice(unsigned seed) : generator_(seed) {}

  /// 0 to `sides` − 1.
  int Roll(qsizetype sides) {
    return static_cast<int>(generator_() % static_cast<unsigned>(sides));
  }
  bool OneIn(int sides) { return Roll(sides) == 0; }
  template <typename Range>
  const auto& Pick(const Range& range) {
    return *(std::begin(range) + Roll(std::ssize(range)));
  }

 private:
  std::mt19937 generator_;
};

/// What a player, a cat or an enemy would enter into a box: numbers as a rule.
QString AnyText(Dice& dice);

}  // namespace tarnwick
