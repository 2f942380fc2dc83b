// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/session.h"

#include <string>

#include <QCoreApplication>

#include "base/errors.h"

namespace tarnwick {

bool Session::Run(const std::function<void()>& operation) {
  try {
    operation();
    refresh_();
    return true;
  } catch (const RuntimeError& error) {
    User.Message("Run-time error: " + std::string(error.what()));
    QCoreApplication::exit(1);
    return false;
  }
}

}  // namespace tarnwick
