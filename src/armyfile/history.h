// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "armyfile/working_army.h"

namespace tarnwick {

/// What undo calls a step: "4 HI Vet". It is asked when the step is done.
using StepName = std::function<std::string()>;

inline StepName Step(std::string name) {
  return [name = std::move(name)] { return name; };
}

/// Takes steps of the working army back, and does them again. A step is kept as the whole value
/// before and after it, with the setups on the disk; steps in a row share them.
class History {
 public:
  /// Keeps the last `most` steps of `work`, with the setups in the program folder of `disk`. Both
  /// must outlive it.
  History(WorkingArmy& work, const Disk& disk, std::size_t most = 500)
      : work_(work), disk_(disk), most_(most), last_(Now()) {}

  /// Ends an event. When it has a name and the army is another than at the end of the event before,
  /// it was a step, and what was taken back is gone; without a name it has only looked around.
  /// Steps of one `typing`, a number other than 0, are one. Returns whether it was a step.
  bool EndEvent(const StepName& name = nullptr, int typing = 0);

  /// The event under way saves the army or loads one: there is nothing to save when it ends.
  void MarkSaved() { saving_ = true; }
  /// Whether a step lies between here and where the army was saved, loaded or begun last. At the
  /// very start there is nothing to save either.
  bool Unsaved() const { return Place() != saved_ && Place() != 0; }

  /// The step to be taken back next; "" without one.
  std::string UndoName() const { return NameOf(undo_); }
  /// The step to be done again next; "" without one.
  std::string RedoName() const { return NameOf(redo_); }

  // The whole value comes back, and the setups on the disk as an edit goes there: a failed write is
  // silent. Without a step nothing happens.

  void Undo() { Move(undo_, redo_, &Done::Before); }
  void Redo() { Move(redo_, undo_, &Done::After); }

 private:
  struct Moment {
    WorkingArmy Work;
    std::optional<std::string> Setups;  ///< nothing without the file
  };
  using Kept = std::shared_ptr<const Moment>;
  struct Done {
    std::string Name;
    int Number;  ///< no other step has it
    Kept Before, After;
  };
  using Steps = std::deque<Done>;

  Kept Now() const;
  static bool SameArmy(const Moment& a, const Moment& b);
  static std::string NameOf(const Steps& steps) { return steps.empty() ? "" : steps.back().Name; }
  int Place() const { return undo_.empty() ? forgotten_ : undo_.back().Number; }
  void Add(const StepName& name, int typing, const Kept& now);
  void Move(Steps& from, Steps& to, Kept Done::*moment);

  WorkingArmy& work_;
  const Disk& disk_;
  std::size_t most_;
  Kept last_;  ///< when the last event ended
  Steps undo_, redo_;
  int count_ = 0;
  int forgotten_ = 0;  ///< the last step of which there were too many
  int typing_ = 0;     ///< of the last step
  int saved_ = 0;      ///< the place
  bool saving_ = false;
};

}  // namespace tarnwick
