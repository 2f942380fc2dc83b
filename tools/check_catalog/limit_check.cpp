// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/limit_check.h"

#include <algorithm>
#include <optional>

#include "base/text.h"
#include "check_catalog/cheapest_army.h"
#include "rules/unit_types.h"
#include "rules/verification.h"

namespace tarnwick {
namespace {

constexpr int mostLimits = decltype(UnitsPanel::TypeLimit)::Last + 1;

struct LimitRow {
  std::string Key;
  LimitRec Limit;
};

void CheckTypes(CatalogSection& army, const LimitRow& row, const std::vector<UnitRow>& units) {
  const LimitRec& limit = row.Limit;
  const auto checkType = [&](const std::string& type, const std::string& unitClass) {
    if (UnitTypeCode(type, unitClass) != 0) return;
    const std::string name = unitClass.empty() ? type : type + "," + unitClass;
    army.Report(Severity::Warning, row.Key,
                "No limit can single out \"" + name +
                    "\": with it counts whatever has no number of its own. Take another type.");
  };
  checkType(limit.TypeA, limit.Class);
  if (!limit.TypeB.empty()) checkType(limit.TypeB, "");
  const bool known =
      limit.Class.empty() || std::ranges::any_of(units, [&](const UnitRow& unit) {
        return unit.Unit.UnitType == limit.TypeA && unit.Unit.UnitClass == limit.Class;
      });
  if (known) return;
  army.Report(Severity::Warning, row.Key,
              "No unit row of type " + limit.TypeA + " has the class \"" + limit.Class +
                  "\". Write a class that one has, or none.");
}

/// Whether the limit can be met by those that count for it, were there points enough.
bool CheckReach(CatalogSection& army, const LimitRow& row, const std::vector<UnitRow>& units) {
  long reach = 0;
  for (const UnitRow& unit : units)
    reach += long{1} * unit.Unit.MaxCount.Value() * CountFor(row.Limit, unit.Unit).Value();
  if (reach >= row.Limit.Minimum.Value()) return true;
  army.Report(Severity::Error, row.Key,
              "The limit can't be met: the maxima of the units that count come to " +
                  std::to_string(reach) + ". Lower the minimum, or raise a maximum.");
  return false;
}

std::optional<int> Cheapest(const std::vector<UnitRow>& units, const std::vector<LimitRow>& rows) {
  std::vector<UnitRec> records;
  std::vector<LimitRec> limits;
  std::ranges::transform(units, std::back_inserter(records), &UnitRow::Unit);
  std::ranges::transform(rows, std::back_inserter(limits), &LimitRow::Limit);
  return CheapestLegalArmy(records, limits);
}

void CheckPrice(CatalogSection& army, const std::vector<UnitRow>& units,
                std::vector<LimitRow> limits, int points) {
  const auto tooDear = [&](const std::vector<LimitRow>& some) {
    const auto price = Cheapest(units, some);
    return price && *price > points;
  };
  if (!Cheapest(units, limits)) {
    army.Report(Severity::Note, "tot_limits",
                "The limits are too entangled to say whether the points suffice.");
  }
  if (!tooDear(limits)) return;
  for (std::size_t i = 0; i < limits.size();) {  // leaves those without which it would do
    auto without = limits;
    without.erase(without.begin() + static_cast<std::ptrdiff_t>(i));
    if (tooDear(without)) {
      limits = std::move(without);
    } else {
      ++i;
    }
  }
  std::string names;
  for (const LimitRow& row : limits)
    names += (names.empty() ? "" : ", ") + row.Key;
  army.Report(Severity::Error, "points",
              "The " + std::to_string(points) + " points don't suffice for " + names + ": " +
                  std::to_string(*Cheapest(units, limits)) +
                  " are the least. Raise them, or lower a minimum.");
}

}  // namespace

void CheckLimits(CatalogSection& army, const std::vector<UnitRow>& rows, int points) {
  std::vector<LimitRow> limits;
  for (const CatalogRow& row : army.CheckRows("tot_limits", "limit", mostLimits)) {
    if (!army.CheckFields(row, "type,minimum,class", 2)) continue;
    if (!army.CheckLeading(row.Key, "minimum", GetField(row.Text, 2), 1, largest)) continue;
    const LimitRow limit = {row.Key, ParseLimitRow(row.Text)};
    CheckTypes(army, limit, rows);
    if (CheckReach(army, limit, rows)) limits.push_back(limit);
  }
  if (points > 0) CheckPrice(army, rows, limits, points);
}

}  // namespace tarnwick
