// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace tarnwick {

/// A button of the column beside the panels. It changes its look under the mouse and marks the
/// panel in front while it is checked.
class PanelButton : public QPushButton {
 public:
  PanelButton(const QString& name, const QString& caption, QWidget* parent);

  /// Paints a dot on the button, or none.
  void Mark(bool marked);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void nextCheckState() override {}  ///< the panel in front checks the button, not the click

 private:
  bool marked_ = false;
};

/// An arrow that turns back, or forth.
QIcon TurnIcon(bool back);

}  // namespace tarnwick
