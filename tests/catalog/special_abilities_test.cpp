// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/special_abilities.h"

#include "base/text.h"
#include "support/testing.h"

namespace tarnwick {

TEST(SpecialAbilities, TenCodesAreLookedAtAndTheFirstGapEndsTheList) {
  const Disk disk(TEST_DATA "/rules");
  const SpecialAbilities abilities(disk);
  const struct {
    const char* Group;
    bool Fast, Mounted;
    const char* Explanation;  ///< "|" stands for a line break and an empty line
  } cases[] = {
      {"Riders", true, true, "|*FAST=Moves twice|*MOUNTED=Rides"},
      {"Lower", false, false, "|*mounted=Rides"},  // keys match in any case
      {"Gap", true, false, "|*FAST=Moves twice"},
      {"Unknown", true, true, "|*FAST=Moves twice"},
      {"Many", false, true, "|*A=1|*A=1|*A=1|*A=1|*A=1|*A=1|*A=1|*A=1|*A=1|*MOUNTED=Rides"},
      {"", false, false, ""},
      {"None", false, false, ""}};
  for (const auto& [group, fast, mounted, explanation] : cases) {
    EXPECT_EQ(abilities.Has(group, "FAST"), fast) << group;
    EXPECT_EQ(abilities.Has(group, "MOUNTED"), mounted) << group;
    EXPECT_FALSE(abilities.Has(group, "") || abilities.Has(group, "MOUNT")) << group;
    EXPECT_EQ(abilities.Explain(group), ReplaceText("|", "\r\n\r\n", explanation));
  }
}

}  // namespace tarnwick
