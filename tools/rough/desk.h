// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "armyfile/army_browser.h"
#include "armyfile/working_army.h"
#include "base/host.h"
#include "catalog/disk.h"

namespace tarnwick {

/// A started editor without its window, and a user who agrees to everything and remembers what he
/// was told.
class Desk : public Host {
 public:
  explicit Desk(const std::filesystem::path& folder, bool brakka = false);

  Disk Store;
  WorkingArmy Work;
  std::string Told;  ///< the last message
  int Tellings = 0;

  /// Opens the army browser, picks the army of that name and loads it.
  bool Load(const std::string& army);
  /// Starts an army of the base army of that name.
  void Start(const std::string& base);
  bool Save(const std::string& name);
  /// Deletes an army in the browser.
  void Delete(const std::string& army);

  /// Gives army and setup 1 one of two versions, which differ in every part of the file.
  void Change(bool second);
  /// The setup alone, which is written through at once.
  void ChangeSetup(bool second);

  void Message(const std::string& text) override;
  bool Question(const std::string& /*text*/) override { return true; }
  void ShowArmyListForm() override;
  void ShowArmySelectionForm() override;
  void ShowLeaderMgmtForm() override {}
  void ShowSpecForm() override {}
  void ShowPicture(const std::filesystem::path& /*file*/) override {}
  std::string Today() override { return "2026-11-22"; }

 private:
  std::string choice_;
};

}  // namespace tarnwick
