// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "rules/army_state.h"

namespace tarnwick {

/// The main window's title: name and version, and once there are cards the size of the deck with
/// the share of unit cards. Counts what the `SpecBuy` boxes show. Throws OverflowError.
std::string PrintDeckInfo(const ArmyState& state);

}  // namespace tarnwick
