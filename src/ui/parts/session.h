// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>

#include "armyfile/history.h"
#include "armyfile/working_army.h"
#include "base/host.h"
#include "ui/parts/entry_guard.h"

namespace tarnwick {

/// What every window of the program shares: the working army, the disk, the way to the user, and
/// the one way through for events.
class Session {
 public:
  Session(WorkingArmy& work, Disk& disk, Host& host) : Work(work), Store(disk), User(host) {}

  WorkingArmy& Work;
  Disk& Store;
  Host& User;

  /// `refresh` shows the state after every event, for as long as `view` is there.
  void OnChange(QObject* view, std::function<void()> refresh);

  /// What undo takes back.
  const History& Steps() const { return history_; }

  /// Runs an operation and shows the state. It is one event, with all operations that it makes run
  /// on its way, and a step of that name; without a name it only looks around. A run-time error
  /// that the operation does not catch is named in a message box and ends the program with exit
  /// status 1. Then the result is false, and no operation runs any more.
  bool Run(const StepName& step, const std::function<void()>& operation) {
    return Run(step, operation, 0);
  }
  bool Run(const std::function<void()>& operation) { return Run(nullptr, operation); }

  /// Runs an operation that only looks around whenever `sender` gives `signal`.
  template <typename Sender, typename Signal>
  requires std::is_member_function_pointer_v<Signal>
  void Connect(Sender* sender, Signal signal, const std::function<void()>& operation) {
    QObject::connect(sender, signal, sender, [this, operation] { Run(operation); });
  }

  /// Runs an operation whenever the user clicks, chooses or types there. What is typed until the
  /// focus leaves the box is one step.
  template <typename Sender>
  void Connect(Sender* sender, const StepName& step, const std::function<void()>& operation) {
    QObject::connect(sender, SignalOf(sender), sender,
                     [this, sender, step, operation] { Run(step, operation, TypingIn(sender)); });
  }
  template <typename Sender>
  void Connect(Sender* sender, const std::function<void()>& operation) {
    Connect(sender, nullptr, operation);
  }

  /// Whenever the user leaves `box`, `refused` looks at what was entered and says whether it is
  /// refused; an error refuses it, too. What it changes is a step of that name. `taken` is what it
  /// changes even then.
  void Guard(QWidget* box, const StepName& step, const std::function<bool()>& refused,
             std::string* taken = nullptr);

  /// Has the box checked that has the focus of `window`, as if the user left it. Returns whether
  /// it may be left.
  bool Leave(const QWidget* window) { return guard_.Leave(window); }

  /// Saves the army and returns whether it was saved.
  bool Save();
  void Load();

  // Take back what was typed into the box that has the focus, else a step, or do it again.

  void Undo();
  void Redo();

  /// Whether there is something to save, or to be checked before; not after an error.
  bool HasChanges() const { return !error_ && (history_.Unsaved() || guard_.HasTyping()); }

  /// Lets the error that has ended the program end the operation, too, that opened a dialog.
  void Rethrow() const;

 private:
  static auto SignalOf(const QAbstractButton*) { return &QAbstractButton::clicked; }
  static auto SignalOf(const QButtonGroup*) { return &QButtonGroup::idClicked; }
  static auto SignalOf(const QComboBox*) { return &QComboBox::activated; }
  static auto SignalOf(const QLineEdit*) { return &QLineEdit::textEdited; }
  static auto SignalOf(const QPlainTextEdit*) { return &QPlainTextEdit::textChanged; }

  /// The same number for what is typed until the focus leaves the box, 0 for what is not typed.
  static int TypingIn(const QObject*) { return 0; }
  int TypingIn(const QLineEdit* box) const { return guard_.Visit(box); }
  int TypingIn(const QPlainTextEdit* box) const { return guard_.Visit(box); }

  bool Run(const StepName& step, const std::function<void()>& operation, int typing);
  void EndEvent(const StepName& step, int typing);

  EntryGuard guard_;
  History history_{Work, Store};
  StepName step_;     ///< of the event under way
  int underWay_ = 0;  ///< operations, each in the one before
  std::exception_ptr error_;
  std::vector<std::pair<QPointer<QObject>, std::function<void()>>> views_;  ///< and their refresh
};

}  // namespace tarnwick
