// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>

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

  /// Runs an operation and shows the state. A run-time error that the operation does not catch is
  /// named in a message box and ends the program with exit status 1. Then the result is false, and
  /// no operation runs any more.
  bool Run(const std::function<void()>& operation);

  /// Runs an operation whenever `sender` gives `signal`.
  template <typename Sender, typename Signal>
  void Connect(Sender* sender, Signal signal, const std::function<void()>& operation) {
    QObject::connect(sender, signal, sender, [this, operation] { Run(operation); });
  }

  /// The same whenever the user clicks, chooses or types there.
  template <typename Sender>
  void Connect(Sender* sender, const std::function<void()>& operation) {
    Connect(sender, SignalOf(sender), operation);
  }

  /// Whenever the user leaves `box`, `refused` looks at what was entered and says whether it is
  /// refused; an error refuses it, too. `taken` is what it changes even then.
  void Guard(QWidget* box, const std::function<bool()>& refused, std::string* taken = nullptr);

  /// Lets the error that has ended the program end the operation, too, that opened a dialog.
  void Rethrow() const;

 private:
  static auto SignalOf(const QAbstractButton*) { return &QAbstractButton::clicked; }
  static auto SignalOf(const QButtonGroup*) { return &QButtonGroup::idClicked; }
  static auto SignalOf(const QComboBox*) { return &QComboBox::activated; }
  static auto SignalOf(const QPlainTextEdit*) { return &QPlainTextEdit::textChanged; }

  EntryGuard guard_;
  std::exception_ptr error_;
  std::vector<std::pair<QPointer<QObject>, std::function<void()>>> views_;  ///< and their refresh
};

}  // namespace tarnwick
