// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace tarnwick {

/// How the rules reach the user and the day's date. Every dialog is modal: the call returns when
/// the user has closed it.
class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  /// A box with an OK button.
  virtual void Message(const std::string& text) = 0;
  /// The same for an error that ends the program.
  virtual void ErrorMessage(const std::string& text) { Message(text); }
  /// A box with OK and Cancel; true only for OK.
  [[nodiscard]] virtual bool Question(const std::string& text) = 0;

  /// The choice of a base army; the answer is `BaseArmyName`.
  virtual void ShowArmySelectionForm() = 0;
  /// The choice of a saved army; the answer is `ArmyFile`.
  virtual void ShowArmyListForm() = 0;
  /// The definition of a leader.
  virtual void ShowLeaderMgmtForm() = 0;
  /// The special abilities of the unit row `SpecUnitRow`.
  virtual void ShowSpecForm() = 0;
  /// The picture window, which is not modal; a further call changes its picture.
  virtual void ShowPicture(const std::filesystem::path& file) = 0;

  /// The current date in its short form: "2026-11-21".
  virtual std::string Today() = 0;
};

}  // namespace tarnwick
