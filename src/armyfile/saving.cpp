// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/saving.h"

#include <string>
#include <string_view>

#include "base/ansi.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"
#include "battlefield/setups.h"
#include "battlefield/terrain.h"
#include "catalog/pending_files.h"
#include "rules/unit_points.h"
#include "rules/verification.h"

namespace tarnwick {
namespace {

/// Writes the lines of an army file to `text`.
class ArmyWriter {
 public:
  ArmyWriter(const WorkingArmy& work, std::string& text)
      : army_(work.Army), header_(work.Header), text_(text) {}

  void Write(const std::string& today) {
    WriteEditor(today);
    WriteLeader();
    WriteLine("[ARMY]");
    WriteHeader();
    WriteCards();
    WriteUnits();
    WriteKey("route", "30");
  }

 private:
  void WriteLine(std::string_view line) { text_.append(line).append(CrLf); }

  void WriteKey(std::string_view key, std::string_view value) {
    WriteLine(std::string(key).append("=").append(value));
  }

  void WriteEditor(const std::string& today) {
    WriteLine("[EDITOR]");
    WriteKey("version", VersionText(army_.EditorVersion));
    WriteKey("updated", today);
    WriteLine("");
  }

  void WriteLeader() {
    WriteLine("[LEADER]");
    const LeaderRec& leader = army_.Leaders[army_.SelectedLeader];
    WriteKey("name", leader.Name);
    WriteKey("initiative", leader.Initiative);
    WriteKey("command", NumberText(leader.Command));
    WriteLine("");
  }

  void WriteHeader() {
    WriteKey("name", army_.Management.ArmyName.Text);
    WriteKey("base", army_.BaseArmyName);
    WriteKey("author", header_.ArmyAuthor);
    WriteKey("points", NumberText(army_.PointsSpent));
    WriteKey("description", header_.ArmyDescription);
    WriteKey("period", header_.ArmyPeriod);
    WriteKey("type", ArmyTypeCode(header_));
    WriteKey("images", header_.ArmyImages);
    const std::string rules = SpecialRulesText(header_);
    if (!rules.empty()) WriteKey("special_rules", rules);
  }

  void WriteCards() {
    const CommandPanel& panel = army_.Command;
    for (Int16 j = 0; j < army_.TotSpecial; ++j) {
      const std::string& bought = panel.SpecBuy[j].Text;
      if (!bought.empty()) WriteKey(LowerCase(panel.SpecNameLabel[j].Caption), bought);
    }
  }

  /// One line per unit, not per row.
  void WriteUnits() {
    Int16 lines;
    Int16 troopQuality;
    for (Int16 r = 1; r <= army_.TotUnits; ++r) {
      for (Int16 copy = 0; copy < army_.BaseUnits[r].Bought; ++copy) {
        ++lines;
        WriteKey(RowKey("unit", lines), UnitValue(army_.BaseUnits[r]));
        troopQuality += UnitPoints(army_, r);
      }
    }
    WriteKey("numunits", NumberText(lines));
    WriteKey("TQ", NumberText(troopQuality));
  }

  std::string UnitValue(UnitRec unit) const {
    // Army files have always said "AF" for "A". Loading finds no row for it: catalogs write "AF".
    if (unit.Missile == "A") unit.Missile = "AF";
    std::string value = IdentityText(unit) + "," + army_.Catalog.Images[unit.ChosenImageIdx].Id;
    if (!unit.SpecialsKey.empty()) value += "," + unit.SpecialsKey;
    return value;
  }

  const ArmyState& army_;
  const ArmyHeader& header_;
  std::string& text_;
};

/// The lines of the army file. An error on the way replaces the file by the lines made so far.
std::string ArmyText(const WorkingArmy& work, const std::string& today,
                     const std::filesystem::path& file) {
  std::string text;
  try {
    ArmyWriter(work, text).Write(today);
  } catch (const RuntimeError&) {
    ReplaceFile(file, text, Durability::Lasting);
    throw;
  }
  return text;
}

}  // namespace

bool SaveArmy(const WorkingArmy& work, Disk& disk, Host& host) {
  const ArmyState& army = work.Army;
  const std::string& name = army.Management.ArmyFileName.Text;
  const auto path = ArmyPath(disk.ModuleFolder(army.BrakkaMode), name);
  if (!VerifyArmy(army, host, false)) return false;
  if (FileExists(path) && !host.Question("Do you want to replace the existing " + name +
                                         std::string(armyEnding) + " file ?")) {
    return false;
  }
  PendingFiles files;
  files.Write(path, ArmyText(work, host.Today(), path));
  // Terrain goes to the program folder whatever the module.
  SaveTerrain(work.Field, files, ArmyPath(disk.ProgramFolder, name));
  // Setups go with the name that the army was loaded under.
  CopySetupsToArmy(disk, files, ArmyPath(disk.ProgramFolder, work.Header.ArmyFile));
  files.Replace(disk.Files);
  host.Message("Army Saved");
  return true;
}

}  // namespace tarnwick
