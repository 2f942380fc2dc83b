// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

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

/// Checks the army against the base army's limits, in their order, then for a leader, and reports
/// the first failure. Says "Army is OK" when all is well and `confirm` is true. Throws
/// SubscriptError for a limit line whose tag names no limit, OverflowError.
[[nodiscard]] bool VerifyArmy(const ArmyState& state, Host& host, bool confirm);

void VerifyBtn_Click(const ArmyState& state, Host& host);

}  // namespace tarnwick
