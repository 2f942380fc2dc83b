// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/army_summary.h"

#include <map>

#include "base/numbers.h"
#include "battlefield/terrain.h"
#include "rules/deck.h"
#include "rules/special_cards.h"

namespace tarnwick {
namespace {

/// What `work` gives, or nothing when the rules can't tell.
template <typename Work>
auto OrNothing(const Work& work) -> decltype(work()) {
  try {
    return work();
  } catch (const RuntimeError&) {
    return {};
  }
}

std::string& AddToList(std::string& list, const std::string& entry) {
  return list += (list.empty() ? "" : ", ") + entry;
}

std::string CountsText(const ArmyState& army, const LimitRec& limit) {
  std::map<std::string, int> counted, others;  // by name
  for (Int16 r = 1; r <= army.TotUnits; ++r) {
    const UnitRec& unit = army.BaseUnits[r];
    const bool counts = CountFor(limit, unit) > 0;
    if (!counts && unit.UnitType != limit.TypeA && unit.UnitType != limit.TypeB) continue;
    const std::string unitClass = unit.UnitClass.empty() ? "" : "[" + unit.UnitClass + "]";
    (counts ? counted : others)[unit.UnitType + unitClass] += std::max(unit.Bought.Value(), 0);
  }
  std::string text;
  for (const auto& [units, start] : {std::pair(&counted, "Counts: "), {&others, "Doesn't: "}}) {
    std::string list;
    for (const auto& [name, bought] : *units)
      AddToList(list, name + " " + NumberText(bought));
    if (!list.empty()) text += (text.empty() ? "" : "\n") + (start + list);
  }
  return text;
}

std::vector<LimitSummary> SummarizeLimits(const ArmyState& army) {
  std::vector<LimitSummary> limits;
  const UnitCounts counts = CountUnits(army);
  for (Int16 j = 0; j < army.TotLimits; ++j) {
    const LimitLine line = CountLimit(army, j, counts);
    limits.push_back({line.Have, line.IsMet(), CountsText(army, line.Limit)});
  }
  return limits;
}

std::optional<Budget> CommandBudget(const WorkingArmy& work) {
  const ArmyState& army = work.Army;
  const bool led = army.SelectedLeader != -1;
  const Int16 leader = led ? army.Leaders[army.SelectedLeader].Cost : Int16(0);
  return Budget{leader + PaidCardPoints(army) + TerrainCommandPoints(work.Field), army.CommandPts};
}

std::string CardsText(const ArmyState& army) {
  std::string cards;
  for (Int16 j = 0; j < army.TotSpecial; ++j) {
    const double paidFor = StrictNumber(army.Command.SpecBuy[j].Tag);
    const std::string& name = army.Command.SpecNameLabel[j].Caption;
    if (paidFor != 0) AddToList(cards, NumberText(paidFor) + " " + name);
  }
  return cards;
}

std::string DeckText(const ArmyState& army) {
  const std::optional<Deck> deck = CountDeck(army);
  if (!deck) return "";
  return NumberText(deck->Cards) + " cards, " + NumberText(deck->Units) + " units (" +
         NumberText(deck->Share) + "%)";
}

}  // namespace

ArmySummary Summarize(const WorkingArmy& work) {
  const ArmyState& army = work.Army;
  ArmySummary summary;
  summary.Begun = !army.BaseArmyName.empty() || army.TotUnits > 0;
  if (!summary.Begun) return summary;
  summary.Army = OrNothing([&] {
    return std::optional(Budget{army.ArmyPoints - army.PointsLeft, army.PointsLeft});
  });
  summary.Command = OrNothing([&] { return CommandBudget(work); });
  summary.Limits = OrNothing([&] { return SummarizeLimits(army); });
  summary.Leader = OrNothing(
      [&] { return army.SelectedLeader == -1 ? "" : army.Leaders[army.SelectedLeader].Name; });
  summary.Cards = OrNothing([&] { return CardsText(army); });
  summary.Deck = OrNothing([&] { return DeckText(army); });
  summary.Missing = OrNothing([&] { return std::optional(Shortfalls(army)); });
  return summary;
}

}  // namespace tarnwick
