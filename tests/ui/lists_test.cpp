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

TEST_F(ListsTest, ASearchNarrowsTheArmies) {
  const auto left = [this] {
    QStringList rows;
    const auto& list = Find<QListWidget>("ArmyList");
    for (int row = 0; row < list.count(); ++row)
      if (!list.isRowHidden(row)) rows.append(list.item(row)->text());
    return rows;
  };
  OnDialog([this, left] {
    const auto focus = [] { return QApplication::focusWidget()->objectName(); };
    Press(Qt::Key_End);
    Press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focus(), "ArmySearch");
    Type("OF g");
    EXPECT_EQ(left(), (QStringList{"Tribes of Gaul"}));
    EXPECT_TRUE(Picture("ArmySelectionForm").contains("\"1 of 30\""));
    EXPECT_EQ(Row("ArmyList"), -1) << "it is gone";
    Press(Qt::Key_Return);
    EXPECT_EQ(TakeMessages(), QStringList{"Please select one army"});
    Type("?");
    Press(Qt::Key_Down);
    EXPECT_EQ(focus(), "ArmySearch") << "there is nothing to go to";
    Enter("ArmySearch", "k");
    const QStringList armies = left();
    Press(Qt::Key_Down);
    EXPECT_EQ(focus(), "ArmyList");
    const auto chosen = [this] { return Find<QListWidget>("ArmyList").currentItem()->text(); };
    EXPECT_EQ(chosen(), armies[0]);
    for (const auto& [key, army] : {std::pair(Qt::Key_End, armies.last()),
                                    {Qt::Key_Home, armies[0]},
                                    {Qt::Key_S, QString("Seleukid Kingdom")}}) {
      Press(key);
      EXPECT_EQ(chosen(), army) << key;
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
        for (const QString& control : controls.first(tabs + 1)) {
          EXPECT_EQ(focus(), control);
          if (control != controls[tabs]) Press(Qt::Key_Tab);
        }
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
