// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

namespace tarnwick {

/// An error that no rule reports itself. What nobody catches ends the program: the window names
/// `what()` in a message box and exits with status 1.
struct RuntimeError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A counter, quantity or index left −32768..32767.
struct OverflowError : RuntimeError {
  OverflowError() : RuntimeError("Overflow") {}
};

/// An index outside a fixed table.
struct SubscriptError : RuntimeError {
  SubscriptError() : RuntimeError("Subscript out of range") {}
};

/// A text that had to be a number is none.
struct TypeMismatchError : RuntimeError {
  TypeMismatchError() : RuntimeError("Type mismatch") {}
};

struct DivisionByZeroError : RuntimeError {
  DivisionByZeroError() : RuntimeError("Division by zero") {}
};

/// A file could not be written. `what()` names the file and the reason.
struct FileError : RuntimeError {
  using RuntimeError::RuntimeError;
};

}  // namespace tarnwick
