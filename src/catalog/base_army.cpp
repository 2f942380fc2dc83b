// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/base_army.h"

#include <algorithm>
#include <array>

#include "base/numbers.h"
#include "base/text.h"

namespace tarnwick {
namespace {

/// In the order of unit lines in all files.
constexpr std::array identity = {&UnitRec::UnitType, &UnitRec::UnitClass, &UnitRec::TQ,
                                 &UnitRec::Size, &UnitRec::Missile};

}  // namespace

std::string IdentityText(const UnitRec& unit) {
  std::string text;
  for (const auto field : identity)
    text.append(unit.*field).append(",");
  text.pop_back();
  return text;
}

UnitRec ParseIdentity(std::string_view line) {
  UnitRec unit;
  for (int n = 1; const auto field : identity)
    unit.*field = GetField(line, n++);
  return unit;
}

bool SameIdentity(const UnitRec& a, const UnitRec& b) {
  return std::ranges::all_of(identity, [&](const auto field) { return a.*field == b.*field; });
}

UnitRec ParseUnitRow(std::string_view row) {
  UnitRec unit = ParseIdentity(row);
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
