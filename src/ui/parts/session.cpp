// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/session.h"

#include <string>

#include <QCoreApplication>

namespace tarnwick {

void Session::OnChange(QObject* view, std::function<void()> refresh) {
  std::erase_if(views_, [](const auto& known) { return !known.first; });
  views_.emplace_back(view, std::move(refresh));
}

bool Session::Run(const std::function<void()>& operation) {
  if (error_) return false;
  try {
    guard_.Follow([&] {
      operation();
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

void Session::Guard(QWidget* box, const std::function<bool()>& refused, std::string* taken) {
  const auto check = [this, refused] {
    bool result = false;
    return !Run([&] { result = refused(); }) || result;
  };
  guard_.Watch(box, check, taken);
}

void Session::Rethrow() const {
  if (error_) std::rethrow_exception(error_);
}

}  // namespace tarnwick
