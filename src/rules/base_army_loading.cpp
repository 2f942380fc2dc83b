// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/base_army_loading.h"

#include <algorithm>
#include <string>

#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"
#include "rules/budget.h"
#include "rules/leaders.h"

namespace tarnwick {
namespace {

std::string ReadKey(const ArmyState& state, const Disk& disk, std::string_view key) {
  return disk.Files.ReadIniString(state.BaseArmyName, key, state.ArmyListFile);
}

Int16 ReadNumber(const ArmyState& state, const Disk& disk, std::string_view key) {
  return LenientInt16(ReadKey(state, disk, key));
}

/// How many rows there are of a kind; a negative number says that there are none.
Int16 ReadCount(const ArmyState& state, const Disk& disk, std::string_view key) {
  return std::max(ReadNumber(state, disk, key), Int16(0));
}

/// No row of the army before is offered, or was paid for, under the name of this one, wherever its
/// loading ends.
void ForgetRows(ArmyState& state) {
  state.BaseUnits.Fill({});
  state.TotUnits = 0;
  state.PointsSpent = 0;
  state.TotLimits = 0;
  for (int j = 0; j <= 6; ++j) {
    state.Units.TypeLimit[j].Visible = false;
    state.Units.MinLimit[j].Visible = false;
  }
}

void LoadUnits(ArmyState& state, const Disk& disk, Host& host, Int16 count) {
  state.TotUnits = std::min(count, Int16(0));  // a negative number stays what it is
  for (Int16 i = 1; i <= count; ++i) {
    const std::string row = ReadKey(state, disk, RowKey("unit", i));
    if (row.empty()) {
      host.Message("Army unit " + NumberText(i) + " not found");
      state.TotUnits = 0;
      return;
    }
    state.BaseUnits[i] = ParseUnitRow(row);
    state.TotUnits = i;
  }
}

void ShowLimit(ArmyState& state, Int16 row, const std::string& asWritten) {
  const LimitRec& limit = state.Limits[row];
  Label& type = state.Units.TypeLimit[row - 1];
  type.Visible = true;
  type.Caption = limit.Class.empty() ? asWritten : limit.TypeA + "[" + limit.Class + "]";
  type.Tag = NumberText(row);
  state.Units.MinLimit[row - 1].Visible = true;
  state.Units.MinLimit[row - 1].Caption = NumberText(limit.Minimum);
}

/// Makes row `j` of the special cards out of row 0 when it is missing.
void LoadCardRow(CommandPanel& panel, Int16 j) {
  if (panel.SpecBuy.Has(j)) return;
  panel.SpecNameLabel.Load();
  panel.SpecCostLabel.Load();
  panel.SpecMaxLabel.Load();
  panel.SpecBuy.Load();
}

void ShowCardRow(CommandPanel& panel, Int16 j, bool named) {
  panel.SpecNameLabel[j].Visible = named;
  panel.SpecCostLabel[j].Visible = true;
  panel.SpecMaxLabel[j].Visible = true;
  panel.SpecBuy[j].Visible = true;
}

/// A missing row is reported; the leaders before it stay.
void LoadLeaders(ArmyState& state, const Disk& disk, Host& host) {
  state.SelectedLeader = -1;
  TickOption(state.Command.LeaderName, -1);
  state.LeaderCount = ReadCount(state, disk, "tot_leader");
  state.Command.LeaderName[0].Visible = true;
  for (Int16 i = 0; i < state.LeaderCount; ++i) {
    const std::string row = ReadKey(state, disk, RowKey("leader", i + 1));
    if (row.empty()) {
      host.Message("Leader # " + NumberText(i + 1) + " not present");
      break;
    }
    state.Leaders[i] = ParseLeaderRow(row);
    ShowLeader(state, i);
  }
  for (Int16 i = state.LeaderCount; i <= 6; ++i)
    state.Command.LeaderName[i].Visible = false;
}

void LoadLimits(ArmyState& state, const Disk& disk) {
  const Int16 count = ReadCount(state, disk, "tot_limits");
  for (Int16 i = 1; i <= count; ++i) {
    const std::string row = ReadKey(state, disk, RowKey("limit", i));
    state.Limits[i] = ParseLimitRow(row);
    ShowLimit(state, i, GetField(row, 1));
    state.TotLimits = i;
  }
}

void LoadSpecials(ArmyState& state, const Disk& disk) {
  CommandPanel& panel = state.Command;
  state.TotSpecial = ReadCount(state, disk, "tot_special");
  for (Int16 i = 1; i <= state.TotSpecial; ++i) {
    const Int16 j = i - 1;
    if (!state.SpecRowsLoaded || !panel.SpecBuy.Has(j)) {
      LoadCardRow(panel, j);
      ShowCardRow(panel, j, true);
    }
    const CardRow card = ParseCardRow(ReadKey(state, disk, RowKey("special", i)));
    panel.SpecBuy[j].Text = "";
    panel.SpecBuy[j].Tag = "0";
    panel.SpecNameLabel[j].Caption = card.Name;
    panel.SpecCostLabel[j].Caption = card.Cost;
    panel.SpecMaxLabel[j].Caption = card.Maximum;
  }
  if (state.SpecRowsLoaded) return;  // rows beyond this army's stay as an earlier one left them
  for (Int16 i = state.TotSpecial + 1; i <= 4; ++i) {
    // The panel shows four rows whatever the army offers; without a card there is no name to show.
    LoadCardRow(panel, i - 1);
    ShowCardRow(panel, i - 1, false);
  }
  state.SpecRowsLoaded = true;
}

}  // namespace

void LoadBaseArmy(ArmyState& state, const Disk& disk, Host& host) {
  const ProfileFiles::Moment moment(disk.Files);
  try {
    if (state.Management.ArmyName.Text.empty()) {
      state.Management.ArmyName.Text = state.BaseArmyName;
    }
    ForgetRows(state);
    LoadLeaders(state, disk, host);
    LoadLimits(state, disk);
    LoadSpecials(state, disk);
    const Int16 unitCount = ReadNumber(state, disk, "tot_units");
    state.PointsLeft = ReadNumber(state, disk, "points");
    state.ArmyPoints = state.PointsLeft;
    state.CommandPts = ReadNumber(state, disk, "command_pts");
    ShowPoints(state);
    LoadUnits(state, disk, host, unitCount);
  } catch (const RuntimeError&) {
    // An army that breaks the catalog's rules is offered as far as it could be read.
  }
}

}  // namespace tarnwick
