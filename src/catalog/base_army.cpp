// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/base_army.h"

#include "base/numbers.h"
#include "base/text.h"

namespace tarnwick {

UnitRec ParseUnitRow(std::string_view row) {
  UnitRec unit;
  unit.UnitType = GetField(row, 1);
  unit.UnitClass = GetField(row, 2);
  unit.TQ = GetField(row, 3);
  unit.Size = GetField(row, 4);
  unit.Missile = GetField(row, 5);
  unit.Cost = StrictInt16(GetField(row, 6));
  unit.MaxCount = StrictInt16(GetField(row, 7));
  unit.SpecialsKey = GetField(row, 8);
  return unit;
}

LimitRec ParseLimitRow(std::string_view row) {
  LimitRec limit;
  limit.TypeA = GetField(row, 1);
  limit.Minimum = LenientInt16(GetField(row, 2));
  limit.Class = GetField(row, 3);
  const std::size_t plus = limit.TypeA.find('+');
  if (plus != std::string::npos) {
    limit.TypeB = limit.TypeA.substr(plus + 1);
    limit.TypeA.resize(plus);
  }
  return limit;
}

LeaderRec ParseLeaderRow(std::string_view row) {
  return {GetField(row, 1), GetField(row, 2), StrictInt16(GetField(row, 3)),
          StrictInt16(GetField(row, 4))};
}

CardRow ParseCardRow(std::string_view row) {
  return {GetField(row, 1), GetField(row, 2), GetField(row, 3)};
}

}  // namespace tarnwick
