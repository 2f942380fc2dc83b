// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "sheet/army_sheet.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "armyfile/army_summary.h"
#include "base/numbers.h"
#include "base/text.h"
#include "sheet/html.h"
#include "sheet/unit_sheet.h"

namespace tarnwick {
namespace {

/// Both what prints and browsers understand; read in grey as well as in colours.
constexpr std::string_view style = R"(
@page { margin: 12mm; }
body { font-family: sans-serif; font-size: 9pt; color: #000000; background-color: #ffffff; }
h1 { font-size: 18pt; margin: 0 0 4px 0; }
h2 { font-size: 11pt; margin: 10px 0 2px 0; }
p { margin: 4px 0; }
table { border-collapse: collapse; }
table.below { margin-top: 12px; }
table.field td { border: 1px solid #444444; text-align: center; font-size: 7pt; }
table.rows th { border-bottom: 1px solid #000000; text-align: left; font-size: 8pt; }
table.rows td { border-bottom: 1px solid #bbbbbb; vertical-align: middle; }
table.plan th { border-bottom: 1px solid #000000; text-align: left; font-size: 7pt; }
table.plan td { font-size: 7pt; }
td.half { padding-right: 14px; vertical-align: top; }
td.label { color: #444444; padding-right: 8px; }
p.small { font-size: 7pt; margin: 1px 0; }
tr { break-inside: avoid; }
h2 { break-after: avoid; }
@media (min-width: 190mm) { body { width: 190mm; margin: 12px auto; } }
)";

using Fact = std::pair<std::string, std::string>;  ///< what, and its text; none when that is ""

/// "218 BC"
std::string YearText(const std::string& year) {
  const double number = LenientNumber(year);
  return number < 0 ? NumberText(-number) + " BC" : NumberText(number) + " AC";
}

std::string PeriodText(const std::string& period) {
  if (period.empty()) return "";
  const std::string from = YearText(GetField(period, 1));
  const std::string to = YearText(GetField(period, 2));
  return from == to ? from : from + " to " + to;
}

std::string TypeText(const ArmyHeader& header) {
  const bool fantasy = header.TYPE_IsFantasy.Value;
  if (!header.TYPE_IsPersonal.Value) return fantasy ? "fantasy" : "";
  return fantasy ? "personal, fantasy" : "personal";
}

std::string BudgetText(const std::optional<Budget>& budget) {
  if (!budget) return "";
  return NumberText(budget->Spent) + " spent, " + NumberText(budget->Left) + " left of " +
         std::to_string(budget->Whole());
}

std::string LeaderLine(const ArmyState& army) {
  if (army.SelectedLeader == -1) return "none";
  const LeaderRec& leader = army.Leaders[army.SelectedLeader];
  return leader.Name + ", initiative " + leader.Initiative + ", command " +
         NumberText(leader.Command) + ", " + NumberText(leader.Cost) + " points";
}

/// Two columns of facts, beside each other.
std::string FactTable(std::vector<Fact> left, std::vector<Fact> right) {
  for (auto* column : {&left, &right})
    std::erase_if(*column, [](const Fact& fact) { return fact.second.empty(); });
  std::string rows;
  for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
    std::string row;
    for (const auto* column : {&left, &right}) {
      const Fact fact = i < column->size() ? column->at(i) : Fact();
      row +=
          Element("td class='label'", HtmlText(fact.first)) + Element("td", HtmlText(fact.second));
    }
    rows += Element("tr", row);
  }
  return Element("table width='100%' cellpadding='1'", rows);
}

std::string Facts(const WorkingArmy& work, const ArmySummary& summary) {
  const ArmyState& army = work.Army;
  const ArmyHeader& header = work.Header;
  const bool hasBase = !army.BaseArmyName.empty();
  return FactTable({{"Base army", hasBase ? army.BaseArmyName : "none"},
                    {"Leader", LeaderLine(army)},
                    {"Author", header.ArmyAuthor},
                    {"Period", PeriodText(header.ArmyPeriod)},
                    {"Type", TypeText(header)},
                    {"Special rules", ReplaceText(",", ", ", SpecialRulesText(header))}},
                   {{"Army points", BudgetText(summary.Army)},
                    {"Command points", BudgetText(summary.Command)},
                    {"Troop quality", army.Units.TQinfo.Caption},
                    {"Cards", summary.Cards},
                    {"Deck", summary.Deck}});
}

std::string MissingText(const ArmySummary& summary) {
  if (!summary.Missing || summary.Missing->empty()) return "";
  std::string list;
  for (const Shortfall& shortfall : *summary.Missing)
    list += Element("li", HtmlText(shortfall.Message));
  return Element("p", "<b>This army is not complete:</b>") + Element("ul", list);
}

std::string Limits(const ArmyState& army, const ArmySummary& summary) {
  if (summary.Limits.empty()) return "";
  std::string rows = "<tr><th>Limit</th><th>need</th><th>have</th><th></th></tr>\n";
  for (Int16 j = 0; const LimitSummary& limit : summary.Limits) {
    rows += Element("tr", Element("td", HtmlText(army.Units.TypeLimit[j].Caption)) +
                              Element("td", HtmlText(army.Units.MinLimit[j].Caption)) +
                              Element("td", NumberText(limit.Have)) +
                              Element("td", limit.Met ? "met" : "<b>not met</b>"));
    ++j;
  }
  return Element("h2", "Limits") + Element("table class='rows' width='100%' cellpadding='1'", rows);
}

}  // namespace

std::string SheetTitle(const WorkingArmy& work) {
  const ManagementPanel& panel = work.Army.Management;
  for (const TextBox* box : {&panel.ArmyName, &panel.ArmyFileName})
    if (!box->Text.empty()) return box->Text;
  return "An army without a name";
}

std::string ArmySheet(const WorkingArmy& work, const Disk& disk, const TerrainPictures& terrain) {
  const ArmyState& army = work.Army;
  const ArmySummary summary = Summarize(work);
  if (!summary.Begun) return Element("h1", "No army yet");
  const std::string& description = work.Header.ArmyDesc.Text;
  return Element("h1", HtmlText(SheetTitle(work))) + MissingText(summary) + Facts(work, summary) +
         (description.empty() ? "" : Element("p", Element("i", HtmlText(description)))) +
         UnitSheet(army, disk) +
         TwoInARow({Element("h2", "Battlefield") + TerrainMap(work.Field, terrain),
                    Limits(army, summary)}) +
         TwoInARow(SetupPlans(work, disk));
}

std::string SheetPage(const std::string& title, const std::vector<std::string>& sheets) {
  std::string body;
  for (const std::string& sheet : sheets) {
    body += Element(body.empty() ? "div" : "div style='page-break-before: always'", sheet);
  }
  return "<!DOCTYPE html>\n" +
         Element("html lang='en'",
                 Element("head", "<meta charset='utf-8'>" + Element("title", HtmlText(title)) +
                                     Element("style", style)) +
                     Element("body", body));
}

}  // namespace tarnwick
