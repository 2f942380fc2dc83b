// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/budget.h"

#include "base/numbers.h"
#include "rules/deck.h"
#include "rules/troop_quality.h"

namespace tarnwick {

void ShowPoints(ArmyState& state) {
  state.Units.TotalCost.Caption =
      "Points left: " + NumberText(state.PointsLeft) + " of " + NumberText(state.ArmyPoints);
  state.Command.LeaderFrame.Caption = " Leaders (pts left: " + NumberText(state.CommandPts) + ")";
  state.Title = PrintDeckInfo(state);
  state.Units.TQinfo.Caption = PrintTQInfo(state);
}

}  // namespace tarnwick
