// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "armyfile/army_browser.h"
#include "ui/dialogs/dialog.h"

namespace tarnwick {

/// The army browser.
class ArmyListDialog : public Dialog {
 public:
  ArmyListDialog(Session& session, QWidget* parent);

 private:
  ArmyListForm form_;
};

}  // namespace tarnwick
