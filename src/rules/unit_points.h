// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "base/int16.h"
#include "rules/army_state.h"

namespace tarnwick {

/// Troop-quality points of one unit of a row of `BaseUnits`. Skirmishers, elephants and chariots
/// count a fixed number whatever their TQ, phalanxes twice their TQ. Throws SubscriptError for a
/// row outside 1 to 200, TypeMismatchError for a TQ that is no number, OverflowError.
Int16 UnitPoints(const ArmyState& state, Int16 row);

/// Army points for `quantity` units of which one costs the number in `costText` (lenient).
/// Throws OverflowError.
Int16 RowCost(Int16 quantity, std::string_view costText);

}  // namespace tarnwick
