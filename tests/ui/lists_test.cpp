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
}

TEST_F(ListsTest, ASearchNarrowsTheArmies) {
  OnDialog([this] {
    const auto focus = [] { return QApplication::focusWidget()->objectName(); };
    Press(Qt::Key_End);
    Press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focus(), "ArmySearch");
    Type("OF g");
    EXPECT_TRUE(Picture("ArmySelectionForm").contains("\"1 of 30\""));
    EXPECT_EQ(Row("ArmyList"), -1) << "it is gone";
    Press(Qt::Key_Return);
    EXPECT_EQ(TakeMessages(), QStringList{"Please select one army"});
    Type("?");
    Press(Qt::Key_Down);
    EXPECT_EQ(focus(), "ArmySearch") << "there is nothing to go to";
    Enter("ArmySearch", "king");
    for (const auto& [key, army] : {std::pair(Qt::Key_Down, "Kingdom of Pontos"),
                                    {Qt::Key_End, "Parthian Kingdom"},
                                    {Qt::Key_Home, "Kingdom of Pontos"},
                                    {Qt::Key_S, "Seleukid Kingdom"}}) {
      Press(key);
      EXPECT_EQ(Find<QListWidget>("ArmyList").currentItem()->text(), army);
      EXPECT_EQ(focus(), "ArmyList");
    }
    Enter("ArmySearch", "gaul");
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
  });
  Click("NewArmyBtn");
  EXPECT_EQ(Text("ArmyName"), "Tribes of Gaul");
}

TEST_F(ListsTest, UnitsAreDeployedByOneKeyEach) {
  const auto places = [this] {
    QStringList held;
    for (const Label& place : Work.Field.Setup.unit)
      held.append(place.Caption.empty() ? "-" : ToQt(place.Caption));
    return held;
  };
  LoadTrebia();
  Click("ShowSetup", "Command6");
  const QStringList u = Entries("unitList");
  PressIn("unitList", Qt::Key_Down);
  Press(Qt::Key_Down);
  Press(Qt::Key_5);
  EXPECT_EQ(Row("unitList"), -1);
  EXPECT_EQ(Form.focusWidget()->objectName(), "unitList");
  Press(Qt::Key_Down);
  EXPECT_EQ(Row("unitList"), 1) << "the player goes on there";
  Press(Qt::Key_1);
  Press(Qt::Key_Return);  // to the second place
  EXPECT_EQ(places(), (QStringList{u[2], u[3], "-", "-", u[1], "-", "-", "-", "-"}));
  Press(Qt::Key_Home);
  Press(Qt::Key_5);  // for the one that holds it
  EXPECT_EQ(Entries("unitList").last(), u[1]);
  ClickEntry("unitList", u[1], true);
  EXPECT_EQ(places(), (QStringList{u[2], u[3], u[1], "-", u[0], "-", "-", "-", "-"}));
  EXPECT_EQ(Row("unitList"), -1) << "nothing is selected under the hand";
  for (int i = 0; i < 9; ++i)
    Press(Qt::Key_Enter);
  const QStringList all = places();
  EXPECT_FALSE(all.contains("-"));
  ClickEntry("unitList", 0, true);
  EXPECT_EQ(places(), all) << "none is free";
  Work.Field.Setup.unitList.Clear();
  Form.Refresh();
  Press(Qt::Key_1);
  EXPECT_EQ(places(), all) << "an empty list withdraws none";
}

TEST_F(ListsTest, EscapeLeavesEveryDialogFromEveryControl) {
  NewArmy(0);
  const std::tuple<const char*, const char*, QStringList> dialogs[] = {
      {"ShowSaveFrame", "NewArmyBtn", {"ArmySearch", "ArmyList", "Command1"}},
      {"ShowSaveFrame", "LoadBtn", {"ArmySearch", "ArmyList", "DelArmy", "Command1"}},
      {"ShowUnitsBtn", "specLabel(0)", {"Command1"}},
      {"ShowCommandBtn", "LeaderBtn", {"LeaderName", "InitiativeBox", "CommandBox", "Command1"}}};
  for (const auto& [panel, button, controls] : dialogs) {
    for (qsizetype tabs = 0; tabs < controls.size(); ++tabs) {
      OnDialog([&, this] {
        const auto focus = [] { return QApplication::focusWidget()->objectName(); };
        Find(controls[0]).setFocus();
        for (qsizetype i = 0; i < tabs; ++i)
          Press(Qt::Key_Tab);
        EXPECT_EQ(focus(), controls[tabs]);
        if (focus() == "CommandBox") {
          Choose("InitiativeBox", 0);
          Choose("CommandBox", 1);
        }
        Press(Qt::Key_Escape);
      });
      Click(panel, button);
      EXPECT_EQ(TakeMessages(), QStringList()) << button << controls[tabs].toStdString();
    }
  }
}

}  // namespace tarnwick
