// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <functional>

#include "base/numbers.h"
#include "check_catalog/unit_check.h"

namespace tarnwick {
namespace {

constexpr int mostBought = largest / 100;  // the editor works out their percentage of the deck

/// Something that the editor adds up over all units bought.
struct Sum {
  const char* Name;
  int Most;
  std::function<double(const UnitRow&)> Of;
};

int Affordable(const UnitRow& row, double points) {
  const int most = row.Unit.MaxCount.Value();
  const int cost = row.Unit.Cost.Value();
  return cost == 0 ? most : std::min(most, static_cast<int>(points / cost));
}

/// What a player can reach who buys what gives most for a point, first.
double Reachable(const Sum& sum, std::vector<UnitRow> rows, double points) {
  std::ranges::sort(rows, std::greater(), [&sum](const UnitRow& row) {
    return sum.Of(row) / std::max(0.001, double{1} * row.Unit.Cost.Value());
  });
  double reached = 0;
  for (const UnitRow& row : rows) {
    const int bought = Affordable(row, points);
    reached += bought * sum.Of(row);
    points -= bought * row.Unit.Cost.Value();
  }
  return reached;
}

}  // namespace

void CheckSums(CatalogSection& army, const std::vector<UnitRow>& rows, int points) {
  const std::vector<Sum> sums = {{"number of units", mostBought, [](const UnitRow&) { return 1; }},
                                 {"TQ", mostTq, [](const UnitRow& row) { return row.TqPoints; }},
                                 {"size", largest, [](const UnitRow& row) { return row.Size; }}};
  for (const Sum& sum : sums) {
    const auto report = [&](const std::string& key, double reached) {
      army.Report(Severity::Error, key,
                  std::string("Within points and maxima an army's ") + sum.Name + " can reach " +
                      NumberText(reached) + ", and beyond " + std::to_string(sum.Most) +
                      " the editor ends. Lower a maximum, or the points.");
    };
    bool said = false;
    for (const UnitRow& row : rows) {
      const double reached = Affordable(row, points) * sum.Of(row);
      if (reached <= sum.Most) continue;
      report(row.Key, reached);
      said = true;
    }
    if (const double reached = Reachable(sum, rows, points); !said && reached > sum.Most) {
      report("tot_units", reached);
    }
  }
}

}  // namespace tarnwick
