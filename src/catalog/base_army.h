// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "base/int16.h"

namespace tarnwick {

/// A unit row of a base army: what the catalog says of it, and what the player chose.
struct UnitRec {
  std::string TQ;  ///< troop quality, a number as text
  std::string UnitType;
  std::string UnitClass;
  Int16 Bought;
  Int16 Cost;  ///< army points per unit
  Int16 MaxCount;
  std::string Size;  ///< a number as text
  std::string Missile;
  std::string ChosenImage;
  Int16 ChosenImageIdx;  ///< row in the image catalog; 0 is none
  std::string SpecialsKey;
  bool operator==(const UnitRec&) const = default;
};

/// A rule that says how many units of a type, or of either of two types, an army needs.
struct LimitRec {
  std::string TypeA;
  std::string TypeB;  ///< "" when the rule names one type
  std::string Class;  ///< "" when the rule is on types only
  Int16 Minimum;
  bool operator==(const LimitRec&) const = default;
};

struct LeaderRec {
  std::string Name;
  std::string Initiative;  ///< a whole number as text
  Int16 Command;
  Int16 Cost;  ///< command points
  bool operator==(const LeaderRec&) const = default;
};

/// A special card on offer, as the catalog writes it.
struct CardRow {
  std::string Name;
  std::string Cost;  ///< command points per card
  std::string Maximum;
};

// Five fields tell a unit's row from others: type, class, TQ, size and missile.

/// They as army files and the places of a setup have them: "HI,Vet,4,2,J".
std::string IdentityText(const UnitRec& unit);

/// They alone, of a unit line that begins with them.
UnitRec ParseIdentity(std::string_view line);

bool SameIdentity(const UnitRec& a, const UnitRec& b);

// One row of the catalog each. Cost, maximum and command must be whole numbers or round to them:
// TypeMismatchError, OverflowError. The minimum of a limit is read leniently.

UnitRec ParseUnitRow(std::string_view row);
LimitRec ParseLimitRow(std::string_view row);
LeaderRec ParseLeaderRow(std::string_view row);
CardRow ParseCardRow(std::string_view row);

}  // namespace tarnwick
