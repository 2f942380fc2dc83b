// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "window_driver.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace tarnwick {
namespace {

/// The window that a user would be typing into. Without a window manager nobody makes the one
/// below active again when a dialog closes, so this does.
QWindow* FrontWindow() {
  QWidget* front = QApplication::activePopupWidget();
  if (front == nullptr) front = QApplication::activeModalWidget();
  if (front == nullptr) front = QApplication::activeWindow();
  const QList<QWidget*> windows = QApplication::topLevelWidgets();
  for (int i = 0; front == nullptr && i < windows.size(); ++i) {
    if (windows[i]->isVisible()) front = windows[i];
  }
  if (!front->isActiveWindow() && QApplication::activePopupWidget() == nullptr) {
    front->activateWindow();
    QTest::qWait(1);
  }
  return front->windowHandle();
}

}  // namespace

WindowDriver::WindowDriver() {
  Watch();
}

void WindowDriver::Watch() {
  // A timer of its own each time: one that is being worked off does not fire again, and a dialog
  // may open over the one that a script is working.
  QTimer::singleShot(5, &timers_, [this] {
    Watch();
    AnswerModal();
  });
}

QWidget* WindowDriver::FindWidget(const QString& name) {
  QList<QWidget*> windows = QApplication::topLevelWidgets();
  if (QWidget* front = QApplication::activeModalWidget()) windows.prepend(front);
  for (QWidget* window : std::as_const(windows)) {
    if (!window->isVisible()) continue;
    if (window->objectName() == name) return window;
    if (auto* found = window->findChild<QWidget*>(name)) return found;
  }
  return nullptr;
}

void WindowDriver::Fail(const QString& name) {
  std::fprintf(stderr, "No control %s in the open windows\n", qPrintable(name));
  std::abort();
}

void WindowDriver::ClickAt(QWidget& widget, QPoint position) {
  QWindow* window = widget.window()->windowHandle();
  QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier,
                    widget.mapTo(widget.window(), position));
  Settle();
}

void WindowDriver::Click(const QString& name) {
  QWidget& widget = Find(name);
  // Near the left edge, where option buttons have their mark.
  ClickAt(widget, QPoint(qMin(12, widget.width() / 2), widget.height() / 2));
}

bool WindowDriver::CanDrag() {
  return QGuiApplication::platformName() != "offscreen";
}

void WindowDriver::Drag(const QString& from, const QString& to, const Script& onTheWay) {
  QWidget& source = Find(from);
  QWidget& target = Find(to);
  QWindow* window = source.window()->windowHandle();
  const QPoint start = source.mapTo(source.window(), source.rect().center());
  const QPoint end = target.mapTo(target.window(), target.rect().center());
  // The drag has an event loop of its own, in which these go on.
  QTimer::singleShot(50, window, [=] { QTest::mouseMove(window, (start + end) / 2); });
  QTimer::singleShot(100, window, [=] { QTest::mouseMove(window, end); });
  QTimer::singleShot(150, window, [=] {
    onTheWay();
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, end);
  });
  QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
  QTest::mouseMove(window, start + QPoint(QApplication::startDragDistance() + 2, 0));
  QTest::qWait(250);
}

void WindowDriver::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(FrontWindow(), key, modifiers);
  Settle();
}

void WindowDriver::Type(const QString& text) {
  for (const QChar c : text) {
    if (c == '\n') {
      Press(Qt::Key_Return);
    } else {
      QTest::sendKeyEvent(QTest::Click, FrontWindow(), Qt::Key_unknown, c, Qt::NoModifier);
    }
  }
  Settle();
}

void WindowDriver::Enter(const QString& name, const QString& text) {
  Click(name);
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_Delete);
  Type(text);
}

void WindowDriver::Choose(const QString& name, int entry) {
  auto& list = Find<QComboBox>(name);
  Click(name);  // opens the list
  if (list.currentIndex() != entry) {
    Press(Qt::Key_Home);
    for (int i = 0; i < entry; ++i)
      Press(Qt::Key_Down);
  }
  Press(Qt::Key_Return);
}

void WindowDriver::ClickEntry(const QString& name, int row, bool twice) {
  auto& list = Find<QListWidget>(name);
  list.scrollToItem(list.item(row));
  const QPoint position = list.visualItemRect(list.item(row)).center();
  ClickAt(*list.viewport(), position);
  if (!twice) return;
  QTest::mouseDClick(list.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                     list.viewport()->mapTo(list.window(), position));
  Settle();
}

void WindowDriver::ClickEntry(const QString& name, const QString& text, bool twice) {
  auto& list = Find<QListWidget>(name);
  const auto found = list.findItems(text, Qt::MatchExactly);
  if (found.isEmpty()) Fail(name + " with the entry " + text);
  ClickEntry(name, list.row(found.front()), twice);
}

QStringList WindowDriver::TakeMessages() {
  return std::exchange(messages_, {});
}

void WindowDriver::Settle() {
  QTest::qWait(1);
}

void WindowDriver::AnswerModal() {
  QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr || modal == busyWith_ || !modal->isVisible()) return;
  QWidget* const before = std::exchange(busyWith_, modal);
  Settle();
  if (see_) see_(*modal);
  if (auto* box = qobject_cast<QMessageBox*>(modal)) {
    messages_.append(box->text());
    const bool cancel = std::exchange(cancelNext_, false);
    QAbstractButton* button = box->button(cancel ? QMessageBox::Cancel : QMessageBox::Ok);
    if (button == nullptr) button = box->button(QMessageBox::Ok);
    busyWith_ = before;
    ClickAt(*button, button->rect().center());
    return;
  }
  if (!scripts_.empty()) {
    const Script script = std::move(scripts_.front());
    scripts_.pop_front();
    script();
  }
  if (QApplication::activeModalWidget() == modal) modal->close();
  busyWith_ = before;
}

}  // namespace tarnwick
