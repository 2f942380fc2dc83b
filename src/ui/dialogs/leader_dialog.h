// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QDialog>

#include "rules/leaders.h"
#include "ui/parts/bindings.h"

namespace tarnwick {

class Session;

/// The definition of a leader of the player's own.
class LeaderDialog : public QDialog {
 public:
  LeaderDialog(Session& session, QWidget* parent);

 private:
  void Run(const std::function<void()>& operation);

  Session& session_;
  LeaderMgmtForm form_;
  Bindings bindings_;
};

}  // namespace tarnwick
