// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <QIcon>
#include <QListWidget>
#include <QTest>

#include "ui_fixture.h"

namespace tarnwick {

struct BattlefieldTest : WindowTest {
  void ExpectTerrain(const QString& kinds, const QString& armyPts, const QString& commandPts) {
    QStringList areas;
    for (const std::string& kind : Work.Field.AreaTerrain)
      areas.append(ToQt(kind.substr(0, 3)));
    EXPECT_EQ(areas.join(" "), kinds);
    EXPECT_EQ(Texts("ArmyPts", "CommandPts"), (QStringList{armyPts, commandPts}));
  }

  /// How a control looks, without its border.
  QImage Look(const QString& name, int border = 0) const {
    const QRect inside = Find(name).rect().adjusted(border, border, -border, -border);
    return Find(name).grab(inside).toImage().convertToFormat(QImage::Format_RGB32);
  }
};

TEST_F(BattlefieldTest, PiecesAreDraggedOrPickedAndPutDown) {
  LoadTrebia();
  Click("ShowTerrainBtn");
  const QImage before = Look("Area(4)");
  QImage held;
  Drag("TerrImg(2)", "Area(4)", [&] { held = Look("Area(4)"); });
  EXPECT_FALSE(held.isNull() || held == before) << "a piece is held over it";
  Drag("TerrImg(4)", "Area(3)");
  ExpectTerrain("CLE CLE CLE MOU CAM CLE CLE CLE CLE", "125", "175");
  Drag("TerrImg(5)", "Area(0)");
  EXPECT_EQ(TakeMessages(), QStringList{"Not enough points"});
  Drag("TerrImg(0)", "Area(4)");
  EXPECT_EQ(Look("Area(4)"), before);
  // Let go beside the areas, nothing is put down; a drag is no click that picks.
  Drag("TerrImg(3)", "ArmyPts");
  Click("Area(8)");
  ExpectTerrain("CLE CLE CLE MOU CLE CLE CLE CLE CLE", "185", "185");

  Click("TerrImg(3)", "Area(0)", "Area(1)");     // put down already
  Click("TerrImg(4)", "TerrImg(4)", "Area(2)");  // put back
  PressIn("TerrImg(1)", Qt::Key_Return);
  PressIn("Area(8)", Qt::Key_Space);
  PressIn("TerrImg(2)", Qt::Key_Enter);
  const QImage picked = Look("TerrImg(2)");
  Press(Qt::Key_Escape);
  EXPECT_NE(Look("TerrImg(2)"), picked);
  Click("Area(2)");
  ExpectTerrain("WOO CLE CLE MOU CLE CLE CLE CLE SLO", "135", "180");
}

TEST_F(BattlefieldTest, TilesShowTheirTerrain) {
  Click("ShowTerrainBtn");
  int kind = 0;
  for (const char* name : {"clear", "slope", "camp", "wood", "mountain", "cliff"}) {
    Work.Field.Terrain.Area[8 - kind].Picture = kind;
    Form.Refresh();
    const QIcon picture(QString(SHIPPED_DATA "/../src/ui/pictures/%1.svg").arg(name));
    const QRect area = Find(ElementName("Area", 8 - kind)).rect();
    const QImage drawn = picture.pixmap(area.size()).toImage().copy(area.adjusted(8, 8, -8, -8));
    EXPECT_EQ(Look(ElementName("Area", 8 - kind), 8), drawn.convertToFormat(QImage::Format_RGB32));
    EXPECT_NE(Look(ElementName("TerrImg", kind), 8), Look(ElementName("TerrImg", kind ? 0 : 1), 8));
    ++kind;
  }
}

TEST_F(BattlefieldTest, UnitsAreDeployedInASetup) {
  const auto stored = [this](const char* key) {
    return ToQt(Store.Files.ReadIniString("SETUP 2", key, Folder.Path() / "working.setup"));
  };
  LoadTrebia();
  const std::string before = Folder.Read("working.setup");
  Click("ShowSetup", "Command6");
  EXPECT_EQ(Text("description"), "New setup");
  Folder.Write("working.setup", before);
  Click("assignBtn(0)");
  EXPECT_EQ(TakeMessages(), QStringList{"Please select a unit"});
  EXPECT_EQ(stored("description"), "New setup") << "it is stored all the same";
  const QStringList units = Entries("unitList");
  for (const int row : {1, 0}) {  // the second takes the place of the first
    ClickEntry("unitList", row);
    Click("assignBtn(0)");
    EXPECT_EQ(Text("unit(0)"), units[row]);
    EXPECT_EQ(stored("field1"), units[row]);
  }
  Click("assignBtn(0)");  // withdraws
  EXPECT_EQ(Entries("unitList").last(2), (QStringList{units[1], units[0]}));
  const QString cut = QString(126, 'x') + "%1" + QString(126, 'y');  // the break takes two
  Enter("description", cut.arg("\n") + "yyy");
  EXPECT_EQ(stored("description"), cut.arg("\\n"));
  EXPECT_EQ(Text("descriptionWarning"), "254 of 254");

  PressIn("setupList", Qt::Key_Up);
  const QString first = "Mago in ambush.\nThe slingers in front.";
  EXPECT_EQ(Texts("description", "unit(0)"), (QStringList{first, "LC,,5,2,J"}));
  for (const bool byKey : {false, true}) {
    Click("ShowSetup");
    EXPECT_FALSE(Sees("setupFramePanel"));
    byKey ? PressIn("setupList", Qt::Key_Return) : ClickEntry("setupList", 0);
    EXPECT_EQ(Text("description"), first);
  }
  Click("Command3", "NewMonsterBtn");
  EXPECT_EQ(Texts("M_Size", "M_TQ", "M_Type"), (QStringList{"5", "4", "SM"}));
}

TEST_F(BattlefieldTest, UnitsAreDraggedToTheirPlaces) {
  LoadTrebia();
  Click("ShowSetup", "Command6");
  const QStringList units = Entries("unitList");
  const QImage before = Look("unit(3)");
  QImage held;
  DragEntry("unitList", 2, "unit(3)", [&] { held = Look("unit(3)"); });
  EXPECT_NE(held, before);
  EXPECT_EQ(Text("unit(3)"), units[2]);
  DragEntry("unitList", 0, "assignBtn(3)");
  EXPECT_EQ(Text("unit(3)"), units[0]);
  EXPECT_EQ(Entries("unitList").last(), units[2]);
  EXPECT_EQ(Form.focusWidget()->objectName(), "unitList");
}

TEST_F(BattlefieldTest, TheBrowserRefusesANewerFileAndLoadsByADoubleClick) {
  Folder.Write("Newer.army", "[EDITOR]\r\nversion=1.3\r\n[ARMY]\r\nbase=Carthage in Italy\r\n");
  OnDialog([this] {
    const auto& list = Find<QListWidget>("ArmyList");
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.viewport()->rect().bottomLeft());
    Click("Command1");
    EXPECT_EQ(TakeMessages(), QStringList(2, "This army has not been created whit this editor"));
    ClickEntry("ArmyList", 1);
    EXPECT_TRUE(Text("ArmyDetailLabel").startsWith("\nName: Hannibal at the Trebia\nBase: "));
    Press(Qt::Key_Up);
    EXPECT_TRUE(Text("ArmyDetailLabel").endsWith("\n\n*** Required editor version: 1.3"));
    Click("Command1");
    ClickEntry("ArmyList", 0, true);
    EXPECT_EQ(TakeMessages(), QStringList(2, "This army need version 1.3 or better"));
    PressIn("ArmyList", Qt::Key_Delete);
    EXPECT_EQ(Entries("ArmyList"), QStringList{"Trebia"});
    EXPECT_TRUE(Text("ArmyDetailLabel").endsWith("1.3")) << "nothing else is selected";
    ClickEntry("ArmyList", 0, true);
  });
  Click("LoadBtn");
  EXPECT_EQ(TakeMessages(), QStringList{"Do You really want to delete the army Newer ?"});
  EXPECT_EQ(Text("TotalCost"), "Points left: 235 of 400");
}

}  // namespace tarnwick
