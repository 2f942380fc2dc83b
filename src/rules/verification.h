// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/host.h"
#include "rules/army_state.h"

namespace tarnwick {

/// Checks the army against the base army's limits, in their order, then for a leader, and reports
/// the first failure. Says "Army is OK" when all is well and `confirm` is true. Throws
/// SubscriptError for a limit line whose tag names no limit, OverflowError.
[[nodiscard]] bool VerifyArmy(const ArmyState& state, Host& host, bool confirm);

void VerifyBtn_Click(const ArmyState& state, Host& host);

}  // namespace tarnwick
