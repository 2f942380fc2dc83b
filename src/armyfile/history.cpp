// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/history.h"

#include <utility>

#include "battlefield/setups.h"

namespace tarnwick {

History::Kept History::Now() const {
  return Kept(new Moment{work_, StoredScratch(disk_)});
}

bool History::SameArmy(const Moment& a, const Moment& b) {
  if (a.Setups != b.Setups) return false;
  // All but what only shows the army, and what was typed and not accepted yet.
  WorkingArmy other = b.Work;
  ArmyState& army = other.Army;
  army.Title = a.Work.Army.Title;
  army.Units = a.Work.Army.Units;
  army.Command.LeaderFrame = a.Work.Army.Command.LeaderFrame;
  const auto& cards = a.Work.Army.Command.SpecBuy;
  for (Int16 j = 0; army.Command.SpecBuy.Has(j) && cards.Has(j); ++j)
    army.Command.SpecBuy[j].Text = cards[j].Text;
  return other == a.Work;
}

bool History::EndEvent(const StepName& name, int typing) {
  Kept now = Now();
  const bool step = name && !SameArmy(*now, *last_);
  if (step) Add(name, typing, now);
  // What was typed and refused is gone when the next step is taken back.
  if (step || typing == 0) last_ = std::move(now);
  if (std::exchange(saving_, false)) {
    saved_ = Place();
    typing_ = 0;
  }
  return step;
}

void History::Add(const StepName& name, int typing, const Kept& now) {
  redo_.clear();
  if (typing == 0 || typing != typing_) {
    undo_.push_back({name(), ++count_, last_, now});
    typing_ = typing;
  } else if (!SameArmy(*now, *undo_.back().Before)) {
    undo_.back().Name = name();
    undo_.back().After = now;
  } else {  // typed back
    undo_.pop_back();
    typing_ = 0;
  }
  if (undo_.size() <= most_) return;
  forgotten_ = undo_.front().Number;
  undo_.pop_front();
}

void History::Move(Steps& from, Steps& to, Kept Done::*moment) {
  if (from.empty()) return;
  last_ = from.back().*moment;
  to.push_back(std::move(from.back()));
  from.pop_back();
  work_ = last_->Work;
  RestoreScratch(disk_, last_->Setups);
  typing_ = 0;
}

}  // namespace tarnwick
