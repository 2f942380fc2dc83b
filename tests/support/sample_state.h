// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "base/numbers.h"
#include "rules/army_state.h"
#include "rules/base_army_loading.h"
#include "rules/unit_grid.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {

/// A started editor in a folder of its own, with the base army "Sample" loaded.
struct SampleState {
  /// `army` holds the lines of the army's section; more sections may follow in it.
  explicit SampleState(std::string_view army, std::string_view images = "") {
    Folder.Write("armylist.dat", std::string("[Sample]\n").append(army));
    Folder.Write("images.dat", images);
    InitializeVariables(State, Store);
    LoadImages(State.Catalog, Store, false, "");
    Load("Sample");
  }

  void Load(const std::string& army) {
    State.BaseArmyName = army;
    LoadBaseArmy(State, Store, Host);
    ShowSelectUnits(State, Store);
  }

  TempFolder Folder;
  FakeHost Host;
  Disk Store{Folder.Path()};
  ArmyState State;
  UnitsPanel& Units = State.Units;
  CommandPanel& Command = State.Command;
};

/// "left/spent" of the army points.
inline std::string Points(const ArmyState& state) {
  return NumberText(state.PointsLeft) + "/" + NumberText(state.PointsSpent);
}

}  // namespace tarnwick
