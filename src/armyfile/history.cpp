// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/history.h"

#include <utility>

#include "battlefield/setups.h"

namespace tarnwick {
namespace {

/// The army without what only shows it, and without a text that nothing has accepted yet.
WorkingArmy Bare(WorkingArmy work) {
  ArmyState& army = work.Army;
  army.Title = "";
  army.Units = {};
  army.Command.LeaderFrame = {};
  for (Int16 j = 0; army.Command.SpecBuy.Has(j); ++j)
    army.Command.SpecBuy[j].Text = "";
  return work;
}

}  // namespace

bool History::SameArmy(const Moment& a, const Moment& b) {
  return a.Setups == b.Setups && Bare(a.Work) == Bare(b.Work);
}

void History::EndEvent(const StepName& name, int typing) {
  Moment now = {work_, StoredScratch(disk_)};
  const bool changed = name && !SameArmy(now, last_);
  if (changed) Add(name, typing, now);
  // What was refused is gone when the next step is taken back.
  if (changed || !name) last_ = std::move(now);
  if (!std::exchange(saving_, false)) return;
  saved_ = Place();
  typing_ = 0;
}

void History::Add(const StepName& name, int typing, const Moment& now) {
  redo_.clear();
  if (typing == 0 || typing != typing_) {
    undo_.push_back({name(), ++count_, std::move(last_)});
    typing_ = typing;
  } else if (!SameArmy(now, undo_.back().Other)) {
    undo_.back().Name = name();
  } else {  // typed back
    undo_.pop_back();
    typing_ = 0;
  }
  if (undo_.size() <= most_) return;
  forgotten_ = undo_.front().Number;
  undo_.pop_front();
}

void History::Move(Steps& from, Steps& to) {
  if (from.empty()) return;
  to.push_back(std::move(from.back()));
  from.pop_back();
  last_ = std::exchange(to.back().Other, {work_, StoredScratch(disk_)});
  work_ = last_.Work;
  RestoreScratch(disk_, last_.Setups);
  typing_ = 0;
}

}  // namespace tarnwick
