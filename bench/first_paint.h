// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>

namespace tarnwick {

/// Ends the program once its window has been painted for the first time. It ends at once, without
/// taking anything down, so that the program's time is that of its start.
class EndAtFirstPaint : public QObject {
 public:
  EndAtFirstPaint() { QCoreApplication::instance()->installEventFilter(this); }

  bool eventFilter(QObject* painted, QEvent* event) override {
    // What its children cover of a window is not painted itself; all is within the same event.
    if (event->type() == QEvent::Paint && painted->isWidgetType())
      QTimer::singleShot(0, [] { std::_Exit(0); });
    return false;
  }
};

}  // namespace tarnwick
