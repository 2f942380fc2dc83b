// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/entry_guard.h"

#include <utility>

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QWindow>

namespace tarnwick {
namespace {

/// Where a mouse event goes: the window sees it first, then the widget.
QWidget* ClickedWidget(QObject* object, const QMouseEvent& event) {
  if (object->isWidgetType()) return static_cast<QWidget*>(object);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->windowHandle() != object) continue;
    QWidget* child = window->childAt(event.position().toPoint());
    return child != nullptr ? child : window;
  }
  return nullptr;
}

}  // namespace

EntryGuard::EntryGuard(QObject* parent) : QObject(parent) {
  qApp->installEventFilter(this);
}

void EntryGuard::Watch(QWidget* box, const std::function<bool()>& refused) {
  checks_.insert(box, refused);
  box->setAcceptDrops(false);  // a text dropped on a box without the focus is never left
  connect(box, &QObject::destroyed, this, [this](QObject* gone) { checks_.remove(gone); });
}

QWidget* EntryGuard::BoxInFocus(const QWidget* window) const {
  QWidget* focus = window != nullptr ? window->focusWidget() : nullptr;
  return checks_.contains(focus) ? focus : nullptr;
}

bool EntryGuard::Refuses(QWidget* box) {
  checking_ = true;
  const QPointer<QWidget> alive = box;
  const bool refused = checks_.value(box)();
  checking_ = false;
  if (!alive) return refused;
  if (refused) {
    box->setFocus(Qt::OtherFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(box)) line->selectAll();
  } else {
    passed_ = box;
  }
  return refused;
}

bool EntryGuard::eventFilter(QObject* object, QEvent* event) {
  if (checking_) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return RefusesClick(object, event);
    case QEvent::Shortcut:
      return RefusesShortcut();
    case QEvent::KeyPress:
      return checks_.contains(object) && RefusesKey(static_cast<QWidget*>(object), event);
    case QEvent::FocusOut:
      if (checks_.contains(object)) CheckLostFocus(static_cast<QWidget*>(object), event);
      return false;
    default:
      return false;
  }
}

bool EntryGuard::RefusesClick(QObject* object, QEvent* event) {
  if (QApplication::activePopupWidget() != nullptr) return false;
  const QWidget* clicked = ClickedWidget(object, *static_cast<QMouseEvent*>(event));
  if (clicked == nullptr) return false;
  QWidget* box = BoxInFocus(clicked->window());
  if (box == nullptr || box->isAncestorOf(clicked)) return false;  // itself counts, too
  // The window asked already when the widget sees the click.
  if (object->isWidgetType() && passed_ == box) return false;
  return Refuses(box);
}

bool EntryGuard::RefusesShortcut() {
  QWidget* box = BoxInFocus(QApplication::activeWindow());
  return box != nullptr && Refuses(box);
}

bool EntryGuard::RefusesKey(QWidget* box, QEvent* event) {
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (!enter && key != Qt::Key_Tab && key != Qt::Key_Backtab) {
    passed_ = nullptr;
    return false;
  }
  if (Refuses(box)) return true;
  if (!enter) return false;
  QWidget* next = box->nextInFocusChain();
  while (next != box && !(checks_.contains(next) && next->isVisible() && next->isEnabled())) {
    next = next->nextInFocusChain();
  }
  if (next == box) return false;
  next->setFocus(Qt::TabFocusReason);
  return true;
}

void EntryGuard::CheckLostFocus(QWidget* box, QEvent* event) {
  const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
  if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) return;
  if (std::exchange(passed_, nullptr) != box && box->isVisible()) Refuses(box);
}

}  // namespace tarnwick
