// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "armyfile/working_army.h"

namespace tarnwick {

/// Empties the working army: units, leader, cards, terrain, special rules and period. The base
/// army stays; its points are read from the catalog again.
void ResetArmyData(WorkingArmy& work, const Disk& disk);

void ResetArmy_Click(WorkingArmy& work, const Disk& disk);

}  // namespace tarnwick
