// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <list>

#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace tarnwick {

/// A user's hands and eyes on the program's windows: finds controls by their names and sends real
/// mouse and key events through the window system. Everything acts on the window in front.
class WindowDriver {
 public:
  using Script = std::function<void()>;

  WindowDriver();

  /// The control of a name in the active window, or any other window that is open. Ends the
  /// program with a message when there is none.
  template <typename Widget = QWidget>
  Widget& Find(const QString& name) const {
    auto* found = dynamic_cast<Widget*>(FindWidget(name));
    if (found == nullptr) Fail(name);
    return *found;
  }

  void Click(const QString& name);
  void ClickAt(QWidget& widget, QPoint position);
  /// Whether the platform has the machinery for dragging; the offscreen one has not.
  static bool CanDrag();
  /// Drags from the middle of one control to the middle of another; `onTheWay` sees the window
  /// while the piece is held over its target.
  void Drag(
      const QString& from, const QString& to, const Script& onTheWay = [] {});
  /// Presses and releases a key, in whatever has the focus.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void Type(const QString& text);
  /// Clicks into a box, replaces its text and stays in it.
  void Enter(const QString& name, const QString& text);
  /// Opens a drop-down list and takes an entry by the keyboard.
  void Choose(const QString& name, int entry);
  /// Selects an entry of a list by a click, or chooses it by a double click.
  void ClickEntry(const QString& name, int row, bool twice = false);
  void ClickEntry(const QString& name, const QString& text, bool twice = false);

  /// The next dialog that opens, message boxes aside, is worked by `script`; one that is still
  /// open afterwards is closed by its window frame.
  void OnDialog(Script script) { scripts_.push_back(std::move(script)); }
  /// The next message box is answered with its Cancel button; all others with OK.
  void CancelNextMessage() { cancelNext_ = true; }
  /// What message boxes have said since the last call.
  QStringList TakeMessages();
  /// Sees every message box and dialog before it is answered.
  void OnSight(std::function<void(QWidget&)> see) { see_ = std::move(see); }

  /// Lets the windows work off what is waiting.
  static void Settle();

 private:
  static QWidget* FindWidget(const QString& name);
  [[noreturn]] static void Fail(const QString& name);
  void Watch();
  void AnswerModal();

  QObject timers_;  ///< ends the watch with the driver
  QStringList messages_;
  std::list<Script> scripts_;
  std::function<void(QWidget&)> see_;
  QWidget* busyWith_ = nullptr;
  bool cancelNext_ = false;
};

}  // namespace tarnwick
