// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "armyfile/army_header.h"
#include "base/host.h"
#include "battlefield/battlefield.h"
#include "rules/army_state.h"

namespace tarnwick {

/// The one working army with its battlefield and its header.
struct WorkingArmy {
  ArmyState Army;
  Battlefield Field;
  ArmyHeader Header;
  bool operator==(const WorkingArmy&) const = default;
};

/// The module that the options show becomes the module of the army.
void TakeModule(ArmyState& army);

/// Reads the module's image catalog and the one that the army file names. Throws SubscriptError
/// when they have more than 200 rows.
void ReadImageCatalog(WorkingArmy& work, const Disk& disk);

/// Start-up: prepares the state, puts the "Army Managemet" panel in front and reads the image
/// catalog. Throws SubscriptError when that has more than 200 rows.
void Form_Load(WorkingArmy& work, const Disk& disk);

/// A module was chosen. The army on screen stays; later catalog reads use the new module's files.
void modOption_Click(WorkingArmy& work, const Disk& disk);

/// A new army of the base army that the user chooses.
void NewArmyBtn_Click(WorkingArmy& work, const Disk& disk, Host& host);

}  // namespace tarnwick
