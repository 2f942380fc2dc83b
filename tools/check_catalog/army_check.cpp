// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/army_check.h"

#include <algorithm>
#include <map>
#include <set>

#include "base/ansi.h"
#include "base/numbers.h"
#include "base/text.h"
#include "check_catalog/limit_check.h"
#include "rules/leaders.h"
#include "rules/special_cards.h"

namespace tarnwick {
namespace {

constexpr int mostLeaders = decltype(CommandPanel::LeaderName)::Last + 1;
constexpr int cards = 4;

/// Whether loading an army tells the leader `name` from those before it.
void CheckName(CatalogSection& army, const std::string& key, const std::string& name,
               const std::vector<LeaderRec>& before) {
  if (GetField(name, 1, " ").empty()) {
    army.Report(Severity::Error, key,
                "Without a first word of its name the leader is loaded for every later one. "
                "Write a name.");
  }
  if (name.size() > 1 && (name.front() == '"' || name.front() == '\'') &&
      name.back() == name.front()) {
    army.Report(Severity::Error, key,
                "The quotes around the name are gone when an army is loaded, and the leader is not "
                "found. Take them away.");
  }
  for (const LeaderRec& other : before) {
    const std::string word = GetField(other.Name, 1, " ");
    if (word.empty() || !name.starts_with(word)) continue;
    army.Report(Severity::Error, key,
                "The name begins with the first word of \"" + other.Name +
                    "\", as whom the leader would be loaded. Make the first words differ.");
  }
}

std::vector<LeaderRec> CheckLeaders(CatalogSection& army) {
  std::vector<LeaderRec> leaders;
  for (const CatalogRow& row : army.CheckRows("tot_leader", "leader", mostLeaders)) {
    if (!army.CheckFields(row, "name,initiative,command,cost", 4)) continue;
    const std::string& key = row.Key;
    const std::string initiative = GetField(row.Text, 2);
    if (const auto number = NumberIn(initiative); number && *number > largest) {
      army.CheckWhole(key, "initiative", initiative, 4, 7);
    } else if (!number || *number != Int(*number) || *number < 4 || *number > 7) {
      army.Report(
          Severity::Warning, key,
          "The initiative \"" + initiative + "\" is none that the game knows. Write 4, 5, 6 or 7.");
    }
    const bool command = army.CheckWhole(key, "command", GetField(row.Text, 3), 0, largest);
    const bool cost = army.CheckWhole(key, "cost", GetField(row.Text, 4), 0, largest);
    if (!command || !cost) continue;
    const LeaderRec leader = ParseLeaderRow(row.Text);
    CheckName(army, key, leader.Name, leaders);
    leaders.push_back(leader);
  }
  if (std::ssize(leaders) == mostLeaders) {
    army.Report(Severity::Warning, "tot_leader",
                "Seven leaders leave no room for one that a player defines; defining one ends the "
                "editor. Offer six at the most.");
  }
  return leaders;
}

void CheckCards(CatalogSection& army) {
  std::set<std::string> seen;
  const auto rows = army.CheckRows("tot_special", "special", largest);
  if (rows.size() != cards && !army.Read("tot_special").empty()) {
    army.Report(Severity::Warning, "tot_special",
                "The army offers " + std::to_string(rows.size()) +
                    " cards. The window has four rows, and one without a card shows that of "
                    "another army. Offer four.");
  }
  for (const CatalogRow& row : rows) {
    if (!army.CheckFields(row, "name,cost,maximum", 3)) continue;
    const CardRow card = ParseCardRow(row.Text);
    if (std::ranges::find(knownCards, card.Name) == knownCards.end()) {
      army.Report(Severity::Error, row.Key,
                  "The card \"" + card.Name +
                      "\" is never loaded with an army. Write RALLY, FLANK, COHESION, MISSILE or "
                      "CALTROP.");
    }
    if (!seen.insert(LowerCase(card.Name)).second) {
      army.Report(Severity::Error, row.Key,
                  "The card \"" + card.Name + "\" is offered twice. Offer another.");
    }
    const bool costs = army.CheckWhole(row.Key, "cost", card.Cost, 0, largest);
    const bool most = army.CheckWhole(row.Key, "maximum", card.Maximum, 1, largest);
    if (!costs || !most) continue;
    const double price = LenientNumber(card.Cost) * LenientNumber(card.Maximum);
    if (price <= largest) continue;
    army.Report(Severity::Error, row.Key,
                "The cost times the maximum is " + NumberText(price) +
                    ", and buying for more than 32767 points ends the editor. Lower the maximum.");
  }
}

void CheckCommandPoints(CatalogSection& army, const std::vector<LeaderRec>& leaders) {
  const std::string text = army.Read("command_pts");
  if (!army.CheckLeading("command_pts", "number of points", text, 0, largest)) return;
  const Int16 points = LenientInt16(text);
  if (std::ranges::any_of(leaders, [&](const LeaderRec& one) { return one.Cost <= points; })) {
    return;
  }
  const bool canDefine = points >= LeaderCost(4, 1) && std::ssize(leaders) < mostLeaders;
  army.Report(canDefine ? Severity::Warning : Severity::Error, "command_pts",
              "No leader of the catalog can be paid, and an army without one can't be saved. "
              "Offer one for " +
                  text + " points, or raise them.");
}

}  // namespace

void ArmyCheck::Check() {
  std::map<std::string, std::string> keys;
  CatalogSection list(armies_, "Armies");
  if (!armies_.HasSection("Armies")) {
    list.Report(
        Severity::Error, "",
        "There is no section [Armies], so no army is on offer. Write it, with total and the "
        "names.");
    return;
  }
  for (const CatalogRow& row : list.CheckRows("total", "name", largest)) {
    const auto [first, isNew] = keys.try_emplace(LowerCase(Trim(row.Text)), row.Key);
    if (!isNew) {
      list.Report(Severity::Warning, row.Key,
                  "The name is that of " + first->second +
                      " again, as case doesn't count. Write another, or take the row away.");
    } else if (!armies_.HasSection(row.Text)) {
      list.Report(Severity::Error, row.Key,
                  "There is no section [" + row.Text + "]. Write it, or mend the name.");
    } else {
      CheckArmy(row.Text);
    }
  }
  units_.ReportLacks();
  armies_.CheckUnreadSections(
      "No name in [Armies] lists the section, so it is never read. Add one, and raise total.");
  armies_.CheckUnreadKeys(Severity::Warning,
                          "The key is never read. Check its spelling and the count of the rows.");
}

void ArmyCheck::CheckArmy(const std::string& name) {
  CatalogSection army(armies_, name);
  const std::string text = army.Read("points");
  const int points = army.CheckLeading("points", "number of points", text, 1, largest)
                         ? LenientInt16(text).Value()
                         : 0;
  const std::vector<UnitRow> rows = units_.Check(army);
  CheckSums(army, rows, points);
  CheckLimits(army, rows, points);
  CheckCommandPoints(army, CheckLeaders(army));
  CheckCards(army);
}

}  // namespace tarnwick
