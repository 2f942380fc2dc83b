// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/unit_check.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/text.h"
#include "rules/unit_points.h"
#include "rules/unit_types.h"

namespace tarnwick {
namespace {

constexpr int mostUnits = decltype(ArmyState::BaseUnits)::Last;
constexpr int mostPerView = decltype(UnitsPanel::Buy)::Last + 1;

/// Whether `text` is a number that a unit may have. What the editor calculates with ends it when
/// it is none or too large.
bool CheckMeasure(CatalogSection& army, const std::string& key, const std::string& field,
                  const std::string& text, int most, bool isCalculatedWith) {
  const auto number = NumberIn(text);
  if (number && *number > 0 && *number <= most) return true;
  const bool ends = isCalculatedWith && (!number || *number > most || *number < -most);
  army.Report(ends ? Severity::Error : Severity::Warning, key,
              "The " + field + " \"" + text + "\" is no number above 0 and up to " +
                  std::to_string(most) + (ends ? ", and buying the unit ends the editor. " : ". ") +
                  "Write one like 4 or 4.5.");
  return false;
}

}  // namespace

std::vector<UnitRow> UnitCheck::Check(CatalogSection& army) {
  std::vector<UnitRow> rows;
  std::map<std::string, std::string> keys;
  const auto texts = army.CheckRows("tot_units", "unit", mostUnits);
  for (const CatalogRow& row : texts) {
    const std::string& key = row.Key;
    if (!army.CheckFields(row, "type,class,TQ,size,missile,cost,maximum,abilities", 7)) continue;
    const bool costs = army.CheckWhole(key, "cost", GetField(row.Text, 6), 0, largest);
    const bool most = army.CheckWhole(key, "maximum", GetField(row.Text, 7), 1, largest);
    if (!costs || !most) continue;
    UnitRow& unit = rows.emplace_back(UnitRow{key, ParseUnitRow(row.Text)});
    CheckIdentity(army, unit);
    CheckNumbers(army, unit);
    CheckGroup(army, unit);
    const auto [first, isNew] = keys.try_emplace(IdentityText(unit.Unit), key);
    if (isNew) continue;
    army.Report(Severity::Error, key,
                "Type, class, TQ, size and missile are those of " + first->second +
                    ", and loading an army takes the one for the other. Make one of them differ.");
  }
  if (texts.empty()) {
    army.Report(Severity::Error, "tot_units",
                "Armies without unit rows can't be loaded. Write one.");
  }
  if (!specials_.IsMissing()) CheckViews(army, rows);
  return rows;
}

void UnitCheck::CheckIdentity(CatalogSection& army, const UnitRow& row) {
  const UnitRec& unit = row.Unit;
  if (!IsUnitType(unit.UnitType)) {
    army.Report(Severity::Warning, row.Key,
                "The type \"" + unit.UnitType +
                    "\" is unknown. Write the code of one in "
                    "capitals.");
  }
  if (unit.UnitType == "CO" && UnitTypeCode("CO", unit.UnitClass) == 0) {
    army.Report(Severity::Warning, row.Key,
                "The class \"" + unit.UnitClass +
                    "\" of CO is unknown, and no limit counts it. Write Vet, Con or Rec.");
  }
  if (unit.Missile == "A") {
    army.Report(Severity::Error, row.Key,
                R"(The missile "A" is saved as "AF", and no such unit is loaded again. Write AF.)");
  }
  const auto fitting = std::ranges::count_if(
      pictures_, [&unit](PictureCheck* pictures) { return pictures->Fits(unit); });
  if (fitting > 0) return;
  const std::string kind = KindText(unit.UnitType, unit.UnitClass, unit.Missile);
  ++lacks_.try_emplace(kind, Lack{army, row.Key}).first->second.Rows;
}

void UnitCheck::ReportLacks() {
  for (auto& [group, lack] : groups_) {
    lack.Army.Report(Severity::Warning, lack.Key,
                     "The special abilities \"" + group + "\" of this row" + lack.Others() +
                         " are no section of specials.dat. Write it there, or mend the name.");
  }
  CatalogFile& own = pictures_.front()->File();
  if (own.IsMissing() && !own.IsMisplaced() && !lacks_.empty()) {
    own.ReportMissing(Severity::Error, "units have no picture, and saving one ends the editor");
    return;
  }
  for (auto& [kind, lack] : lacks_) {
    lack.Army.Report(Severity::Error, lack.Key,
                     "No picture has " + kind + " of this row" + lack.Others() +
                         ", and saving such a unit ends the editor. Add one.");
  }
}

void UnitCheck::CheckNumbers(CatalogSection& army, UnitRow& row) {
  UnitRec& unit = row.Unit;
  const int most = unit.MaxCount.Value();
  const int cost = unit.Cost.Value();
  if (cost == 0) {
    army.Report(Severity::Warning, row.Key,
                "The cost is 0, and buying the unit while points are negative ends the editor. "
                "Write 1 or more.");
  } else if (cost > largest / most) {
    army.Report(Severity::Error, row.Key,
                "The cost times the maximum is " + std::to_string(cost * most) +
                    ", and buying for more than 32767 points ends the editor. Lower the maximum "
                    "to " +
                    std::to_string(largest / cost) + ".");
  }
  const std::string& type = unit.UnitType;
  const bool readsTq = type != "SK" && type != "EL" && type != "CH";
  const int mostTqOf = type == "PH" ? mostTq / 2 : mostTq;
  state_.BaseUnits[1] = unit;
  if (CheckMeasure(army, row.Key, "TQ", unit.TQ, mostTqOf, readsTq)) {
    row.TqPoints = UnitPoints(state_, 1).Value();
  }
  if (CheckMeasure(army, row.Key, "size", unit.Size, largest, true)) {
    row.Size = StrictNumber(unit.Size);
  }
}

void UnitCheck::CheckGroup(CatalogSection& army, const UnitRow& row) {
  const std::string& group = row.Unit.SpecialsKey;
  if (group.empty()) return;
  specials_.Read(group, "special");
  if (!specials_.IsOpen()) {
    lacksSpecials_ = true;
  } else if (!specials_.HasSection(group)) {
    ++groups_.try_emplace(group, Lack{army, row.Key}).first->second.Rows;
  }
}

void UnitCheck::CheckViews(CatalogSection& army, const std::vector<UnitRow>& rows) {
  const auto mountedRows = std::ranges::count_if(rows, [this](const UnitRow& row) {
    state_.BaseUnits[1] = row.Unit;
    return MountedKind(state_, disk_, row.Unit.UnitType, 1) == mounted;
  });
  const auto check = [&army](const std::string& view, long count) {
    if (count <= mostPerView) return;
    army.Report(Severity::Error, "tot_units",
                "The view " + view + " has " + std::to_string(count) +
                    " rows and shows 23; those beyond can't be bought. Take some away.");
  };
  check("Infantry", std::ssize(rows) - mountedRows);
  check("Mounted", mountedRows);
}

}  // namespace tarnwick
