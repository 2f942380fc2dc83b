// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/catalog_checker.h"

#include <algorithm>
#include <map>
#include <set>

#include "base/ansi.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"
#include "catalog/image_catalog.h"
#include "catalog/special_abilities.h"
#include "check_catalog/cheapest_army.h"
#include "check_catalog/check.h"
#include "rules/army_state.h"
#include "rules/special_cards.h"
#include "rules/unit_types.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

// What the window has room for.
constexpr int mostUnits = decltype(ArmyState::BaseUnits)::Last;
constexpr int mostPerView = decltype(UnitsPanel::Buy)::Last + 1;
constexpr int mostLimits = decltype(UnitsPanel::TypeLimit)::Last + 1;
constexpr int mostLeaders = decltype(CommandPanel::LeaderName)::Last + 1;
constexpr int mostImages = decltype(ImageCatalog::Images)::Last;
constexpr int cards = 4;
constexpr int largest = 32767;

/// Checks the catalogs of one module.
class ModuleCheck {
 public:
  ModuleCheck(ArmyState& state, const Disk& disk, std::vector<CatalogProblem>& problems)
      : state_(state),
        disk_(disk),
        armies_(disk.ProgramFolder, state.BrakkaMode ? "brakka/armylist.dat" : "armylist.dat",
                disk.Files, problems),
        specials_(disk.ProgramFolder, "specials.dat", disk.Files, problems),
        images_(disk.ProgramFolder, state.BrakkaMode ? "brakka/images_brakka.dat" : "images.dat",
                disk.Files, problems) {}

  void CheckImages(const std::function<bool(const fs::path&)>& canShow);
  void CheckArmies();

 private:
  void CheckImage(int i, const std::function<bool(const fs::path&)>& canShow) const;
  void CheckArmy(const std::string& name);
  std::vector<UnitRec> CheckUnits(const std::string& army);
  void CheckUnit(const std::string& army, const std::string& key, const UnitRec& unit) const;
  void CheckSpecials(const std::string& army, const std::string& key,
                     const std::string& group) const;
  void CheckViews(const std::string& army, const std::vector<UnitRec>& units);
  std::vector<LimitRec> CheckLimits(const std::string& army) const;
  std::vector<LeaderRec> CheckLeaders(const std::string& army) const;
  void CheckCards(const std::string& army) const;
  void CheckBudget(const std::string& army, const std::vector<UnitRec>& units,
                   const std::vector<LimitRec>& limits,
                   const std::vector<LeaderRec>& leaders) const;

  ArmyState& state_;
  const Disk& disk_;
  FileCheck armies_, specials_, images_;
};

void ModuleCheck::CheckImages(const std::function<bool(const fs::path&)>& canShow) {
  if (!images_.CheckText()) return;
  const int total = images_.CheckCount("IMAGES", "total", mostImages);
  images_.CheckRows("IMAGES", "image", total);
  try {
    LoadImages(state_.Catalog, disk_, state_.BrakkaMode, "");
  } catch (const SubscriptError&) {
    images_.Report("IMAGES", "total", "Both catalogs together have more than 200 rows.");
    return;
  }
  for (int i = 1; i <= total; ++i)
    CheckImage(i, canShow);
}

void ModuleCheck::CheckImage(int i, const std::function<bool(const fs::path&)>& canShow) const {
  const std::string key = RowKey("image", i);
  const ImageRec& image = state_.Catalog.Images[i];
  const auto report = [&](const std::string& sentence) { images_.Report("IMAGES", key, sentence); };
  if (FieldCount(images_.Read("IMAGES", key)) != 5) report("The row has not 5 fields.");
  if (!IsUnitType(image.Type)) report("The type \"" + image.Type + "\" is unknown.");
  if (image.Name.empty()) report("The row has no name for the choice list.");
  for (Int16 j = 1; j < i; ++j) {
    if (LowerCase(state_.Catalog.Images[j].Id) == LowerCase(image.Id)) {
      report("The picture is that of " + RowKey("image", j) +
             " too; loading an army finds the first.");
    }
  }
  const fs::path picture = PictureFile(disk_, state_.BrakkaMode, image.Id);
  if (!FileExists(picture)) {
    report("The picture " + image.Id + " is missing.");
  } else if (!canShow(picture)) {
    report("The picture " + image.Id + " cannot be read.");
  }
}

void ModuleCheck::CheckArmies() {
  if (!armies_.CheckText()) return;
  const int total = armies_.CheckCount("Armies", "total", largest);
  std::map<std::string, std::string> names;
  const std::vector<std::string> rows = armies_.CheckRows("Armies", "name", total);
  for (int i = 1; i <= total; ++i) {
    const std::string& name = rows.at(static_cast<std::size_t>(i - 1));
    if (name.empty()) continue;
    const auto [first, isNew] = names.try_emplace(LowerCase(name), name);
    if (!isNew) {
      armies_.Report("Armies", RowKey("name", i),
                     "The name is \"" + first->second + "\" again, but for its case.");
    } else {
      CheckArmy(name);
    }
  }
}

void ModuleCheck::CheckArmy(const std::string& name) {
  if (armies_.Read(name, "tot_units").empty()) {
    armies_.Report(name, "tot_units", "The army has no section of its name, or no units.");
    return;
  }
  const std::vector<UnitRec> units = CheckUnits(name);
  CheckViews(name, units);
  CheckCards(name);
  const std::vector<LimitRec> limits = CheckLimits(name);
  CheckBudget(name, units, limits, CheckLeaders(name));
}

std::vector<UnitRec> ModuleCheck::CheckUnits(const std::string& army) {
  std::vector<UnitRec> units;
  std::map<std::string, std::string> lines;
  const int count = armies_.CheckCount(army, "tot_units", mostUnits);
  const std::vector<std::string> rows = armies_.CheckRows(army, "unit", count);
  for (int i = 1; i <= count; ++i) {
    const std::string key = RowKey("unit", i);
    const std::string& row = rows.at(static_cast<std::size_t>(i - 1));
    if (row.empty()) continue;
    if (FieldCount(row) < 7 || FieldCount(row) > 8) {
      armies_.Report(army, key, "The row has not 8 fields.");
      continue;
    }
    const bool costs = armies_.CheckWhole(army, key, "cost", GetField(row, 6), 0, largest);
    const bool most = armies_.CheckWhole(army, key, "maximum", GetField(row, 7), 1, largest);
    if (!costs || !most) continue;
    units.push_back(ParseUnitRow(row));
    const UnitRec& unit = units.back();
    CheckUnit(army, key, unit);
    const auto [first, isNew] = lines.try_emplace(IdentityText(unit), key);
    if (!isNew) {
      armies_.Report(army, key, "Loading an army can't tell the row from " + first->second + ".");
    }
  }
  return units;
}

void ModuleCheck::CheckUnit(const std::string& army, const std::string& key,
                            const UnitRec& unit) const {
  const auto report = [&](const std::string& sentence) { armies_.Report(army, key, sentence); };
  if (!IsUnitType(unit.UnitType)) report("The type \"" + unit.UnitType + "\" is unknown.");
  if (unit.UnitType == "CO" && UnitTypeCode("CO", unit.UnitClass) == 0) {
    report("The class \"" + unit.UnitClass + "\" of CO is unknown: Vet, Con or Rec.");
  }
  if (!NumberIn(unit.TQ)) report("The TQ \"" + unit.TQ + "\" is no number.");
  if (!NumberIn(unit.Size)) report("The size \"" + unit.Size + "\" is no number.");
  if (unit.Missile == "A") report(R"(The missile "A" is saved as "AF" and never found again.)");
  const bool pictured =
      std::any_of(state_.Catalog.Images.begin(),
                  state_.Catalog.Images.begin() + state_.Catalog.TotImages.Value(),
                  [&unit](const ImageRec& image) {
                    return PictureFits(image, unit.UnitType, unit.UnitClass, unit.Missile);
                  });
  if (!pictured) report("No picture fits the row; a unit of it could not be saved.");
  if (!unit.SpecialsKey.empty()) CheckSpecials(army, key, unit.SpecialsKey);
}

void ModuleCheck::CheckSpecials(const std::string& army, const std::string& key,
                                const std::string& group) const {
  const std::string list = specials_.Read(group, "special");
  if (list.empty()) {
    armies_.Report(army, key, "The special abilities \"" + group + "\" are not in specials.dat.");
    return;
  }
  const auto codes = std::count(list.begin(), list.end(), '+') + 1;
  if (codes > mostCodes) {
    specials_.Report(group, "special", "The group has more than ten codes.");
  }
  for (int i = 1; i <= std::min<long>(codes, mostCodes); ++i) {
    const std::string code = GetField(list, i, "+");
    if (specials_.Read("SPECIALS", code).empty()) {
      specials_.Report(group, "special", "Nothing explains the code \"" + code + "\".");
    }
  }
}

void ModuleCheck::CheckViews(const std::string& army, const std::vector<UnitRec>& units) {
  int mountedRows = 0;
  for (const UnitRec& unit : units) {
    state_.BaseUnits[1] = unit;  // the row that the question is about
    if (MountedKind(state_, disk_, unit.UnitType, 1) == mounted) ++mountedRows;
  }
  const int infantryRows = static_cast<int>(units.size()) - mountedRows;
  if (infantryRows > mostPerView) {
    armies_.Report(army, "tot_units", "The infantry view has more than 23 rows.");
  }
  if (mountedRows > mostPerView) {
    armies_.Report(army, "tot_units", "The mounted view has more than 23 rows.");
  }
}

std::vector<LimitRec> ModuleCheck::CheckLimits(const std::string& army) const {
  std::vector<LimitRec> limits;
  const int count = armies_.CheckCount(army, "tot_limits", mostLimits);
  const std::vector<std::string> rows = armies_.CheckRows(army, "limit", count);
  for (int i = 1; i <= count; ++i) {
    const std::string key = RowKey("limit", i);
    const std::string& row = rows.at(static_cast<std::size_t>(i - 1));
    if (row.empty() || !armies_.CheckWhole(army, key, "minimum", GetField(row, 2), 1, largest)) {
      continue;
    }
    if (FieldCount(row) > 3) armies_.Report(army, key, "The row has more than 3 fields.");
    const LimitRec limit = ParseLimitRow(row);
    const bool known = UnitTypeCode(limit.TypeA, limit.Class) != 0 &&
                       (limit.TypeB.empty() || UnitTypeCode(limit.TypeB, "") != 0);
    if (!known) {
      armies_.Report(army, key,
                     "The limit \"" + row + "\" names a type or class that none counts.");
    }
    limits.push_back(limit);
  }
  return limits;
}

std::vector<LeaderRec> ModuleCheck::CheckLeaders(const std::string& army) const {
  std::vector<LeaderRec> leaders;
  const int count = armies_.CheckCount(army, "tot_leader", mostLeaders);
  const std::vector<std::string> rows = armies_.CheckRows(army, "leader", count);
  for (int i = 1; i <= count; ++i) {
    const std::string key = RowKey("leader", i);
    const std::string& row = rows.at(static_cast<std::size_t>(i - 1));
    if (row.empty()) continue;
    if (FieldCount(row) != 4) armies_.Report(army, key, "The row has not 4 fields.");
    armies_.CheckWhole(army, key, "initiative", GetField(row, 2), 0, largest);
    const bool command = armies_.CheckWhole(army, key, "command", GetField(row, 3), 0, largest);
    const bool cost = armies_.CheckWhole(army, key, "cost", GetField(row, 4), 0, largest);
    if (!command || !cost) continue;
    const LeaderRec leader = ParseLeaderRow(row);
    for (const LeaderRec& other : leaders) {
      if (!leader.Name.starts_with(GetField(other.Name, 1, " "))) continue;
      armies_.Report(army, key, "Loading an army takes the leader for \"" + other.Name + "\".");
    }
    leaders.push_back(leader);
  }
  return leaders;
}

void ModuleCheck::CheckCards(const std::string& army) const {
  const int count = armies_.CheckCount(army, "tot_special", largest);
  if (count != cards) {
    armies_.Report(army, "tot_special", "The window has its place for just four cards.");
  }
  std::set<std::string> seen;
  const std::vector<std::string> rows = armies_.CheckRows(army, "special", count);
  for (int i = 1; i <= count; ++i) {
    const std::string key = RowKey("special", i);
    const std::string& row = rows.at(static_cast<std::size_t>(i - 1));
    if (row.empty()) continue;
    const CardRow card = ParseCardRow(row);
    if (std::find(knownCards.begin(), knownCards.end(), card.Name) == knownCards.end()) {
      armies_.Report(army, key, "The card \"" + card.Name + "\" is never loaded with an army.");
    }
    if (!seen.insert(LowerCase(card.Name)).second) {
      armies_.Report(army, key, "The card \"" + card.Name + "\" is offered twice.");
    }
    armies_.CheckWhole(army, key, "cost", card.Cost, 0, largest);
    armies_.CheckWhole(army, key, "maximum", card.Maximum, 1, largest);
  }
}

void ModuleCheck::CheckBudget(const std::string& army, const std::vector<UnitRec>& units,
                              const std::vector<LimitRec>& limits,
                              const std::vector<LeaderRec>& leaders) const {
  const std::string points = armies_.Read(army, "points");
  const std::string commandPts = armies_.Read(army, "command_pts");
  if (armies_.CheckWhole(army, "points", "budget", points, 1, largest)) {
    const auto cheapest = CheapestLegalArmy(units, limits);
    if (!cheapest) {
      armies_.Report(army, "tot_limits", "The limits can't be met within the maxima.");
    } else if (*cheapest > LenientNumber(points)) {
      armies_.Report(army, "points",
                     "The limits can't be met within the points: they cost " +
                         std::to_string(*cheapest) + " at least.");
    }
  }
  if (armies_.CheckWhole(army, "command_pts", "budget", commandPts, 0, largest) &&
      std::none_of(leaders.begin(), leaders.end(), [&](const LeaderRec& leader) {
        return leader.Cost.Value() <= LenientNumber(commandPts);
      })) {
    armies_.Report(army, "command_pts", "No leader can be paid.");
  }
}

}  // namespace

std::vector<CatalogProblem> CheckCatalogs(const fs::path& programFolder,
                                          const std::function<bool(const fs::path&)>& canShow) {
  std::vector<CatalogProblem> problems;
  ArmyState state;
  const Disk disk(programFolder);
  FileCheck(programFolder, "specials.dat", disk.Files, problems).CheckText();
  for (const bool brakka : {false, true}) {
    state.BrakkaMode = brakka;
    ModuleCheck check(state, disk, problems);
    check.CheckImages(canShow);
    check.CheckArmies();
  }
  return problems;
}

}  // namespace tarnwick
