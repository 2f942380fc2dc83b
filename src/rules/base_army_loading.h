// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/host.h"
#include "rules/army_state.h"

namespace tarnwick {

/// Fills the state from the section `BaseArmyName` of the base army catalog. A missing unit row is
/// reported and leaves the army without units; a row that breaks the catalog's rules ends the
/// loading silently with what was read so far.
void LoadBaseArmy(ArmyState& state, Host& host);

// What LoadBaseArmy is made of. A row in excess of its table or of the window's controls throws
// SubscriptError, a number that is none TypeMismatchError.

/// A missing leader row is reported; the leaders before it stay.
void LoadLeaders(ArmyState& state, Host& host);
void LoadLimits(ArmyState& state);
void LoadSpecials(ArmyState& state);

}  // namespace tarnwick
