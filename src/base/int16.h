// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <limits>

#include "base/errors.h"

namespace tarnwick {

/// A 16-bit signed counter. Every operator is checked: a result outside −32768..32767 throws
/// OverflowError and leaves the operands as they were.
class Int16 {
 public:
  constexpr Int16() = default;
  /// Throws OverflowError when `value` does not fit.
  constexpr Int16(int value) : value_(Checked(value)) {}  // NOLINT(google-explicit-constructor)

  /// The value as a plain int, for indexing and for wider arithmetic.
  constexpr int Value() const { return value_; }

  constexpr Int16& operator+=(Int16 other) { return *this = *this + other; }
  constexpr Int16& operator-=(Int16 other) { return *this = *this - other; }
  constexpr Int16& operator++() { return *this += 1; }

  friend constexpr Int16 operator+(Int16 a, Int16 b) { return a.value_ + b.value_; }
  friend constexpr Int16 operator-(Int16 a, Int16 b) { return a.value_ - b.value_; }
  friend constexpr Int16 operator*(Int16 a, Int16 b) { return a.value_ * b.value_; }
  friend constexpr Int16 operator-(Int16 a) { return -a.value_; }
  friend constexpr bool operator==(Int16 a, Int16 b) { return a.value_ == b.value_; }
  friend constexpr auto operator<=>(Int16 a, Int16 b) { return a.value_ <=> b.value_; }

 private:
  using Limits = std::numeric_limits<std::int16_t>;

  static constexpr std::int16_t Checked(int value) {
    if (value < Limits::min() || value > Limits::max()) throw OverflowError();
    return static_cast<std::int16_t>(value);
  }

  std::int16_t value_ = 0;
};

}  // namespace tarnwick
