// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/controls.h"
#include "base/int16.h"
#include "base/table.h"

namespace tarnwick {

struct TerrainKindRec {
  std::string Name;   ///< the keyword that army files hold
  Int16 ArmyCost;     ///< army points
  Int16 CommandCost;  ///< command points
  bool operator==(const TerrainKindRec&) const = default;
};

/// The "Terrain" panel. A picture box shows the picture of the kind of its number.
struct TerrainPanel {
  Table<PictureBox, 0, 5> TerrImg;  ///< the palette; the tag is the kind's index
  Table<PictureBox, 0, 8> Area;     ///< the tag is the index of the kind that lies there
  Label ArmyPts, CommandPts;
  bool operator==(const TerrainPanel&) const = default;
};

/// The "Setup" panel.
struct SetupPanel {
  ListBox setupList;
  Frame setupFramePanel{.Caption = "", .Visible = false};
  TextBox description{.Text = "<insert the setup description here>", .Tag = ""};
  Table<Label, 0, 8> unit;  ///< the nine places
  ListBox unitList;         ///< the units that no place holds
  bool operator==(const SetupPanel&) const = default;
};

/// The terrain on offer, what lies on the nine areas, and the army's setups.
struct Battlefield {
  Table<TerrainKindRec, 0, 5> TerrainKinds;
  Table<std::string, 0, 8> AreaTerrain;  ///< area n + 1; the name of a kind
  Int16 CurrentSetup;

  TerrainPanel Terrain;
  SetupPanel Setup;
  bool operator==(const Battlefield&) const = default;
};

}  // namespace tarnwick
