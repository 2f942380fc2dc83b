// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/saving.h"

#include <string>
#include <string_view>

#include "base/ansi.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "battlefield/setups.h"
#include "battlefield/terrain.h"
#include "catalog/output_file.h"
#include "rules/unit_points.h"
#include "rules/verification.h"

namespace tarnwick {
namespace {

/// Writes the lines of an army file.
class ArmyWriter {
 public:
  ArmyWriter(const WorkingArmy& work, OutputFile& file)
      : army_(work.Army), header_(work.Header), file_(file) {}

  void Write(const std::string& today) {
    WriteEditor(today);
    WriteLeader();
    file_.WriteLine("[ARMY]");
    WriteHeader();
    WriteCards();
    WriteUnits();
    WriteKey("route", "30");
  }

 private:
  void WriteKey(std::string_view key, std::string_view value) {
    file_.WriteLine(std::string(key).append("=").append(value));
  }

  void WriteEditor(const std::string& today) {
    file_.WriteLine("[EDITOR]");
    WriteKey("version", VersionText(army_.EditorVersion));
    WriteKey("updated", today);
    file_.WriteLine("");
  }

  void WriteLeader() {
    file_.WriteLine("[LEADER]");
    const LeaderRec& leader = army_.Leaders[army_.SelectedLeader];
    WriteKey("name", leader.Name);
    WriteKey("initiative", leader.Initiative);
    WriteKey("command", NumberText(leader.Command));
    file_.WriteLine("");
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

  std::string UnitValue(const UnitRec& unit) const {
    // "A" is written as "AF" but never read back as "A", deliberately.
    const std::string missile = unit.Missile == "A" ? "AF" : unit.Missile;
    std::string value = unit.UnitType + "," + unit.UnitClass + "," + unit.TQ + "," + unit.Size +
                        "," + missile + "," + army_.Catalog.Images[unit.ChosenImageIdx].Id;
    if (!unit.SpecialsKey.empty()) value += "," + unit.SpecialsKey;
    return value;
  }

  const ArmyState& army_;
  const ArmyHeader& header_;
  OutputFile& file_;
};

void WriteArmyFile(const WorkingArmy& work, const std::filesystem::path& path,
                   const std::string& today) {
  OutputFile file(path);
  try {
    ArmyWriter(work, file).Write(today);
  } catch (const FileError&) {
    throw;
  } catch (const RuntimeError&) {
    file.Close();  // what was written so far is the army file
    throw;
  }
  file.Close();
}

}  // namespace

void SaveArmy(WorkingArmy& work, Host& host) {
  ArmyState& army = work.Army;
  const std::string& name = army.Management.ArmyFileName.Text;
  const std::string fileName = name + ".army";
  const auto path = PathIn(ModuleFolder(army), fileName);
  if (!VerifyArmy(army, host, false)) return;
  if (FileExists(path) &&
      !host.Question("Do you want to replace the existing " + name + ".army file ?")) {
    return;
  }
  WriteArmyFile(work, path, host.Today());
  // Terrain goes to the program folder whatever the module.
  SaveTerrain(work.Field, army.Files, PathIn(army.ProgramFolder, fileName));
  // Setups go with the name that the army was loaded under.
  CopySetupsToArmy(army, PathIn(army.ProgramFolder, work.Header.ArmyFile + ".army"));
  host.Message("Army Saved");
}

}  // namespace tarnwick
