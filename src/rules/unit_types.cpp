// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_types.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "base/text.h"
#include "catalog/special_abilities.h"

namespace tarnwick {
namespace {

/// Types whose class does not matter. The codes 2, 16 and 17 are free.
constexpr std::array<std::pair<std::string_view, int>, 17> typeCodes = {{
    {"PH", 1},
    {"MI", 4},
    {"BI", 5},
    {"LP", 6},
    {"SK", 8},
    {"HC", 9},
    {"RC", 10},
    {"BC", 11},
    {"LN", 12},
    {"LC", 13},
    {"EL", 14},
    {"CH", 15},
    {"GC", 18},
    {"AS", 101},
    {"YU", 102},
    {"TP", 103},
    {"KB", 104},
}};

constexpr std::array<std::string_view, 9> mountedTypes = {"HC", "RC", "BC", "LN", "EL",
                                                          "LC", "CH", "GC", "KB"};

}  // namespace

Int16 UnitTypeCode(std::string_view type, std::string_view unitClass) {
  if (type == "HI") return unitClass.empty() ? 3 : 54;
  if (type == "LI") return unitClass.empty() ? 7 : 55;
  if (type == "LG") {
    return unitClass == "HA" ? 50 : unitClass == "PR" ? 51 : unitClass == "CO" ? 52 : 53;
  }
  if (type == "CO") {
    return unitClass == "Vet" ? 60 : unitClass == "Con" ? 61 : unitClass == "Rec" ? 62 : 0;
  }
  const auto* const found = std::find_if(typeCodes.begin(), typeCodes.end(),
                                         [type](const auto& entry) { return entry.first == type; });
  return found == typeCodes.end() ? 0 : found->second;
}

bool IsUnitType(std::string_view type) {
  return UnitTypeCode(type, "Vet") != 0 || type == "SM" || type == "LM";
}

Int16 MountedKind(const ArmyState& state, const Disk& disk, std::string_view type, Int16 row) {
  if (type == "SK") return skirmishers;
  if (std::find(mountedTypes.begin(), mountedTypes.end(), type) != mountedTypes.end()) {
    return mounted;
  }
  const bool monster = type == "SM" || type == "LM";
  return monster && row != -1 && UnitHasSpecial(state, disk, row, "MOUNTED") ? mounted : foot;
}

bool UnitHasSpecial(const ArmyState& state, const Disk& disk, Int16 row, std::string_view code) {
  return SpecialAbilities(disk).Has(state.BaseUnits[row].SpecialsKey, code);
}

std::string SpecialAbilitiesText(const ArmyState& state, const Disk& disk) {
  const UnitRec& unit = state.BaseUnits[state.SpecUnitRow];
  return std::string("Special abilities for the unit: ").append(unit.UnitType).append(CrLf) +
         SpecialAbilities(disk).Explain(unit.SpecialsKey);
}

}  // namespace tarnwick
