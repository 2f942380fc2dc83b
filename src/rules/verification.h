// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <limits>
#include <string>
#include <vector>

#include "base/host.h"
#include "base/int16.h"
#include "base/table.h"
#include "rules/army_state.h"

namespace tarnwick {

/// How many units there are of each `UnitTypeCode`.
using UnitCounts = Table<Int16, 0, 200>;

/// The units bought; a negative number of a row doesn't count. Throws OverflowError.
UnitCounts CountUnits(const ArmyState& state);

/// How many of the units a limit counts: those of its type and class, and those of its alternative
/// type without a class. Throws OverflowError.
Int16 CountFor(const LimitRec& limit, const UnitCounts& counts);

/// How many one unit counts for a limit; 2 when the limit names its type twice.
Int16 CountFor(const LimitRec& limit, const UnitRec& unit);

/// One line of the limits and the units that count for it.
struct LimitLine {
  LimitRec Limit;
  std::string Minimum;  ///< as the line shows it
  Int16 Have;
  bool IsMet() const;
};

/// The line `j`, 0 to `TotLimits` − 1. Throws SubscriptError when its tag names no limit,
/// OverflowError.
LimitLine CountLimit(const ArmyState& state, Int16 j, const UnitCounts& counts);

/// What an army lacks, in the words of verification, and the panel where that is mended.
struct Shortfall {
  std::string Message;
  Panel Where;
};

/// What the army lacks: units that limits ask for, in their order, then a leader; the first `most`
/// of it, later lines are not looked at. Throws as `CountLimit` does.
std::vector<Shortfall> Shortfalls(const ArmyState& state,
                                  std::size_t most = std::numeric_limits<std::size_t>::max());

/// Reports the first of the army's shortfalls. Says "Army is OK" when there is none and `confirm`
/// is true. Throws as `CountLimit` does.
[[nodiscard]] bool VerifyArmy(const ArmyState& state, Host& host, bool confirm);

void VerifyBtn_Click(const ArmyState& state, Host& host);

}  // namespace tarnwick
