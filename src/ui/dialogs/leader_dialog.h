// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "rules/leaders.h"
#include "ui/dialogs/dialog.h"

namespace tarnwick {

/// The definition of a leader of the player's own.
class LeaderDialog : public Dialog {
 public:
  LeaderDialog(Session& session, QWidget* parent);

 private:
  LeaderMgmtForm form_;
};

}  // namespace tarnwick
