// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "armyfile/loading.h"
#include "armyfile/saving.h"
#include "armyfile/working_army.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {

/// A started editor without its window, and its user.
struct Desk {
  explicit Desk(const std::filesystem::path& folder) : Store(folder) { Form_Load(Work, Store); }

  /// The user starts a new army; "" closes the dialog without a choice.
  void NewArmy(const std::string& base) {
    Host.OnArmySelectionForm = [this, base] { Work.Army.BaseArmyName = base; };
    NewArmyBtn_Click(Work, Store, Host);
  }

  /// The user loads an army.
  void Load(const std::string& name) {
    Host.OnArmyListForm = [this, name] { Work.Header.ArmyFile = name; };
    LoadBtn_Click(Work, Store, Host);
  }

  /// Saves, over what there is; what was said last comes back.
  std::string Save() {
    Host.Answers = {true};
    SaveArmy(Work, Store, Host);
    const Lines said = Host.Heard();
    return said.empty() ? "" : said.back();
  }

  void ChooseModule(int option) {
    TickOption(Work.Army.Management.modOption, option);
    modOption_Click(Work, Store);
  }

  FakeHost Host;
  Disk Store;
  WorkingArmy Work;
  ArmyState& Army = Work.Army;
  ArmyHeader& Header = Work.Header;
  Battlefield& Field = Work.Field;
};

/// A folder with small catalogs for both modules.
struct SampleFolder {
  SampleFolder() { Folder.Copy(TEST_DATA "/sample"); }
  TempFolder Folder;
};

struct SampleArmy : SampleFolder, Desk {
  SampleArmy() : Desk(Folder.Path()) {}
};

}  // namespace tarnwick
