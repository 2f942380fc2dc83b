// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/host.h"

namespace tarnwick {

/// A user made of lists: what was said is kept, questions take their answers from a queue, dialogs
/// run the function that the test put there. What no test expects is a failure.
class FakeHost : public Host {
 public:
  std::vector<std::string> Said;  ///< messages and questions in their order
  std::deque<bool> Answers;
  std::function<void()> OnArmySelectionForm, OnArmyListForm, OnLeaderMgmtForm, OnSpecForm;
  std::vector<std::filesystem::path> Pictures;

  /// What was said since the last call.
  std::vector<std::string> Heard() { return std::exchange(Said, {}); }

  void Message(const std::string& text) override { Said.push_back(text); }
  bool Question(const std::string& text) override {
    Said.push_back(text);
    if (Answers.empty()) {
      ADD_FAILURE() << "Nobody answers: " << text;
      return false;
    }
    const bool answer = Answers.front();
    Answers.pop_front();
    return answer;
  }
  void ShowArmySelectionForm() override { Run(OnArmySelectionForm, "army selection"); }
  void ShowArmyListForm() override { Run(OnArmyListForm, "saved armies"); }
  void ShowLeaderMgmtForm() override { Run(OnLeaderMgmtForm, "leader"); }
  void ShowSpecForm() override { Run(OnSpecForm, "special abilities"); }
  void ShowPicture(const std::filesystem::path& file) override { Pictures.push_back(file); }
  std::string Today() override { return "2026-11-21"; }

 private:
  static void Run(const std::function<void()>& dialog, const char* name) {
    if (dialog) {
      dialog();
    } else {
      ADD_FAILURE() << "Nobody expects the dialog: " << name;
    }
  }
};

/// What a host has heard, as tests spell it.
using Lines = std::vector<std::string>;

}  // namespace tarnwick
