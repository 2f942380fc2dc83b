// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "catalog/base_army.h"
#include "check_catalog/catalog_file.h"
#include "check_catalog/picture_check.h"
#include "rules/army_state.h"

namespace tarnwick {

/// The most TQ points of an army: the editor works out 30 % of them.
inline constexpr int mostTq = largest / 30;

/// A unit row that could be read.
struct UnitRow {
  std::string Key;
  UnitRec Unit;
  int TqPoints = 0;  ///< of one unit
  double Size = 0;
};

/// Checks the unit rows of a module's armies.
class UnitCheck {
 public:
  /// Pictures are looked for in all of `pictures`.
  UnitCheck(const Disk& disk, CatalogFile& specials, std::vector<PictureCheck*> pictures)
      : disk_(disk), specials_(specials), pictures_(std::move(pictures)) {}

  /// Gives the rows that can be bought.
  std::vector<UnitRow> Check(CatalogSection& army);

  /// The kinds of units that no picture shows, and the special abilities that are none, each once.
  void ReportLacks();

  /// Whether a row names special abilities though there are none.
  bool LacksSpecials() const { return lacksSpecials_; }

 private:
  /// The first of the rows that lack the same.
  struct Lack {
    CatalogSection Army;
    std::string Key;
    int Rows = 0;

    std::string Others() const {
      return Rows > 1 ? " and " + std::to_string(Rows - 1) + " more" : "";
    }
  };

  void CheckIdentity(CatalogSection& army, const UnitRow& row);
  void CheckNumbers(CatalogSection& army, UnitRow& row);
  void CheckGroup(CatalogSection& army, const UnitRow& row);
  void CheckViews(CatalogSection& army, const std::vector<UnitRow>& rows);

  const Disk& disk_;
  CatalogFile& specials_;
  std::vector<PictureCheck*> pictures_;
  ArmyState state_;                     ///< its first row is the one that the rules are asked about
  std::map<std::string, Lack> lacks_;   ///< by what no picture has
  std::map<std::string, Lack> groups_;  ///< by the group that specials.dat has not
  bool lacksSpecials_ = false;
};

/// Whether buying can carry a sum over the units beyond 16 bits, within `points` and the maxima.
void CheckSums(CatalogSection& army, const std::vector<UnitRow>& rows, int points);

}  // namespace tarnwick
