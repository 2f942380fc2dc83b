// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "rules/base_army_selection.h"
#include "ui/dialogs/dialog.h"

namespace tarnwick {

/// The choice of the base army of a new army.
class ArmySelectionDialog : public Dialog {
 public:
  ArmySelectionDialog(Session& session, QWidget* parent);

 private:
  ArmySelectionForm form_;
};

}  // namespace tarnwick
