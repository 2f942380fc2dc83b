// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "monkey/kept.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/text.h"
#include "battlefield/terrain.h"
#include "rules/leaders.h"
#include "rules/special_cards.h"

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;

/// A text as a line of a file gives it back.
std::string Stored(const std::string& text) {
  ProfileText file("[A]\nkey=" + text);
  std::string stored(file.Find("A", "key").value_or("").substr(0, longestValue));
  // Every look at the file takes a pair of quotes; what is compared has been looked at differently.
  return stored == text ? stored : Stored(stored);
}

/// The catalog's leader whose first word the name begins with, if there is one: loading finds no
/// other.
LeaderRec KnownLeader(const ArmyState& army, const Disk& disk) {
  LeaderRec leader = army.Leaders[army.SelectedLeader];
  leader.Name = Stored(leader.Name);
  const Int16 ofCatalog =
      disk.Files.ReadIniNumber(army.BaseArmyName, "tot_leader", army.ArmyListFile);
  for (Int16 i = 0; i < ofCatalog; ++i) {
    if (leader.Name.starts_with(GetField(LeaderText(army.Leaders[i]), 1, " "))) {
      return army.Leaders[i];
    }
  }
  return leader;
}

std::string LeaderLine(const ArmyState& army, const Disk& disk) {
  if (army.SelectedLeader == -1) return "leader: none";
  const LeaderRec leader = KnownLeader(army, disk);
  return "leader: " + leader.Name + ", " + NumberText(LenientNumber(leader.Initiative)) + "/" +
         NumberText(leader.Command);
}

void AddCards(const CommandPanel& panel, Int16 count, Lines& lines) {
  for (Int16 j = 0; j < count; ++j) {
    const std::string& card = panel.SpecNameLabel[j].Caption;
    const Int16 bought = LenientInt16(panel.SpecBuy[j].Text);
    if (bought == 0 || std::ranges::count(knownCards, card) == 0) continue;
    lines.push_back("card: " + NumberText(bought) + " " + card);
  }
}

void AddUnits(const ArmyState& army, Lines& lines) {
  for (Int16 r = 1; r <= army.TotUnits; ++r) {
    const UnitRec& unit = army.BaseUnits[r];
    if (unit.Bought <= 0) continue;
    lines.push_back("unit: " + NumberText(unit.Bought) + " " + IdentityText(unit) + ", " +
                    army.Catalog.Images[unit.ChosenImageIdx].Id);
  }
}

}  // namespace

Lines KeptLines(const WorkingArmy& work, const Disk& disk) {
  const ArmyState& army = work.Army;
  const ArmyHeader& header = work.Header;
  const std::string name = Stored(army.Management.ArmyName.Text);
  Lines lines = {"name: " + (name.empty() ? army.BaseArmyName : name),
                 "base: " + army.BaseArmyName,
                 "author: " + header.ArmyAuthor,
                 "description: " + Stored(header.ArmyDescription),
                 "period: " + header.ArmyPeriod,
                 "type: " + ArmyTypeCode(header),
                 "images: " + header.ArmyImages,
                 "rules: " + SpecialRulesText(header),
                 LeaderLine(army, disk)};
  AddCards(army.Command, army.TotSpecial, lines);
  AddUnits(army, lines);
  for (Int16 i = 0; i <= 8; ++i)
    lines.push_back("area: " + (army.BrakkaMode ? "CLEAR" : work.Field.AreaTerrain[i]));
  return lines;
}

Lines SetupLines(const Disk& disk) {
  Lines lines;
  for (Int16 n = 1; n <= 20; ++n) {
    const std::string section = "SETUP " + NumberText(n);
    const auto read = [&](const std::string& key) {
      return disk.Files.ReadIniString(section, key, disk.ProgramFolder / "working.setup");
    };
    std::string line = section + ": " + read("description");
    if (line.ends_with(": ")) continue;
    for (Int16 k = 1; k <= 9; ++k)
      line += " | " + read(RowKey("field", k));
    lines.push_back(line);
  }
  return lines;
}

std::string ExpectedPoints(const WorkingArmy& work, const Disk& disk) {
  const ArmyState& army = work.Army;
  Int16 armyPoints = army.ArmyPoints;
  for (Int16 r = 1; r <= army.TotUnits; ++r)
    armyPoints -= army.BaseUnits[r].Bought * army.BaseUnits[r].Cost;
  for (Int16 i = 0; i <= 8; ++i) {
    const std::string& area = work.Field.AreaTerrain[i];
    armyPoints -= work.Field.TerrainKinds[TerrainIndex(work.Field, area)].ArmyCost;
  }
  Int16 commandPoints =
      disk.Files.ReadIniNumber(army.BaseArmyName, "command_pts", army.ArmyListFile);
  // A leader who is too dear is the army's without being paid.
  if (army.Command.LeaderName[army.SelectedLeader].Value) {
    commandPoints -= army.Leaders[army.SelectedLeader].Cost;
  }
  commandPoints -= PaidCardPoints(army) + TerrainCommandPoints(work.Field);
  return NumberText(armyPoints) + " and " + NumberText(commandPoints);
}

}  // namespace tarnwick
