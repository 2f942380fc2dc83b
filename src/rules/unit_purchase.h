// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/host.h"
#include "base/int16.h"
#include "rules/army_state.h"

namespace tarnwick {

/// The quantity in `Buy(index)` becomes the number of units bought of the row that the line shows,
/// paid in army points; an empty box or 0 gives them back. Returns false when the entry was refused
/// with a message: the box then keeps the number, army and budget are unchanged. A negative
/// quantity is not refused: it gives points back.
[[nodiscard]] bool BuyUnits(ArmyState& state, const Disk& disk, Host& host, Int16 index);

/// The focus leaves `Buy(index)`. Returns true (cancel: the focus stays) when the entry was
/// refused.
[[nodiscard]] bool Buy_Validate(ArmyState& state, const Disk& disk, Host& host, Int16 index);

}  // namespace tarnwick
