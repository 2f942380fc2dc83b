// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/session.h"

#include <string>

#include <QCoreApplication>

namespace tarnwick {

bool Session::Run(const std::function<void()>& operation) {
  if (error_) return false;
  try {
    operation();
    refresh_();
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

bool Session::Allows(const std::function<bool()>& operation) {
  bool allowed = false;
  return Run([&] { allowed = operation(); }) && allowed;
}

void Session::Rethrow() const {
  if (error_) std::rethrow_exception(error_);
}

}  // namespace tarnwick
