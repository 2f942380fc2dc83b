// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/dialog.h"

#include "ui/parts/session.h"

namespace tarnwick {

Dialog::Dialog(const QString& name, const QString& title, Session& session, QWidget* parent)
    : QDialog(parent), session_(session) {
  setObjectName(name);
  setWindowTitle(title);
  session_.OnChange(this, [this] { bindings_.Refresh(); });
}

}  // namespace tarnwick
