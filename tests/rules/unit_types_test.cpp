// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_types.h"

#include <gtest/gtest.h>

#include "rules/army_state.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

TEST(UnitTypeCode, SomeTypesAreSplitByClass) {
  const struct {
    const char *Type, *Class;
    int Code;
  } cases[] = {{"HI", "", 3},    {"HI", "x", 54},   {"MI", "x", 4},    {"LI", "", 7},
               {"LI", "x", 55},  {"LG", "HA", 50},  {"LG", "PR", 51},  {"LG", "CO", 52},
               {"LG", "ha", 53}, {"CO", "Vet", 60}, {"CO", "Con", 61}, {"CO", "Rec", 62},
               {"CO", "VET", 0}, {"YU", "", 102},   {"KB", "x", 104},  {"SM", "", 0},
               {"HI ", "", 0},   {"hi", "", 0}};
  for (const auto& c : cases)
    EXPECT_EQ(UnitTypeCode(c.Type, c.Class), c.Code) << c.Type << " " << c.Class;
}

TEST(MountedKind, MonstersAreAsTheirAbilitiesSay) {
  const TempFolder folder;
  folder.Write("specials.dat", "[Wyvern]\nspecial=FLY+MOUNTED\n[Ogre]\nspecial=BIG\n");
  const Disk disk(folder.Path());
  ArmyState state;
  state.BaseUnits[1].SpecialsKey = "Wyvern";
  state.BaseUnits[2].SpecialsKey = "Ogre";
  for (const char* type : {"HC", "RC", "BC", "LN", "EL", "LC", "CH", "GC", "KB"})
    EXPECT_EQ(MountedKind(state, disk, type, 2), mounted) << type;
  for (const char* type : {"SM", "LM"})
    EXPECT_EQ(MountedKind(state, disk, type, 1), mounted) << type;
  for (const char* type : {"SM", "LM", "HI", "hc", ""})
    EXPECT_EQ(MountedKind(state, disk, type, type[0] == 'H' ? 1 : 2), foot) << type;
  EXPECT_EQ(MountedKind(state, disk, "SM", -1), foot);
  EXPECT_EQ(MountedKind(state, disk, "SK", 1), skirmishers);
}

}  // namespace
}  // namespace tarnwick
