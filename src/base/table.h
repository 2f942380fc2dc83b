// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <deque>

#include "base/errors.h"
#include "base/int16.h"

namespace tarnwick {

/// A fixed table with rows Low to High, both included. Any other index throws SubscriptError.
template <typename T, int Low, int High>
class Table {
  static_assert(Low <= High);

 public:
  static constexpr int First = Low;
  static constexpr int Last = High;

  T& operator[](Int16 index) { return rows_[Position(index)]; }
  const T& operator[](Int16 index) const { return rows_[Position(index)]; }

  void Fill(const T& value) { rows_.fill(value); }

  auto begin() { return rows_.begin(); }
  auto end() { return rows_.end(); }
  auto begin() const { return rows_.begin(); }
  auto end() const { return rows_.end(); }

  bool operator==(const Table&) const = default;

 private:
  static std::size_t Position(Int16 index) {
    if (index < Low || index > High) throw SubscriptError();
    return static_cast<std::size_t>(index.Value() - Low);
  }

  std::array<T, static_cast<std::size_t>(High - Low + 1)> rows_{};
};

/// An array of controls that starts with element 0 alone and grows at its end. An element that
/// was never loaded is a SubscriptError.
template <typename T>
class ControlArray {
 public:
  int Count() const { return static_cast<int>(elements_.size()); }
  bool Has(Int16 index) const { return index >= 0 && index < Count(); }

  /// Makes the next element, a copy of element 0.
  void Load() { elements_.push_back(elements_.front()); }

  T& operator[](Int16 index) { return elements_[Position(index)]; }
  const T& operator[](Int16 index) const { return elements_[Position(index)]; }

  bool operator==(const ControlArray&) const = default;

 private:
  std::size_t Position(Int16 index) const {
    if (!Has(index)) throw SubscriptError();
    return static_cast<std::size_t>(index.Value());
  }

  std::deque<T> elements_{T{}};  // growing leaves the elements where they are
};

}  // namespace tarnwick
