// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "battlefield/terrain.h"

#include "base/ansi.h"
#include "base/numbers.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {

struct Terrain : testing::Test {
  Terrain() { InitTerrainKinds(Field); }

  /// Drops a piece on an area; the points left come back.
  std::string Drop(int kind, int area) {
    DropTerrain(Field, State, Host, kind, area);
    return Points();
  }
  std::string Points() const { return Joined(State.PointsLeft, State.CommandPts); }
  void Load(const std::string& areas) {
    Folder.Write("x.army", "[TERRAIN]\n" + areas);
    LoadTerrain(Field, State, Store.Files, Folder / "x.army");
  }
  /// What lies on an area, and how it is shown.
  std::string Area(int area) const {
    const PictureBox& box = Field.Terrain.Area[area];
    return Joined(Field.AreaTerrain[area], box.Tag, box.Picture);
  }

  TempFolder Folder;
  Disk Store{Folder.Path()};
  ArmyState State;
  Battlefield Field;
  FakeHost Host;
};

TEST_F(Terrain, APieceNeedsItsWholePriceBeforeTheOldOneIsRefunded) {
  const char* const prices[] = {"0|0", "-30|-5", "-60|-10", "-20|0", "-50|-15", "-150|0"};
  const char* const names[] = {"CLEAR", "SLOPE", "CAMP", "WOOD", "MOUNTAIN", "CLIFF"};
  std::string army = "| army points |", command = "| command points |", rows;
  for (int kind = 0; kind <= 5; ++kind) {
    State.PointsLeft = State.CommandPts = 0;
    Load(std::string("area1=") + names[kind]);  // charges even below zero
    EXPECT_EQ(Points(), prices[kind]) << names[kind];
    const std::string armyCost = " " + NumberText(Field.TerrainKinds[kind].ArmyCost) + " |";
    const std::string commandCost = " " + NumberText(Field.TerrainKinds[kind].CommandCost) + " |";
    army += armyCost;
    command += commandCost;
    rows += names[kind][0] + LowerCase(names[kind] + 1) + " |" + armyCost + commandCost + "\n| ";
  }
  const auto tells = [](const char* page, const std::string& text) {
    return TempFolder::ReadBytes(SHIPPED_DATA "/../docs/" + std::string(page)).find(text) !=
           std::string::npos;
  };
  rows.erase(rows.size() - 2);
  EXPECT_TRUE(tells("file-formats.md", army + "\n" + command)) << army << "\n" << command;
  EXPECT_TRUE(tells("guide/terrain.md", rows)) << rows;
  State.PointsLeft = 150;
  State.CommandPts = 20;
  EXPECT_EQ(Drop(1, 0), "120|15");
  EXPECT_EQ(Drop(5, 0), "120|15");  // the exchange would cost 120
  EXPECT_EQ(Area(0), "SLOPE|1|1");
  EXPECT_EQ(Drop(4, 0), "100|5");
  EXPECT_EQ(Joined(Field.Terrain.ArmyPts.Caption, Field.Terrain.CommandPts.Caption), "100|5");
  EXPECT_EQ(State.Units.TotalCost.Caption, "Points left: 100 of 0");
  EXPECT_EQ(Drop(4, 0), "100|5");  // 15 command points are not free
  EXPECT_EQ(Drop(0, 0), "150|20");
  EXPECT_EQ(Drop(5, 8), "0|20");  // just enough
  EXPECT_EQ(Area(8), "CLIFF|5|5");
  State.PointsLeft = -1;
  EXPECT_EQ(Drop(0, 8), "-1|20");  // nothing is taken off by an army in debt
  EXPECT_EQ(Host.Heard(), Lines(3, "Not enough points"));
}

TEST_F(Terrain, AClearedAreaKeepsItsPicture) {
  State.PointsLeft = 99;
  Drop(3, 0);
  ClearAreas(Field);
  EXPECT_EQ(Joined(Points(), Area(0)), "79|0|CLEAR|3|3");
  State.CommandPts = 7;
  ShowTerrainBtn_Click(Field, State);
  EXPECT_EQ(Area(0), "CLEAR|0|3");
  EXPECT_EQ(Joined(Field.Terrain.ArmyPts.Caption, Field.Terrain.CommandPts.Caption), "79|7");
  EXPECT_EQ(State.EditFrame.Front, Panel::Terrain);
  Field.AreaTerrain[0] = Field.AreaTerrain[8] = "CAMP";
  ShowTerrain(Field, State);
  EXPECT_EQ(Joined(Area(0), Area(8)), "CAMP|2|2|CAMP|2|2");
}

}  // namespace tarnwick
