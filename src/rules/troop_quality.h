// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "rules/army_state.h"

namespace tarnwick {

/// The line on the troop quality of the units bought: their TQ points, 30 per cent of them, and
/// the points per unit of size. "" while the sizes add up to 0. Throws OverflowError, and
/// TypeMismatchError for a bought row whose size or TQ is no number.
std::string PrintTQInfo(const ArmyState& state);

}  // namespace tarnwick
