// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "base/controls.h"
#include "base/int16.h"
#include "base/table.h"
#include "catalog/base_army.h"
#include "catalog/disk.h"
#include "catalog/image_catalog.h"

namespace tarnwick {

/// The editor's own version; the build names it.
struct Version {
  Int16 Major = TARNWICK_VERSION_MAJOR;
  Int16 Minor = TARNWICK_VERSION_MINOR;
  Int16 Revision = TARNWICK_VERSION_REVISION;
  bool operator==(const Version&) const = default;
};

/// "1.2.1"
std::string VersionText(const Version& version);

/// The "Units" panel: the selection grid with its lines 0 to 22, the limits, the summary.
struct UnitsPanel {
  template <typename T>
  using Column = Table<T, 0, 22>;

  Column<Label> TypeLabel, ClassLabel, TQLabel, SizeLabel, MissileLabel, CostLabel, MaxLabel;
  Column<TextBox> Buy;  ///< the tag names the base-army row that the line shows
  Column<Label> UnitTotalLabel;
  Column<ListBox> ImageName;  ///< an entry's data is its row in the image catalog
  Column<Button> ViewBtn;
  Column<Label> specLabel;

  Table<OptionButton, 0, 2> ViewOption;  ///< infantry, mounted, bought

  Table<Label, 0, 6> TypeLimit;  ///< the tag names the row in `Limits`
  Table<Label, 0, 6> MinLimit;

  Label TotalCost, TQinfo;
  bool operator==(const UnitsPanel&) const = default;
};

/// The "Command" panel: leaders and special cards.
struct CommandPanel {
  Frame LeaderFrame;
  Table<OptionButton, 0, 6> LeaderName;

  ControlArray<Label> SpecNameLabel, SpecCostLabel, SpecMaxLabel;
  ControlArray<TextBox> SpecBuy;  ///< the tag holds the number of cards paid for
  bool operator==(const CommandPanel&) const = default;
};

/// The "Army Managemet" panel.
struct ManagementPanel {
  Table<OptionButton, 0, 1> modOption;  ///< the base game, Brakka
  TextBox ArmyName, ArmyFileName;
  bool operator==(const ManagementPanel&) const = default;
};

/// The "Monster Laboratory" panel. Nothing reads its lists.
struct MonsterPanel {
  MonsterPanel();

  ListBox M_Size, M_TQ, M_Type;
  bool operator==(const MonsterPanel&) const = default;
};

/// The panels of the main window.
enum class Panel { Units, Command, Detail, Terrain, Management, MonsterLaboratory, Setup };

/// They have the same place and size; one is in front.
struct FrameStack {
  Panel Front = Panel::Units;
  bool operator==(const FrameStack&) const = default;
};

/// The working army: what the catalog says of its base army, what the player bought, and what
/// the controls show.
struct ArmyState {
  Version EditorVersion;

  std::filesystem::path ArmyListFile;
  bool BrakkaMode = false;
  std::string BaseArmyName;  ///< its section in the catalog; "" when none is chosen
  bool FormReady = false;  ///< start-up is over; told for whoever must not act before, none so far
  bool SpecRowsLoaded = false;
  bool GridFilling = false;   ///< code, not the user, fills the grid
  bool SetupLoading = false;  ///< code, not the user, fills the image lists or a setup

  Int16 ArmyPoints;   ///< the base army's budget
  Int16 PointsLeft;   ///< army points still to spend
  Int16 PointsSpent;  ///< army points spent on units
  Int16 CommandPts;   ///< command points still to spend, on leaders, cards and terrain

  Int16 NumUnits;                 ///< unit lines of the army file that was loaded
  Int16 FootUnits, MountedUnits;  ///< how they fight; found while loading, shown nowhere yet

  Int16 TotUnits, TotLimits, TotSpecial;
  Table<UnitRec, 1, 200> BaseUnits;
  Table<LimitRec, 1, 10> Limits;
  Table<LeaderRec, 0, 10> Leaders;
  Int16 LeaderCount;
  Int16 SelectedLeader = -1;
  Int16 SpecUnitRow;  ///< the row whose special abilities the dialog shows

  ImageCatalog Catalog;

  std::string Title;  ///< of the main window
  FrameStack EditFrame;
  UnitsPanel Units;
  CommandPanel Command;
  ManagementPanel Management;
  MonsterPanel Monster;
  bool operator==(const ArmyState&) const = default;
};

/// What the window's design holds before anything is loaded: the module's paths, captions, and
/// the repeated rows, which stay hidden until an army fills them.
void InitializeVariables(ArmyState& state, const Disk& disk);

/// Shows or hides the twelve controls of a grid line.
void ShowGridLine(UnitsPanel& grid, Int16 line, bool visible);

/// Brings a panel to the front; nothing else changes.
void ShowPanel(ArmyState& state, Panel panel);

/// Resets the lists of the monster laboratory.
void NewMonster(MonsterPanel& panel);

/// Ticks one option of a group and unticks the others.
template <int Last>
void TickOption(Table<OptionButton, 0, Last>& group, Int16 index) {
  for (int i = 0; i <= Last; ++i)
    group[i].Value = i == index;
}

}  // namespace tarnwick
