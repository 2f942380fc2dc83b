// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
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

/// An array of controls that starts with element 0 alone and grows at its end. An element that is
/// not loaded is a SubscriptError. None ever moves, also when another array is assigned, since the
/// window shows them where they are.
template <typename T>
class ControlArray {
 public:
  ControlArray() = default;
  ControlArray(const ControlArray&) = default;
  ~ControlArray() = default;
  /// Elements that `other` has not loaded are emptied and hidden.
  ControlArray& operator=(const ControlArray& other) {
    while (elements_.size() < other.count_)
      elements_.emplace_back();
    for (std::size_t i = 0; i < elements_.size(); ++i) {
      elements_[i] = i < other.count_ ? other.elements_[i] : T{};
      if (i >= other.count_) elements_[i].Visible = false;
    }
    count_ = other.count_;
    return *this;
  }

  int Count() const { return static_cast<int>(count_); }
  bool Has(Int16 index) const { return index >= 0 && index < Count(); }

  /// Makes the next element, a copy of element 0.
  void Load() {
    if (count_ == elements_.size()) elements_.emplace_back();
    elements_[count_++] = elements_.front();
  }

  T& operator[](Int16 index) { return elements_[Position(index)]; }
  const T& operator[](Int16 index) const { return elements_[Position(index)]; }

  bool operator==(const ControlArray& other) const {
    return count_ == other.count_ &&
           std::equal(elements_.begin(), elements_.begin() + Count(), other.elements_.begin());
  }

 private:
  std::size_t Position(Int16 index) const {
    if (!Has(index)) throw SubscriptError();
    return static_cast<std::size_t>(index.Value());
  }

  std::deque<T> elements_{T{}};  ///< those loaded, and others that once were
  std::size_t count_ = 1;
};

}  // namespace tarnwick
