// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/deck.h"

#include "base/errors.h"
#include "base/numbers.h"

namespace tarnwick {

std::optional<Deck> CountDeck(const ArmyState& state) {
  Int16 unitCards;
  for (Int16 r = 1; r <= state.TotUnits; ++r) {
    if (state.BaseUnits[r].Bought > 0) unitCards += state.BaseUnits[r].Bought;
  }
  Int16 specialCards;
  for (Int16 j = 0; j < state.TotSpecial; ++j) {
    const std::string& text = state.Command.SpecBuy[j].Text;
    specialCards = RoundToInt16(specialCards.Value() + LenientNumber(text));
  }
  if (unitCards == 0 && specialCards == 0) return std::nullopt;
  const Int16 total = unitCards + specialCards;
  const Int16 hundredfold = unitCards * 100;
  if (total == 0) throw DivisionByZeroError();
  return Deck{total, unitCards, Int(double{1} * hundredfold.Value() / total.Value())};
}

std::string PrintDeckInfo(const ArmyState& state) {
  std::string title = "Velmora Tarnwick ver " + VersionText(state.EditorVersion) + " ";
  const std::optional<Deck> deck = CountDeck(state);
  if (!deck) return title;
  return title + "[ #cards: " + NumberText(deck->Cards) + " units: " + NumberText(deck->Units) +
         " (" + NumberText(deck->Share) + "%) ]";
}

}  // namespace tarnwick
