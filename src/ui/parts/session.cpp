// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/session.h"

#include <string>
#include <utility>

#include <QCoreApplication>

namespace tarnwick {

void Session::OnChange(QObject* view, std::function<void()> refresh) {
  std::erase_if(views_, [](const View& known) { return !known.Owner; });
  views_.push_back({view, std::move(refresh)});
}

bool Session::Run(const std::function<void()>& operation) {
  if (error_) return false;
  try {
    operation();
    for (const View& view : views_) {
      if (view.Owner) view.Refresh();
    }
    return true;
  } catch (const std::exception& error) {
    if (!error_) {
      error_ = std::current_exception();
      User.Message("Run-time error: " + std::string(error.what()));
      QCoreApplication::exit(1);
    }
    return false;
  }
}

void Session::Guard(QWidget* box, const std::function<bool()>& refused) {
  guard_.Watch(box, [this, refused] {
    bool result = false;
    return !Run([&] { result = refused(); }) || result;
  });
}

void Session::Rethrow() const {
  if (error_) std::rethrow_exception(error_);
}

}  // namespace tarnwick
