// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QDialog>

#include "armyfile/army_browser.h"
#include "ui/parts/bindings.h"

namespace tarnwick {

class Session;

/// The army browser.
class ArmyListDialog : public QDialog {
 public:
  ArmyListDialog(Session& session, QWidget* parent);

 private:
  void Run(const std::function<void()>& operation);
  void Select();

  Session& session_;
  ArmyListForm form_;
  Bindings bindings_;
};

}  // namespace tarnwick
