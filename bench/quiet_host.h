// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "base/host.h"

namespace tarnwick {

/// A user who only counts what is said. A benchmark in which anything was said has measured
/// something else than it meant to.
class QuietHost : public Host {
 public:
  int Messages = 0;
  std::function<void()> OnArmySelectionForm = [] {};

  void Message(const std::string& /*text*/) override { ++Messages; }
  bool Question(const std::string& /*text*/) override {
    ++Messages;
    return false;
  }
  void ShowArmySelectionForm() override { OnArmySelectionForm(); }
  void ShowArmyListForm() override { ++Messages; }
  void ShowLeaderMgmtForm() override { ++Messages; }
  void ShowSpecForm() override { ++Messages; }
  void ShowPicture(const std::filesystem::path& /*file*/) override { ++Messages; }
  std::string Today() override { return "2026-11-21"; }
};

}  // namespace tarnwick
