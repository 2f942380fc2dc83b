// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/host.h"
#include "rules/army_state.h"

namespace tarnwick {

/// Fills the state from the section `BaseArmyName` of the base army catalog. A missing leader or
/// unit row is reported; without a unit row the army has no units. A row that breaks the catalog's
/// rules, or is one more than the state or the window has room for, ends the loading silently:
/// `TotUnits` and `TotLimits` are then the rows that were read before it.
void LoadBaseArmy(ArmyState& state, const Disk& disk, Host& host);

}  // namespace tarnwick
