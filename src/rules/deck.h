// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "rules/army_state.h"

namespace tarnwick {

/// The cards of an army: one a unit, and the special cards.
struct Deck {
  Int16 Cards, Units;
  double Share;  ///< of the unit cards, in whole per cent
};

/// Counts what the `SpecBuy` boxes show; nothing without any card. Throws OverflowError,
/// DivisionByZeroError.
std::optional<Deck> CountDeck(const ArmyState& state);

/// The main window's title: name and version, and once there are cards the size of the deck with
/// the share of unit cards. Throws as `CountDeck` does.
std::string PrintDeckInfo(const ArmyState& state);

}  // namespace tarnwick
