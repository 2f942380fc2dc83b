// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_purchase.h"

#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"
#include "rules/budget.h"
#include "rules/unit_grid.h"
#include "rules/unit_points.h"

namespace tarnwick {
namespace {

void ReleaseUnits(ArmyState& state, Int16 k, Int16 row) {
  UnitsPanel& grid = state.Units;
  const Int16 refund = LenientInt16(grid.UnitTotalLabel[k].Caption);
  state.PointsSpent -= refund;
  state.PointsLeft += refund;
  ShowPoints(state);
  grid.UnitTotalLabel[k].Caption = "0";
  state.BaseUnits[row].Bought = 0;
}

/// The most units that the budget allows for a line that has cost `paid` so far.
std::string MostAffordable(const ArmyState& state, Int16 paid, double unitCost) {
  const Int16 available = state.PointsLeft + paid;
  if (unitCost == 0) throw DivisionByZeroError();
  return NumberText(Int(available.Value() / unitCost));
}

}  // namespace

bool BuyUnits(ArmyState& state, const Disk& disk, Host& host, Int16 index) {
  if (state.GridFilling) return true;
  UnitsPanel& grid = state.Units;
  TextBox& box = grid.Buy[index];
  box.Text = Trim(box.Text);
  if (box.Tag.empty()) FindUnitsAgain(state, disk);
  if (box.Tag.empty()) return true;
  const Int16 row = StrictInt16(box.Tag);
  const double typed = LenientNumber(box.Text);
  if (typed == 0) {
    ReleaseUnits(state, index, row);
    return true;
  }
  box.Text = NumberText(typed);
  const Int16 quantity = RoundToInt16(Int(LenientNumber(box.Text)));
  const std::string& maximum = grid.MaxLabel[index].Caption;
  if (LenientNumber(maximum) < quantity.Value()) {
    host.Message("You can only buy " + maximum + " units");
    return false;
  }
  box.Text = NumberText(quantity);
  const std::string& unitCost = grid.CostLabel[index].Caption;
  const Int16 paid = LenientInt16(grid.UnitTotalLabel[index].Caption);
  const Int16 total = RowCost(quantity, unitCost);
  const Int16 delta = total - paid;
  if (delta > state.PointsLeft) {
    host.Message("Insufficient points left - max " +
                 MostAffordable(state, paid, LenientNumber(unitCost)));
    return false;
  }
  grid.UnitTotalLabel[index].Caption = NumberText(total);
  state.BaseUnits[row].Bought = quantity;
  state.PointsSpent += delta;
  state.PointsLeft -= delta;
  ShowPoints(state);
  return true;
}

bool Buy_Validate(ArmyState& state, const Disk& disk, Host& host, Int16 index) {
  return !BuyUnits(state, disk, host, index);
}

}  // namespace tarnwick
