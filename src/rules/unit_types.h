// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "base/int16.h"
#include "rules/army_state.h"

namespace tarnwick {

/// The index, 0 to 200, under which verification counts units of a type and class; 0 for those
/// that no limit can name. Case counts.
Int16 UnitTypeCode(std::string_view type, std::string_view unitClass);

/// Whether the rules know the type. Case counts.
bool IsUnitType(std::string_view type);

/// What a type fights as.
inline constexpr int foot = 0, skirmishers = 1, mounted = 2;

/// `foot`, `skirmishers` or `mounted`. Monsters are mounted when the special abilities of `row` in
/// `BaseUnits` say so; −1 for `row` asks without a row.
Int16 MountedKind(const ArmyState& state, const Disk& disk, std::string_view type, Int16 row);

/// Whether the special abilities of a row of `BaseUnits` include `code`.
bool UnitHasSpecial(const ArmyState& state, const Disk& disk, Int16 row, std::string_view code);

/// What the special abilities dialog shows of the row `SpecUnitRow`. Throws SubscriptError when
/// that is no row of `BaseUnits`.
std::string SpecialAbilitiesText(const ArmyState& state, const Disk& disk);

}  // namespace tarnwick
