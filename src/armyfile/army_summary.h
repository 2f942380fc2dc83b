// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "armyfile/working_army.h"
#include "rules/verification.h"

namespace tarnwick {

/// Points of one kind.
struct Budget {
  Int16 Spent, Left;
  int Whole() const { return Spent.Value() + Left.Value(); }
};

/// What a limit line says besides its captions.
struct LimitSummary {
  Int16 Have;
  bool Met;
  std::string Counts;  ///< which units count and how many there are; then those that only seem to
};

/// The army at a glance. What the rules can't work out is left out.
struct ArmySummary {
  bool Begun;                           ///< there is an army at all
  std::optional<Budget> Army, Command;  ///< points; command points go to leader, cards and terrain
  std::vector<LimitSummary> Limits;     ///< by line
  std::string Leader;                   ///< "" without one
  std::string Cards;                    ///< "2 RALLY, 1 FLANK"
  std::string Deck;                     ///< "13 cards, 13 units (100%)"
  std::optional<std::vector<Shortfall>> Missing;
};

/// Never throws a RuntimeError.
ArmySummary Summarize(const WorkingArmy& work);

}  // namespace tarnwick
