// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "armyfile/working_army.h"
#include "base/host.h"

namespace tarnwick {

/// Writes the army to the file that `ArmyFileName` names, if it passes verification and the user
/// agrees to replace a file that is there. The file is replaced in one step, with terrain and
/// setups. Throws FileError when it can't be written; the file then stays as it was. An
/// OverflowError or SubscriptError on the way leaves a file that ends where it happened. Returns
/// whether the army was saved.
bool SaveArmy(const WorkingArmy& work, Disk& disk, Host& host);

}  // namespace tarnwick
