// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <utility>

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
  EntryGuard Guard;

  /// Who shows the state after every event.
  void OnChange(std::function<void()> refresh) { refresh_ = std::move(refresh); }

  /// Runs an operation and shows the state. A run-time error that the operation does not catch is
  /// named in a message box and ends the program with exit status 1. Then the result is false, and
  /// no operation runs any more.
  bool Run(const std::function<void()>& operation);

  /// Runs an operation that says whether the user may go on; an error says no.
  bool Allows(const std::function<bool()>& operation);

  /// Lets the error that has ended the program end the operation, too, that opened a dialog.
  void Rethrow() const;

 private:
  std::exception_ptr error_;
  std::function<void()> refresh_ = [] {};
};

}  // namespace tarnwick
