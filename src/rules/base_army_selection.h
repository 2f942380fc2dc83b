// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/controls.h"
#include "base/host.h"
#include "rules/army_state.h"

namespace tarnwick {

/// What the dialog that chooses a base army holds.
struct ArmySelectionForm {
  ListBox ArmyList;
};

/// Opens the dialog: lists the armies of the module's catalog in its order and forgets the choice
/// made before.
void FillArmySelection(ArmyState& state, const Disk& disk, ArmySelectionForm& form);

/// The selected army becomes `BaseArmyName`. Returns whether the dialog closes; without a selected
/// name the user is asked for one.
[[nodiscard]] bool ConfirmArmySelection(ArmyState& state, Host& host,
                                        const ArmySelectionForm& form);

}  // namespace tarnwick
