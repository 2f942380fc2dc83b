// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "armyfile/working_army.h"
#include "base/controls.h"
#include "base/host.h"

namespace tarnwick {

/// What the dialog that chooses a saved army holds.
struct ArmyListForm {
  ListBox ArmyList;  ///< names of army files, without ".army"
  Label ArmyDetailLabel;
  std::string BaseName;  ///< the base army of the file shown last; "" when none was
};

/// Lists the module's army files by name.
void FillArmyList(const ArmyState& state, const Disk& disk, ArmyListForm& form);

/// Shows the summary of the selected file.
void ShowArmyDetail(const ArmyState& state, const Disk& disk, ArmyListForm& form);

/// Whether this editor can read the file. `required` takes the version of one that it can't.
/// Always looks into the program folder, whatever the module. Throws OverflowError.
[[nodiscard]] bool CheckArmyVersion(const ArmyState& state, const Disk& disk,
                                    const std::string& name, std::string& required);

/// The selected file becomes `ArmyFile` if it may be loaded. Returns whether the dialog closes.
[[nodiscard]] bool SelectArmy(WorkingArmy& work, const Disk& disk, Host& host,
                              const ArmyListForm& form);

/// Deletes the selected file after a question. Deletes in the program folder, whatever the module.
/// Throws FileError.
void DelArmy_Click(const ArmyState& state, const Disk& disk, Host& host, ArmyListForm& form);

}  // namespace tarnwick
