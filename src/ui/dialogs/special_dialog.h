// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/dialogs/dialog.h"

namespace tarnwick {

/// The special abilities of the unit row `SpecUnitRow`.
class SpecialDialog : public Dialog {
 public:
  SpecialDialog(Session& session, QWidget* parent);
};

}  // namespace tarnwick
