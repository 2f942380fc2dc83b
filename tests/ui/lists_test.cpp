// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <QListWidget>

#include "ui_fixture.h"

namespace tarnwick {

struct ListsTest : WindowTest {
  int Row(const QString& list) const { return EntriesOf(Find(list)).second; }
};

TEST_F(ListsTest, KeysWalkAList) {
  for (const auto first : {Qt::Key_Down, Qt::Key_Up}) {
    OnDialog([this, first] {
      EXPECT_EQ(Find<QListWidget>("ArmyList").currentRow(), -1) << "no row looks chosen";
      for (const auto& [key, row] :
           {std::pair(first, 0), {Qt::Key_Down, 1}, {Qt::Key_Home, 0}, {Qt::Key_K, 1}}) {
        Press(key);
        EXPECT_EQ(Row("ArmyList"), row) << key;
      }
      Press(Qt::Key_Return);
    });
    Click("ShowSaveFrame", "NewArmyBtn");
    EXPECT_EQ(Text("ArmyName"), "Kingdom of Pontos");
  }
  LoadTrebia();
  Click("ShowSetup", "Command6");
  ClickEntry("unitList", 2);
  Click("assignBtn(0)");
  EXPECT_EQ(Row("unitList"), -1);
  PressIn("unitList", Qt::Key_Down);
  EXPECT_EQ(Row("unitList"), 2) << "the player goes on there";
}

}  // namespace tarnwick
