// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/special_cards.h"

#include "base/numbers.h"
#include "base/text.h"
#include "rules/budget.h"

namespace tarnwick {
namespace {

/// What the cards cost that the box `j` has paid for.
Int16 PaidFor(const ArmyState& state, Int16 j) {
  return RoundToInt16(StrictNumber(state.Command.SpecBuy[j].Tag) *
                      LenientNumber(state.Command.SpecCostLabel[j].Caption));
}

void ReleaseCards(ArmyState& state, Int16 j) {
  TextBox& box = state.Command.SpecBuy[j];
  const double paidFor = StrictNumber(box.Tag);
  if (paidFor <= 0) return;
  state.CommandPts = RoundToInt16(paidFor * LenientNumber(state.Command.SpecCostLabel[j].Caption) +
                                  state.CommandPts.Value());
  ShowPoints(state);
  box.Tag = "0";
  box.Text = "";
}

}  // namespace

Int16 PaidCardPoints(const ArmyState& state) {
  Int16 points;
  for (Int16 j = 0; j < state.TotSpecial; ++j)
    points += PaidFor(state, j);
  return points;
}

bool SpecBuy_Validate(ArmyState& state, Host& host, Int16 index) {
  TextBox& box = state.Command.SpecBuy[index];
  box.Text = Trim(box.Text);
  const double typed = LenientNumber(box.Text);
  if (typed == 0) {
    ReleaseCards(state, index);
    return false;
  }
  box.Text = NumberText(typed);
  const Int16 quantity = RoundToInt16(Int(LenientNumber(box.Text)));
  const std::string& maximum = state.Command.SpecMaxLabel[index].Caption;
  if (LenientNumber(maximum) < quantity.Value()) {
    host.Message("You can only buy " + maximum + " cards");
    return true;
  }
  box.Text = NumberText(quantity);
  const double cost = LenientNumber(state.Command.SpecCostLabel[index].Caption);
  const Int16 oldPrice = PaidFor(state, index);
  const Int16 newPrice = RoundToInt16(quantity.Value() * cost);
  const Int16 delta = newPrice - oldPrice;
  if (delta > state.CommandPts) {
    host.Message("Insufficient points left ");
    return true;
  }
  box.Tag = NumberText(quantity);
  state.CommandPts -= delta;
  ShowPoints(state);
  return false;
}

}  // namespace tarnwick
