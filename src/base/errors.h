// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

namespace tarnwick {

/// An error that no rule reports itself. What nobody catches ends the program: the window names
/// `what()` in a message box and exits with status 1.
class RuntimeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A counter, quantity or index left −32768..32767.
class OverflowError : public RuntimeError {
 public:
  OverflowError() : RuntimeError("Overflow") {}
};

/// An index outside a fixed table.
class SubscriptError : public RuntimeError {
 public:
  SubscriptError() : RuntimeError("Subscript out of range") {}
};

/// A text that had to be a number is none.
class TypeMismatchError : public RuntimeError {
 public:
  TypeMismatchError() : RuntimeError("Type mismatch") {}
};

class DivisionByZeroError : public RuntimeError {
 public:
  DivisionByZeroError() : RuntimeError("Division by zero") {}
};

/// A file could not be written. `what()` names the file and the reason.
class FileError : public RuntimeError {
 public:
  using RuntimeError::RuntimeError;
};

}  // namespace tarnwick
