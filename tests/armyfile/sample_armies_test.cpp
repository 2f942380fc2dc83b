// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include <gtest/gtest.h>

#include "armyfile/army_browser.h"
#include "armyfile/loading.h"
#include "rules/verification.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

TEST(SampleArmies, LoadWithoutAMessageAndAreLegal) {
  const TempFolder folder;
  std::filesystem::copy(SHIPPED_DATA, folder.Path(), std::filesystem::copy_options::recursive);
  WorkingArmy work(folder.Path());
  FakeHost host;
  Form_Load(work);
  for (const bool brakka : {false, true}) {
    TickOption(work.Army.Management.modOption, brakka ? 1 : 0);
    modOption_Click(work);
    ArmyListForm browser;
    FillArmyList(work.Army, browser);
    EXPECT_EQ(browser.ArmyList.Entries.size(), brakka ? 2U : 4U);
    for (const ListEntry& army : browser.ArmyList.Entries) {
      SCOPED_TRACE(army.Text);
      host.OnArmyListForm = [&] { work.Header.ArmyFile = army.Text; };
      LoadBtn_Click(work, host);
      EXPECT_EQ(host.Heard(), Lines());
      EXPECT_TRUE(VerifyArmy(work.Army, host, false));
      EXPECT_GE(work.Army.PointsLeft, 0);
      EXPECT_GE(work.Army.CommandPts, 0);
      EXPECT_EQ(work.Field.Setup.setupList.Entries.size(), brakka ? 0U : 2U);
      EXPECT_GT(work.Header.ArmyDesc.Text.size(), 50U);
    }
  }
}

}  // namespace
}  // namespace tarnwick
