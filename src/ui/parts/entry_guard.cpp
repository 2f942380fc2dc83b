// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/entry_guard.h"

#include <algorithm>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollArea>
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

/// Whether the focus goes to another window or a menu, or comes back from there.
bool StaysInBox(const QEvent& event) {
  const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
}

bool InDialog(const QWidget& widget) {
  return qobject_cast<const QDialog*>(widget.window()) != nullptr;
}

bool IsTextBox(const QObject* object) {
  return object->inherits("QLineEdit") || object->inherits("QPlainTextEdit");
}

bool TakesBack(const QKeySequence& keys) {
  return keys[0] == undoKey || std::ranges::count(redoKeys, keys[0]) > 0;
}

QString LineText(const QObject* box) {
  const auto* line = qobject_cast<const QLineEdit*>(box);
  return line != nullptr ? line->text() : "";
}

/// The panel that scrolls with the box on it, else the box's window.
QWidget* PanelOf(QWidget* box) {
  while (!box->isWindow() && !qobject_cast<QScrollArea*>(box->parentWidget()->parentWidget()))
    box = box->parentWidget();
  return box;
}

}  // namespace

EntryGuard::EntryGuard(QObject* parent) : QObject(parent) {
  qApp->installEventFilter(this);
}

void EntryGuard::Watch(QWidget* box, const std::function<bool()>& refused, std::string* taken) {
  checks_.insert(box, {refused, taken});
  box->setAcceptDrops(false);  // a text dropped on a box without the focus is never left
  connect(box, &QObject::destroyed, this, [this](QObject* gone) { checks_.remove(gone); });
}

void EntryGuard::Follow(const std::function<void()>& operation) {
  const QPointer<QWidget> box = entry_.Box;
  const QString text = LineText(box);
  operation();
  if (!checking_ && box && box == entry_.Box && LineText(box) != text) Begin(box);
}

void EntryGuard::Replace(const std::function<void()>& operation) {
  if (HasTyping()) PutsBack(qobject_cast<QLineEdit*>(entry_.Box));
  checking_ = true;
  operation();
  checking_ = false;
  QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr) focus = entry_.Box;
  Begin(focus);
}

bool EntryGuard::HasTyping() const {
  return checks_.contains(entry_.Box) && LineText(entry_.Box) != entry_.Text;
}

QWidget* EntryGuard::BoxInFocus(const QWidget* window) const {
  QWidget* focus = window != nullptr ? window->focusWidget() : nullptr;
  return checks_.contains(focus) ? focus : nullptr;
}

bool EntryGuard::Refuses(QWidget* box) {
  checking_ = true;
  const QPointer<QWidget> alive = box;
  const bool refused = checks_.value(box).Refused();
  if (alive && refused) {
    box->setFocus(Qt::OtherFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(box)) line->selectAll();
  }
  checking_ = false;
  if (alive && !refused) {
    passed_ = box;
    if (box == entry_.Box) Begin(box);
  }
  return refused;
}

bool EntryGuard::eventFilter(QObject* object, QEvent* event) {
  if (checking_) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return RefusesClick(object, event);
    case QEvent::ShortcutOverride:
      // A text box would take them all to itself.
      return TakesBack(static_cast<QKeyEvent*>(event)->keyCombination()) && IsTextBox(object) &&
             !InDialog(*static_cast<QWidget*>(object));
    case QEvent::Shortcut:
      return RefusesShortcut(event) || PressesAtOnce(object, event);
    case QEvent::KeyPress:
      if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) return TakesEscape(object);
      return checks_.contains(object) && RefusesKey(static_cast<QWidget*>(object), event);
    case QEvent::FocusIn:
      CheckGainedFocus(object, event);
      return false;
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
  if (clicked->inherits("QAbstractButton") && clicked->focusPolicy() == Qt::NoFocus) return false;
  // The window asked already when the widget sees the click.
  if (object->isWidgetType() && passed_ == box) return false;
  return Refuses(box);
}

bool EntryGuard::RefusesShortcut(const QEvent* event) {
  if (TakesBack(static_cast<const QShortcutEvent*>(event)->key())) return false;
  return !Leave(QApplication::activeWindow());
}

bool EntryGuard::Leave(const QWidget* window) {
  QWidget* box = BoxInFocus(window);
  return box == nullptr || !Refuses(box);
}

/// A button would wait before its letter presses it, and what is typed next would come first.
bool EntryGuard::PressesAtOnce(QObject* object, QEvent* event) {
  auto* button = qobject_cast<QAbstractButton*>(object);
  if (button == nullptr || static_cast<QShortcutEvent*>(event)->isAmbiguous()) return false;
  button->click();
  return true;
}

bool EntryGuard::UndoTyping() {
  auto* line = qobject_cast<QLineEdit*>(entry_.Box);
  auto* text = qobject_cast<QPlainTextEdit*>(entry_.Box);
  const bool can = line ? line->isUndoAvailable() : text && text->document()->isUndoAvailable();
  if (can) line ? line->undo() : text->undo();
  return can || (HasTyping() && PutsBack(line));  // a check has rewritten what was typed
}

bool EntryGuard::RedoTyping() {
  auto* line = qobject_cast<QLineEdit*>(entry_.Box);
  auto* text = qobject_cast<QPlainTextEdit*>(entry_.Box);
  const bool can = line ? line->isRedoAvailable() : text && text->document()->isRedoAvailable();
  if (can) line ? line->redo() : text->redo();
  return can;
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
  if (StaysInBox(*event)) return;
  if (std::exchange(passed_, nullptr) != box && box->isVisible()) Refuses(box);
}

void EntryGuard::CheckGainedFocus(QObject* object, QEvent* event) {
  if (!object->isWidgetType() || InDialog(*static_cast<QWidget*>(object))) return;
  if (StaysInBox(*event) && (object == entry_.Box || !IsTextBox(object))) return;
  Begin(static_cast<QWidget*>(object));
}

void EntryGuard::Begin(QWidget* box) {
  ++visit_;
  if (auto* text = qobject_cast<QPlainTextEdit*>(box)) text->document()->clearUndoRedoStacks();
  auto* line = qobject_cast<QLineEdit*>(box);
  if (line != nullptr && (line->isUndoAvailable() || line->isRedoAvailable())) {
    const int cursor = line->cursorPosition();
    line->setText(line->text());  // forgets what was typed
    line->setCursorPosition(cursor);
  }
  const std::string* taken = checks_.value(box).Taken;
  entry_ = {box, LineText(box), taken != nullptr ? *taken : ""};
}

bool EntryGuard::PutsBack(QLineEdit* box) {
  if (std::string* taken = checks_.value(box).Taken) *taken = entry_.Taken;
  const bool typed = box->text() != entry_.Text;
  if (typed) box->setText(entry_.Text);
  Q_EMIT box->textEdited(entry_.Text);  // to whoever hears what is typed
  return typed;
}

bool EntryGuard::TakesEscape(QObject* object) {
  passed_ = nullptr;
  auto* line = qobject_cast<QLineEdit*>(object);
  if (line == nullptr && qobject_cast<QPlainTextEdit*>(object) == nullptr) return false;
  auto* box = static_cast<QWidget*>(object);
  if (InDialog(*box)) return false;
  if (line != nullptr && (line != entry_.Box || PutsBack(line))) return true;
  passed_ = box;
  PanelOf(box)->setFocus();
  return true;
}

}  // namespace tarnwick
