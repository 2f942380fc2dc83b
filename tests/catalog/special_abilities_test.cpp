// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/special_abilities.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace tarnwick {
namespace {

TEST(SpecialAbilities, TenCodesAreLookedAtAndTheFirstGapEndsTheList) {
  const TempFolder folder;
  folder.Write("specials.dat",
               "[Riders]\nspecial=FAST+MOUNTED\n[Lower]\nspecial=mounted\n"
               "[Gap]\nspecial=FAST++MOUNTED\n[Unknown]\nspecial=FAST+RIDDLE+MOUNTED\n"
               "[Many]\nspecial=A+A+A+A+A+A+A+A+A+MOUNTED+FAST\n"
               "[SPECIALS]\nFAST=Moves twice\nMOUNTED=Rides\nA=1\n");
  const Disk disk(folder.Path());
  const SpecialAbilities abilities(disk);
  const std::string fast = "\r\n\r\n*FAST=Moves twice";
  const std::string mounted = "\r\n\r\n*MOUNTED=Rides";
  std::string many;
  for (int i = 0; i < 9; ++i)
    many += "\r\n\r\n*A=1";
  const struct {
    const char* Key;
    bool Fast, Mounted;
    std::string Explanation;
  } cases[] = {{"Riders", true, true, fast + mounted},
               {"Lower", false, false, "\r\n\r\n*mounted=Rides"},  // keys match in any case
               {"Gap", true, false, fast},
               {"Unknown", true, true, fast},  // what nobody explains ends the explanation
               {"Many", false, true, many + mounted},
               {"", false, false, ""},
               {"None", false, false, ""}};
  for (const auto& c : cases) {
    EXPECT_EQ(abilities.Has(c.Key, "FAST"), c.Fast) << c.Key;
    EXPECT_EQ(abilities.Has(c.Key, "MOUNTED"), c.Mounted) << c.Key;
    EXPECT_EQ(abilities.Explain(c.Key), c.Explanation) << c.Key;
  }
  EXPECT_FALSE(abilities.Has("Riders", "MOUNT"));
  EXPECT_FALSE(abilities.Has("Gap", ""));
}

}  // namespace
}  // namespace tarnwick
