// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/warnings.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "base/ansi.h"
#include "base/errors.h"
#include "base/host.h"
#include "base/text.h"
#include "rules/special_cards.h"
#include "rules/unit_purchase.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// Two names of one file: "a/b" and "a\b". Names that differ in case are two files.
bool SameFile(const std::string& a, const std::string& b) {
  return a == b || PathIn("", a).lexically_normal() == PathIn("", b).lexically_normal();
}

/// Hears and answers nothing.
class Nobody : public Host {
 public:
  void Message(const std::string& /*text*/) override {}
  bool Question(const std::string& /*text*/) override { return false; }
  void ShowArmySelectionForm() override {}
  void ShowArmyListForm() override {}
  void ShowLeaderMgmtForm() override {}
  void ShowSpecForm() override {}
  void ShowPicture(const fs::path& /*file*/) override {}
  std::string Today() override { return ""; }
};

/// Tries on a copy what the check of a quantity box does. The maximum keeps all but negative
/// quantities in range.
template <typename Check>
std::string QuantityWarning(const ArmyState& state, const TextBox& box, const Check& check) {
  if (!box.Visible || !box.Text.starts_with('-')) return "";
  ArmyState trial = state;
  Nobody nobody;
  try {
    static_cast<void>(check(trial, nobody));
    return "";
  } catch (const RuntimeError&) {
    return "Points cannot go as far as " + box.Text + "; leaving the box ends the editor.";
  }
}

/// Verification asks for a leader at least, so that nothing is saved.
bool HasNothing(const ArmyState& state) {
  return state.TotUnits == 0 && state.SelectedLeader == -1;
}

}  // namespace

std::string LeaderWarning(const ArmyState& state) {
  if (state.LeaderCount <= decltype(state.Command.LeaderName)::Last) return "";
  return "All seven places are taken; another leader ends the editor.";
}

std::string DeleteWarning(const ArmyState& state, const Disk& disk, const ArmyListForm& form) {
  if (!state.BrakkaMode || !form.ArmyList.HasSelection()) return "";
  const std::string name = form.ArmyList.Text();
  const std::string file = name + std::string(armyEnding);
  if (FileExists(ArmyPath(disk.ProgramFolder, name))) {
    return "Delete removes " + file + " from the base game's folder";
  }
  return "There is no " + file + " in the base game's folder; Delete would end the editor.";
}

std::string SetupWarning(const WorkingArmy& work) {
  const std::string& loaded = work.Header.ArmyFile;
  if (loaded.empty()) {
    return "Units can be deployed once the army was saved and loaded; until then setups belong to "
           "no army.";
  }
  const std::string& named = work.Army.Management.ArmyFileName.Text;
  if (named.empty() || SameFile(named, loaded)) return "";
  return "These setups belong to " + loaded + ", Save puts them into " + loaded +
         std::string(armyEnding) +
         ". Units of this army can be deployed once it was saved and loaded.";
}

std::string TerrainWarning(const ArmyState& state) {
  const std::string& name = state.Management.ArmyFileName.Text;
  if (!state.BrakkaMode || name.empty()) return "";
  return "Terrain is saved into " + name + std::string(armyEnding) +
         " of the base game's folder and not read back.";
}

std::string BaseArmyWarning(const ArmyState& state, const Disk& disk) {
  const std::string& base = state.BaseArmyName;
  if (HasNothing(state)) return "";
  if (base.empty() && state.TotUnits == 0) {
    return "This army has no base army; saved now, it cannot be loaded.";
  }
  if (base.empty()) {
    return "This army has lost its base army; saved now, it cannot be loaded. "
           "Ctrl+Z brings it back.";
  }
  if (!disk.Files.ReadIniString(base, "tot_units", state.ArmyListFile).empty()) return "";
  return "The module has no " + base + "; saved now, this army cannot be loaded.";
}

std::string FolderWarning(const ArmyState& state, const Disk& disk) {
  const std::string& name = state.Management.ArmyFileName.Text;
  if (name.empty()) {
    return HasNothing(state) ? "" : "An army without a file name can be saved, but not loaded.";
  }
  const fs::path folder = PathIn("", name).parent_path();
  if (folder.empty()) return "";
  const fs::path place = ArmyPath(disk.ModuleFolder(state.BrakkaMode), name).parent_path();
  std::error_code error;
  if (!fs::is_directory(place, error)) return "There is no folder " + AnsiFromPath(folder) + ".";
  return "Load army does not list the armies of folder " + AnsiFromPath(folder) + ".";
}

std::string UnitsWarning(const ArmyState& state, const Disk& disk) {
  std::string warning;
  for (Int16 k; k <= decltype(state.Units.Buy)::Last && warning.empty(); ++k) {
    warning = QuantityWarning(state, state.Units.Buy[k], [&](ArmyState& army, Host& host) {
      return Buy_Validate(army, disk, host, k);
    });
  }
  return warning;
}

std::string CardsWarning(const ArmyState& state) {
  const auto& boxes = state.Command.SpecBuy;
  std::string warning;
  for (Int16 j; boxes.Has(j) && warning.empty(); ++j) {
    warning = QuantityWarning(state, boxes[j], [j](ArmyState& army, Host& host) {
      return SpecBuy_Validate(army, host, j);
    });
  }
  return warning;
}

std::string LengthWarning(std::string_view text, std::size_t lineBreakSize) {
  constexpr std::size_t nearlyFull = 200;
  const auto breaks = static_cast<std::size_t>(std::count(text.begin(), text.end(), CrLf.back()));
  const std::size_t stored = text.size() + breaks * lineBreakSize - breaks * CrLf.size();
  if (stored < nearlyFull) return "";
  return std::to_string(stored) + " of " + std::to_string(longestValue);
}

}  // namespace tarnwick
