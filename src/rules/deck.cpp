// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/deck.h"

#include "base/errors.h"
#include "base/numbers.h"

namespace tarnwick {

std::string PrintDeckInfo(const ArmyState& state) {
  std::string title = "Velmora Tarnwick ver " + VersionText(state.EditorVersion) + " ";
  Int16 unitCards;
  for (Int16 r = 1; r <= state.TotUnits; ++r) {
    if (state.BaseUnits[r].Bought > 0) unitCards += state.BaseUnits[r].Bought;
  }
  Int16 specialCards;
  for (Int16 j = 0; j < state.TotSpecial; ++j) {
    const std::string& text = state.Command.SpecBuy[j].Text;
    specialCards = RoundToInt16(specialCards.Value() + LenientNumber(text));
  }
  if (unitCards == 0 && specialCards == 0) return title;
  const Int16 total = unitCards + specialCards;
  const Int16 hundredfold = unitCards * 100;
  if (total == 0) throw DivisionByZeroError();
  const double share = Int(double{1} * hundredfold.Value() / total.Value());
  return title + "[ #cards: " + NumberText(total) + " units: " + NumberText(unitCards) + " (" +
         NumberText(share) + "%) ]";
}

}  // namespace tarnwick
