// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "rules/army_state.h"

namespace tarnwick {

/// Shows the counters wherever they are seen: the points left, the leader frame's caption, the
/// line on troop quality, the window's title. Called after every change of a counter.
void ShowPoints(ArmyState& state);

}  // namespace tarnwick
