// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <list>
#include <utility>

#include <QMessageBox>
#include <QObject>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QWidget>

class QWindow;

namespace tarnwick {

/// A user's hands and eyes on the program's windows: finds controls by their names and sends real
/// mouse and key events through the window system. Everything acts on the window in front, a
/// dialog's script on its dialog alone. What no user could do ends the program with a message.
class WindowDriver {
 public:
  using Script = std::function<void()>;

  WindowDriver();

  /// The control of a name that the user sees: in the dialog in front, else in any open window.
  template <typename Widget = QWidget>
  Widget& Find(const QString& name) const {
    return As<Widget>(name, FindWidget(name, true));
  }
  /// The same, seen or not: it may be hidden, or on a panel behind.
  template <typename Widget = QWidget>
  Widget& FindHidden(const QString& name) const {
    return As<Widget>(name, FindWidget(name, false));
  }
  /// Whether the user sees the control; there must be one of the name.
  bool Sees(const QString& name) const { return FindHidden(name).isVisible(); }
  /// How many elements of an array of controls are not hidden; its panel may be behind.
  static int Rows(const QString& array);

  /// What a label, button, box or frame says.
  static QString TextOf(const QWidget& widget);
  QString Text(const QString& name) const { return TextOf(Find(name)); }
  template <typename... Names>
  QStringList Texts(const Names&... names) const {
    return {Text(names)...};
  }
  static bool Ticked(const QWidget& widget) { return widget.property("checked").toBool(); }
  bool Ticked(const QString& name) const { return Ticked(Find(name)); }
  /// The entries of a list or of a drop-down list, and the selected row, −1 without one.
  static std::pair<QStringList, int> EntriesOf(const QWidget& widget);
  QStringList Entries(const QString& name) const { return EntriesOf(Find(name)).first; }
  /// A window, panel or frame in lines of text: its title, then a line for each row of things in
  /// it, then what those hold. A thing is its name and what it says, ">" when that stands on the
  /// right, "(Enter)" for the button that Enter presses, "(idle)" when disabled, its tool tip.
  QString Picture(const QString& name) const;

  /// Clicks one control after the other.
  template <typename... Names>
  void Click(const QString& name, const Names&... next) {
    ClickOn(Find(name));
    if constexpr (sizeof...(next) > 0) Click(next...);
  }
  static void ClickAt(QWidget& widget, QPoint position);
  /// Whether the platform has the machinery for dragging; the offscreen one has not.
  static bool CanDrag();
  /// Drags from the middle of one control to the middle of another; `onTheWay` sees the window
  /// while the piece is held over its target. Where the platform can't, the driver carries it over.
  void Drag(
      const QString& from, const QString& to, const Script& onTheWay = [] {});
  /// Drags an entry of a list in the same way.
  void DragEntry(
      const QString& list, int row, const QString& to, const Script& onTheWay = [] {});
  /// Presses and releases a key, in whatever has the focus.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// The same in a control, which gets the focus.
  void PressIn(const QString& name, Qt::Key key);
  void Type(const QString& text);
  void Paste(const QString& text);
  /// Clicks into a box, replaces its text and stays in it.
  void Enter(const QString& name, const QString& text);
  /// Opens a drop-down list and takes an entry by the keyboard.
  void Choose(const QString& name, int entry);
  /// Selects an entry of a list by a click, or chooses it by a double click.
  void ClickEntry(const QString& name, int row, bool twice = false);
  void ClickEntry(const QString& name, const QString& text, bool twice = false);

  /// The next dialog that opens, message boxes aside, is worked by `script`, which closes it.
  void OnDialog(Script script) { scripts_.push_back(std::move(script)); }
  /// Closes the dialog in front by its window frame.
  void CloseDialog();
  /// The next box that has `button` is answered with it; without answers boxes get OK, or else
  /// Cancel.
  void AnswerNext(QMessageBox::StandardButton button) { answers_.push_back(button); }
  /// What message boxes have said since the last call, and what went wrong with the answers: a
  /// dialog without a script or left open by it, a script or an answer that nothing asked for.
  QStringList TakeMessages();
  /// Sees every message box and dialog before it is answered.
  void OnSight(std::function<void(QWidget&)> see) { see_ = std::move(see); }

  /// Lets the windows work off what is waiting.
  static void Settle();

 private:
  template <typename Widget>
  static Widget& As(const QString& name, QWidget* found) {
    auto* widget = dynamic_cast<Widget*>(found);
    if (widget == nullptr) Fail("No control " + name + " in the open windows");
    return *widget;
  }
  static void ClickOn(QWidget& widget);
  static void DragFrom(QWidget& source, QPoint grip, QWidget& target, const Script& onTheWay);
  QWidget* FindWidget(const QString& name, bool seen) const;
  QWindow* FrontWindow() const;
  [[noreturn]] static void Fail(const QString& reason);
  void Watch();
  void AnswerModal();

  QObject timers_;  ///< ends the watch with the driver
  QStringList messages_;
  std::list<Script> scripts_;
  std::function<void(QWidget&)> see_;
  QWidgetList busyWith_;  ///< the dialogs that are being worked, each opened by the one before
  std::list<QMessageBox::StandardButton> answers_;
};

}  // namespace tarnwick
