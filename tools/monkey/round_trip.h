// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

#include "armyfile/working_army.h"

namespace tarnwick {

/// An army that was lost without a word.
struct Lost : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Saves armies in a copy of a program folder and loads them back.
class RoundTrip {
 public:
  /// `copy` holds the catalogs of `program`, and gets its armies.
  RoundTrip(std::filesystem::path program, std::filesystem::path copy)
      : program_(std::move(program)), copy_(std::move(copy)) {}

  /// Leaves the box of the name `focus`, if it is one that is checked, saves `work`, and loads it
  /// in another editor. Returns "" when all that an army file keeps came back, else why not, as the
  /// window says it. Throws Lost when it says nothing. Nothing changes but the copy.
  std::string Try(WorkingArmy work, const std::string& focus) const;

 private:
  void CopyArmies() const;
  std::string Save(WorkingArmy work) const;
  WorkingArmy Load(const WorkingArmy& saved) const;

  std::filesystem::path program_, copy_;
};

}  // namespace tarnwick
