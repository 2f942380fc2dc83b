// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/controls.h"
#include "base/errors.h"
#include "base/int16.h"

namespace tarnwick {

/// What a host has heard, or a list shows, as tests spell it.
using Lines = std::vector<std::string>;

inline std::ostream& operator<<(std::ostream& out, Int16 value) {
  return out << value.Value();
}

/// Texts, numbers and truths (1 and 0) as one text, with a bar between them.
template <typename... Values>
std::string Joined(const Values&... values) {
  std::ostringstream text;
  const char* bar = "";
  ((text << std::exchange(bar, "|") << values), ...);
  return text.str();
}

/// What the error says that ends `act`; "" when none does.
template <typename Act>
std::string ErrorOf(const Act& act) {
  try {
    act();
    return "";
  } catch (const RuntimeError& error) {
    return error.what();
  }
}

inline Lines Entries(const ListBox& list) {
  Lines texts;
  for (const ListEntry& entry : list.Entries)
    texts.push_back(entry.Text);
  return texts;
}

/// The captions of the first labels or options of an array; "-" for those that are hidden.
template <typename Controls>
std::string Shown(const Controls& controls, int count) {
  std::string text;
  for (int i = 0; i < count; ++i)
    text += (controls[i].Visible ? controls[i].Caption : "-") + "|";
  return text;
}

}  // namespace tarnwick
