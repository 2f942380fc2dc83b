// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>

namespace tarnwick {

/// Ends the program once its window has been painted for the first time. It ends at once, without
/// taking anything down, so that the program's time is that of its start.
class EndAtFirstPaint : public QObject {
 public:
  explicit EndAtFirstPaint(QWidget& window) : QObject(&window) { window.installEventFilter(this); }

  bool eventFilter(QObject* /*window*/, QEvent* event) override {
    // The children are painted after the window itself and within the same event.
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, [] { std::_Exit(0); });
    return false;
  }
};

}  // namespace tarnwick
