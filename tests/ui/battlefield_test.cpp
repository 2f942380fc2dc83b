// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>

#include <QListWidget>

#include "ui_fixture.h"

namespace tarnwick {
namespace {

struct BattlefieldTest : WindowTest {
  /// A saved and loaded army: 235 of 400 army points and 210 of 250 command points are free.
  void LoadTrebia() {
    BuyValidArmy();
    Hands.Click("QuickSave");
    Hands.OnDialog([this] { Hands.ClickEntry("ArmyList", 0, true); });
    Hands.Click("ShowSaveFrame");
    Hands.Click("LoadBtn");
    EXPECT_EQ(Hands.TakeMessages(), QStringList{"Army Saved"});
  }

  QStringList Entries(const QString& list) const {
    QStringList texts;
    const auto& widget = Hands.Find<QListWidget>(list);
    for (int i = 0; i < widget.count(); ++i)
      texts.append(widget.item(i)->text());
    return texts;
  }

  std::string Terrain() const {
    std::string kinds;
    for (const std::string& kind : Work.Field.AreaTerrain)
      kinds += kind.substr(0, 2) + " ";
    return kinds;
  }

  std::string Stored(const char* key) const {
    return Store.Files.ReadIniString("SETUP 1", key, Folder.Path() / "working.setup");
  }
};

TEST_F(BattlefieldTest, PiecesAreDraggedOntoAreas) {
  if (!WindowDriver::CanDrag()) GTEST_SKIP() << "the platform has no dragging";
  LoadTrebia();
  Hands.Click("ShowTerrainBtn");
  bool seen = false;
  Hands.Drag("TerrImg(2)", "Area(4)", [&] { seen = true; });
  EXPECT_TRUE(seen);
  EXPECT_EQ(Terrain(), "CL CL CL CL CA CL CL CL CL ");
  EXPECT_EQ(Text("ArmyPts") + " " + Text("CommandPts"), "175 200");
  Hands.Drag("TerrImg(5)", "Area(4)");
  EXPECT_EQ(Terrain(), "CL CL CL CL CL CL CL CL CL ") << "a cliff";
  EXPECT_EQ(Work.Field.AreaTerrain[4], "CLIFF");
  EXPECT_EQ(Text("ArmyPts"), "85");
  Hands.Drag("TerrImg(5)", "Area(0)");
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"Not enough points"});
  // Let go beside the areas, nothing is put down; a drag is no click that picks.
  Hands.Drag("TerrImg(3)", "ArmyPts");
  Hands.Click("Area(8)");
  EXPECT_EQ(Work.Field.AreaTerrain[8], "CLEAR");
}

TEST_F(BattlefieldTest, PiecesArePickedAndPutDownByClickAndKey) {
  LoadTrebia();
  Hands.Click("ShowTerrainBtn");
  Hands.Click("Area(0)");  // nothing was picked
  Hands.Click("TerrImg(3)");
  Hands.Click("Area(0)");
  Hands.Click("Area(1)");  // put down already
  Hands.Find("TerrImg(1)").setFocus();
  Hands.Press(Qt::Key_Return);
  Hands.Find("Area(8)").setFocus();
  Hands.Press(Qt::Key_Space);
  Hands.Click("TerrImg(4)");
  Hands.Press(Qt::Key_Escape);
  Hands.Click("Area(2)");
  EXPECT_EQ(Terrain(), "WO CL CL CL CL CL CL CL SL ");
  EXPECT_EQ(Text("ArmyPts") + " " + Text("CommandPts"), "185 205");
  Hands.Click("ShowUnitsBtn");
  EXPECT_EQ(Text("TotalCost"), "Points left: 185 of 400");
}

TEST_F(BattlefieldTest, UnitsAreDeployedInASetup) {
  LoadTrebia();
  Hands.Click("ShowSetup");
  EXPECT_FALSE(Hands.Find("setupFramePanel").isVisible());
  Hands.Click("Command6");
  EXPECT_EQ(Entries("setupList"), QStringList{"1"});
  EXPECT_EQ(Text("description"), "New setup");
  const QStringList units = Entries("unitList");
  ASSERT_GT(units.size(), 3);
  Hands.Click("assignBtn(0)");
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"Please select a unit"});
  Hands.ClickEntry("unitList", 1);
  Hands.Click("assignBtn(0)");
  EXPECT_EQ(Text("unit(0)"), units[1]);
  Hands.ClickEntry("unitList", 0);
  Hands.Click("assignBtn(0)");  // exchanges
  EXPECT_EQ(Text("unit(0)") + Entries("unitList").last(), units[0] + units[1]);
  EXPECT_EQ(QString::fromStdString(Stored("field1")), units[0]);
  Hands.Click("assignBtn(0)");  // withdraws
  EXPECT_EQ(Text("unit(0)") + Entries("unitList").last(), units[0]);
  EXPECT_EQ(Stored("field1"), "");

  Hands.Enter("description", "left\nright");
  EXPECT_EQ(Stored("description"), "left\\nright");
  Hands.Press(Qt::Key_A, Qt::ControlModifier);
  Hands.Type(QString(126, 'x') + "\n" + QString(140, 'y'));
  EXPECT_EQ(Stored("description").size(), 254U);  // the line break takes two
  Hands.Click("ShowSetup");
  EXPECT_FALSE(Hands.Find("setupFramePanel").isVisible());
  Hands.ClickEntry("setupList", 0);
  EXPECT_TRUE(Hands.Find("setupFramePanel").isVisible());
  EXPECT_EQ(Text("description"), QString(126, 'x') + "\n" + QString(126, 'y'));
  Hands.Click("Command3");
  EXPECT_TRUE(Hands.Find("EditFrame(5)").isVisible());
  EXPECT_EQ(Entries("setupList"), QStringList{"1"});
  Hands.Click("NewMonsterBtn");
  EXPECT_EQ(Text("M_Size") + Text("M_TQ") + Text("M_Type"), "54SM");
}

TEST_F(BattlefieldTest, TheBrowserRefusesANewerFileAndLoadsByADoubleClick) {
  LoadTrebia();
  Folder.Write("Newer.army", "[EDITOR]\r\nversion=1.3\r\n[ARMY]\r\nbase=Carthage in Italy\r\n");
  Enter("Buy(2)", "1");
  Hands.OnDialog([this] {
    EXPECT_EQ(Entries("ArmyList"), (QStringList{"Newer", "Trebia"}));
    DoubleClickBelowArmies();
    Hands.ClickEntry("ArmyList", 0, true);
    EXPECT_TRUE(Text("ArmyDetailLabel").endsWith("\n\n*** Required editor version: 1.3"));
    EXPECT_EQ(Hands.TakeMessages(), (QStringList{"This army has not been created whit this editor",
                                                 "This army need version 1.3 or better"}));
    Hands.CancelNextMessage();
    Hands.Click("DelArmy");
    Hands.Click("DelArmy");
    EXPECT_EQ(Entries("ArmyList"), QStringList{"Trebia"});
    Hands.ClickEntry("ArmyList", 0, true);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  });
  Hands.Click("ShowSaveFrame");
  Hands.Click("LoadBtn");
  const QString question = "Do You really want to delete the army Newer ?";
  EXPECT_EQ(Hands.TakeMessages(), (QStringList{question, question}));
  EXPECT_TRUE(Hands.Find("EditFrame(0)").isVisible());
  EXPECT_EQ(Points(), "235/165 210");
  EXPECT_EQ(Text("Buy(0)") + Text("Buy(2)"), "4");
  EXPECT_TRUE(Ticked("LeaderName(4)"));
}

}  // namespace
}  // namespace tarnwick
