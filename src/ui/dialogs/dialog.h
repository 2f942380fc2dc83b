// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "ui/parts/bindings.h"
#include "ui/parts/session.h"

namespace tarnwick {

/// A modal dialog. It shows its controls after every event, like the main window.
class Dialog : public QDialog {
 protected:
  Dialog(const QString& name, const QString& title, Session& session, QWidget* parent)
      : QDialog(parent), session_(session) {
    setObjectName(name);
    setWindowTitle(title);
    session_.OnChange(this, [this] { bindings_.Refresh(); });
  }

  Session& session_;
  Bindings bindings_;
};

}  // namespace tarnwick
