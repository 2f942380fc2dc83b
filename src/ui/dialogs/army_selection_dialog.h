// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "rules/base_army_selection.h"
#include "ui/parts/bindings.h"

namespace tarnwick {

class Session;

/// The choice of the base army of a new army.
class ArmySelectionDialog : public QDialog {
 public:
  ArmySelectionDialog(Session& session, QWidget* parent);

 private:
  void Confirm();

  Session& session_;
  ArmySelectionForm form_;
  Bindings bindings_;
};

}  // namespace tarnwick
