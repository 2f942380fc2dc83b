// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_types.h"

#include "support/sample_state.h"

namespace tarnwick {

TEST(UnitTypeCode, SomeTypesAreSplitByClass) {
  const struct {
    const char *Type, *Class;
    int Code;
  } cases[] = {{"PH", "x", 1},   {"HI", "", 3},     {"MI", "", 4},     {"BI", "", 5},
               {"LP", "x", 6},   {"LI", "", 7},     {"SK", "", 8},     {"HC", "", 9},
               {"RC", "", 10},   {"BC", "", 11},    {"LN", "", 12},    {"LC", "", 13},
               {"EL", "", 14},   {"CH", "", 15},    {"GC", "x", 18},   {"LG", "HA", 50},
               {"LG", "PR", 51}, {"LG", "CO", 52},  {"LG", "ha", 53},  {"HI", "x", 54},
               {"LI", "x", 55},  {"CO", "Vet", 60}, {"CO", "Con", 61}, {"CO", "Rec", 62},
               {"CO", "VET", 0}, {"AS", "", 101},   {"YU", "", 102},   {"TP", "", 103},
               {"KB", "", 104},  {"SM", "", 0},     {"HI ", "", 0},    {"hi", "", 0}};
  for (const auto& c : cases)
    EXPECT_EQ(UnitTypeCode(c.Type, c.Class), c.Code) << c.Type << " " << c.Class;
  EXPECT_TRUE(IsUnitType("CO") && IsUnitType("SM") && IsUnitType("LM"));
  EXPECT_FALSE(IsUnitType("hi"));
}

TEST(MountedKind, MonstersAreAsTheirAbilitiesSay) {
  SampleState sample("Grid");  // its fourth row is an ogre, its fifth a wyvern
  const auto kind = [&](const char* type, int row) {
    return MountedKind(sample.State, sample.Store, type, row);
  };
  for (const char* type : {"HC", "RC", "BC", "LN", "EL", "LC", "CH", "GC", "KB"})
    EXPECT_EQ(kind(type, 4), mounted) << type;
  for (const char* type : {"SM", "LM"})
    EXPECT_EQ(Joined(kind(type, 5), kind(type, 4), kind(type, -1)), Joined(mounted, foot, foot));
  EXPECT_EQ(kind("HI", 5), 0);
  EXPECT_EQ(kind("SK", 5), 1);
}

}  // namespace tarnwick
