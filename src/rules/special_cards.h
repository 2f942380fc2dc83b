// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/host.h"
#include "base/int16.h"
#include "rules/army_state.h"

namespace tarnwick {

/// The focus leaves `SpecBuy(index)`: buys or gives back cards, paid in command points. Returns
/// true (cancel: the focus stays) when the entry was refused with a message. A negative quantity
/// is not refused: it gives command points back.
[[nodiscard]] bool SpecBuy_Validate(ArmyState& state, Host& host, Int16 index);

}  // namespace tarnwick
