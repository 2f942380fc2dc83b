// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "armyfile/working_army.h"
#include "base/host.h"

namespace tarnwick {

/// "Load army": empties the working army, takes the module that is chosen and loads an army.
/// Returns whether all of it was loaded.
bool LoadBtn_Click(WorkingArmy& work, Disk& disk, Host& host);

/// Brings back the army that the user picks in the army browser. A base army, unit or picture that
/// the catalogs don't know is reported and ends the loading with what was applied so far. Throws
/// OverflowError for numbers that leave 16 bits, SubscriptError for terrain that is none, for a
/// leader without a button and for an unknown unit when the base army fills its table of 200 rows,
/// TypeMismatchError for a period that is none. Returns whether it came to the end.
bool LoadArmy(WorkingArmy& work, Disk& disk, Host& host);

}  // namespace tarnwick
