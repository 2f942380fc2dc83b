// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_types.h"

#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "rules/leaders.h"
#include "rules/unit_points.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

UnitRec Unit(const char* type, const char* tq, const char* specials = "") {
  UnitRec unit;
  unit.UnitType = type;
  unit.TQ = tq;
  unit.SpecialsKey = specials;
  return unit;
}

TEST(UnitTypeCode, KnowsTypesAndTheClassesThatSplitThem) {
  const struct {
    const char *Type, *Class;
    int Code;
  } cases[] = {
      {"PH", "", 1},     {"HI", "", 3},    {"HI", "x", 54},  {"MI", "", 4},     {"MI", "x", 4},
      {"BI", "", 5},     {"LP", "", 6},    {"LI", "", 7},    {"LI", "x", 55},   {"SK", "", 8},
      {"HC", "x", 9},    {"RC", "", 10},   {"BC", "", 11},   {"LN", "", 12},    {"LC", "", 13},
      {"EL", "", 14},    {"CH", "", 15},   {"GC", "", 18},   {"LG", "HA", 50},  {"LG", "PR", 51},
      {"LG", "CO", 52},  {"LG", "", 53},   {"LG", "ha", 53}, {"CO", "Vet", 60}, {"CO", "Con", 61},
      {"CO", "Rec", 62}, {"CO", "", 0},    {"CO", "VET", 0}, {"AS", "", 101},   {"YU", "", 102},
      {"TP", "", 103},   {"KB", "x", 104}, {"SM", "", 0},    {"LM", "", 0},     {"", "", 0},
      {"hi", "", 0},     {"HI ", "", 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(UnitTypeCode(c.Type, c.Class), c.Code) << c.Type << " " << c.Class;
  }
}

TEST(MountedKind, MonstersAreAsTheirAbilitiesSay) {
  const TempFolder folder;
  folder.Write("specials.dat", "[Wyvern]\nspecial=FLY+MOUNTED\n[Ogre]\nspecial=BIG\n");
  ArmyState state(folder.Path());
  state.BaseUnits[1].SpecialsKey = "Wyvern";
  state.BaseUnits[2].SpecialsKey = "Ogre";
  const struct {
    const char* Type;
    int Row, Kind;
  } cases[] = {
      {"SK", -1, skirmishers}, {"SK", 1, skirmishers}, {"HC", -1, mounted}, {"RC", -1, mounted},
      {"BC", -1, mounted},     {"LN", -1, mounted},    {"EL", -1, mounted}, {"LC", -1, mounted},
      {"CH", -1, mounted},     {"GC", -1, mounted},    {"KB", 2, mounted},  {"SM", 1, mounted},
      {"LM", 1, mounted},      {"SM", 2, foot},        {"LM", 3, foot},     {"SM", -1, foot},
      {"HI", 1, foot},         {"hc", -1, foot},       {"", -1, foot}};
  for (const auto& c : cases) {
    EXPECT_EQ(MountedKind(state, c.Type, c.Row), c.Kind) << c.Type << " " << c.Row;
  }
}

TEST(LeaderCost, OnlyInitiative7PaysForCommand2) {
  const struct {
    int Initiative, Command, Cost;
  } cases[] = {{3, 1, 0}, {4, 1, 40}, {5, 1, 70},  {6, 1, 100}, {7, 1, 120}, {8, 1, 0},  {4, 2, 0},
               {5, 2, 0}, {6, 2, 0},  {7, 2, 150}, {7, 0, 150}, {8, 2, 0},   {-7, 1, 0}, {0, 1, 0}};
  for (const auto& c : cases) {
    EXPECT_EQ(LeaderCost(c.Initiative, c.Command), c.Cost) << c.Initiative << "/" << c.Command;
  }
}

TEST(UnitPoints, FourTypesAreSpecial) {
  ArmyState state{"/"};
  const struct {
    const char *Type, *TQ;
    int Points;
  } cases[] = {{"SK", "5", 1},   {"SK", "none", 1},  {"EL", "7", 2},    {"CH", "", 2},
               {"PH", "4", 8},   {"PH", "2.25", 4},  {"PH", "2.75", 6}, {"HI", "3", 3},
               {"HI", "2.5", 2}, {"HI", " 3.5 ", 4}, {"sk", "5", 5},    {"ph", "5", 5}};
  for (const auto& c : cases) {
    state.BaseUnits[200] = Unit(c.Type, c.TQ);
    EXPECT_EQ(UnitPoints(state, 200), c.Points) << c.Type << " " << c.TQ;
  }
  for (const char* type : {"PH", "HI"}) {
    for (const char* text : {"", "5x"}) {
      state.BaseUnits[1] = Unit(type, text);
      EXPECT_THROW(UnitPoints(state, 1), TypeMismatchError) << type << " " << text;
    }
  }
  state.BaseUnits[1] = Unit("PH", "16384");
  EXPECT_THROW(UnitPoints(state, 1), OverflowError);
  EXPECT_THROW(UnitPoints(state, 0), SubscriptError);
  EXPECT_THROW(UnitPoints(state, 201), SubscriptError);
}

}  // namespace
}  // namespace tarnwick
