// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <filesystem>
#include <functional>

#include "base/host.h"
#include "support/testing.h"

namespace tarnwick {

/// A user made of lists: what was said is kept, questions take their answers from a queue, dialogs
/// run the function that the test put there. What no test expects is a failure.
class FakeHost : public Host {
 public:
  Lines Said;  ///< messages and questions in their order
  std::deque<bool> Answers;
  std::function<void()> OnArmySelectionForm = Unexpected, OnArmyListForm = Unexpected,
                        OnLeaderMgmtForm = Unexpected, OnSpecForm = Unexpected;
  std::vector<std::filesystem::path> Pictures;

  /// What was said since the last call.
  Lines Heard() { return std::exchange(Said, {}); }

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
  void ShowArmySelectionForm() override { OnArmySelectionForm(); }
  void ShowArmyListForm() override { OnArmyListForm(); }
  void ShowLeaderMgmtForm() override { OnLeaderMgmtForm(); }
  void ShowSpecForm() override { OnSpecForm(); }
  void ShowPicture(const std::filesystem::path& file) override { Pictures.push_back(file); }
  std::string Today() override { return "2026-11-21"; }

 private:
  static void Unexpected() { ADD_FAILURE() << "Nobody expects this dialog"; }
};

}  // namespace tarnwick
