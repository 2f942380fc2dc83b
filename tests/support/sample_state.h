// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "rules/army_state.h"
#include "rules/base_army_loading.h"
#include "rules/unit_grid.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {

/// A started editor with a base army loaded, in a folder of its own with the catalogs of the
/// tests' data.
struct SampleState {
  /// `catalog` takes the place of the army catalog when there is one.
  explicit SampleState(const std::string& army, const std::string& catalog = "") {
    Folder.Copy(TEST_DATA "/rules");
    if (!catalog.empty()) Folder.Write("armylist.dat", catalog);
    InitializeVariables(State, Store);
    LoadImages(State.Catalog, Store, false, "");
    Load(army);
  }

  void Load(const std::string& army) {
    State.BaseArmyName = army;
    LoadBaseArmy(State, Store, Host);
    ShowSelectUnits(State, Store);
  }

  /// "left/spent" of the army points.
  std::string Points() const { return Joined(State.PointsLeft) + "/" + Joined(State.PointsSpent); }

  TempFolder Folder;
  FakeHost Host;
  Disk Store{Folder.Path()};
  ArmyState State;
  UnitsPanel& Units = State.Units;
  CommandPanel& Command = State.Command;
};

}  // namespace tarnwick
