// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "base/host.h"
#include "base/int16.h"
#include "rules/army_state.h"

namespace tarnwick {

/// The cards that army files hold, in the order in which loading pays for them. They know a card
/// by its name in small letters.
inline constexpr std::array<std::string_view, 5> knownCards = {"FLANK", "RALLY", "COHESION",
                                                               "MISSILE", "CALTROP"};

/// What the cards that are paid for cost, in command points. Throws TypeMismatchError,
/// OverflowError.
Int16 PaidCardPoints(const ArmyState& state);

/// The focus leaves `SpecBuy(index)`: buys or gives back cards, paid in command points. Returns
/// true (cancel: the focus stays) when the entry was refused with a message. A negative quantity
/// is not refused: it gives command points back.
[[nodiscard]] bool SpecBuy_Validate(ArmyState& state, Host& host, Int16 index);

}  // namespace tarnwick
