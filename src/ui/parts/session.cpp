// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/session.h"

#include <string>
#include <utility>

#include <QCoreApplication>

#include "armyfile/loading.h"
#include "armyfile/saving.h"

namespace tarnwick {

void Session::OnChange(QObject* view, std::function<void()> refresh) {
  std::erase_if(views_, [](const auto& known) { return !known.first; });
  views_.emplace_back(view, std::move(refresh));
}

bool Session::Run(const StepName& step, const std::function<void()>& operation, int typing) {
  if (error_) return false;
  try {
    guard_.Follow([&] {
      ++underWay_;
      operation();
      --underWay_;
      EndEvent(step, typing);
      for (const auto& [view, refresh] : views_) {
        if (view) refresh();
      }
    });
    return true;
  } catch (const std::exception& error) {
    if (!error_) {
      error_ = std::current_exception();
      User.ErrorMessage("Run-time error: " + std::string(error.what()));
      QCoreApplication::exit(1);
    }
    return false;
  }
}

void Session::EndEvent(const StepName& step, int typing) {
  if (step) step_ = step;  // of an operation and those that it made run, it names the event
  if (underWay_ > 0) return;
  const bool made = history_.EndEvent(std::exchange(step_, nullptr), typing);
  if (made && typing == 0) guard_.ForgetTyping();  // or it would be taken back before that step
}

void Session::Guard(QWidget* box, const StepName& step, const std::function<bool()>& refused,
                    std::string* taken) {
  const auto check = [this, box, refused, step] {
    bool result = false;
    const auto look = [&] { result = refused(); };
    return !Run(step, look, guard_.Visit(box)) || result;
  };
  guard_.Watch(box, check, taken);
}

bool Session::Save() {
  bool saved = false;
  Run([&] {
    saved = SaveArmy(Work, Store, User);
    if (saved) history_.MarkSaved();
  });
  if (saved) guard_.ForgetTyping();
  return saved;
}

void Session::Load() {
  Run(Step("Load army"), [this] {
    if (LoadBtn_Click(Work, Store, User)) history_.MarkSaved();
  });
}

void Session::Undo() {
  const auto undo = [this] { history_.Undo(); };
  if (!guard_.UndoTyping()) guard_.Replace([&] { Run(undo); });
}

void Session::Redo() {
  const auto redo = [this] { history_.Redo(); };
  if (!guard_.RedoTyping()) guard_.Replace([&] { Run(redo); });
}

void Session::Rethrow() const {
  if (error_) std::rethrow_exception(error_);
}

}  // namespace tarnwick
