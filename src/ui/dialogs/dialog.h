// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "ui/parts/bindings.h"

namespace tarnwick {

class Session;

/// A modal dialog. It shows its controls after every event, like the main window.
class Dialog : public QDialog {
 protected:
  Dialog(const QString& name, const QString& title, Session& session, QWidget* parent);

  Session& session_;
  Bindings bindings_;
};

}  // namespace tarnwick
