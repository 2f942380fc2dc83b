// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "battlefield/terrain.h"

#include <string>

#include <gtest/gtest.h>

#include "base/numbers.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

TEST(Terrain, AllNineAreasAreSaved) {
  const TempFolder folder;
  ProfileFiles files;
  Battlefield field;
  ClearAreas(field);
  field.AreaTerrain[0] = "SLOPE";
  field.AreaTerrain[8] = "CLIFF";
  folder.Write("a.army", "[ARMY]\r\nname=Tyre\r\n[terrain]\r\narea2=WOOD\r\n\r\n[SETUP 1]\r\n");
  SaveTerrain(field, files, folder / "a.army");
  const std::string clearAreas =
      "area3=CLEAR\r\narea4=CLEAR\r\narea5=CLEAR\r\narea6=CLEAR\r\narea7=CLEAR\r\narea8=CLEAR\r\n"
      "area9=CLIFF\r\n";
  EXPECT_EQ(folder.Read("a.army"),
            "[ARMY]\r\nname=Tyre\r\n[terrain]\r\narea2=CLEAR\r\narea1=SLOPE\r\n" + clearAreas +
                "\r\n[SETUP 1]\r\n");
  SaveTerrain(field, files, folder / "b.army");
  EXPECT_EQ(folder.Read("b.army"), "[TERRAIN]\r\narea1=SLOPE\r\narea2=CLEAR\r\n" + clearAreas);
  EXPECT_NO_THROW(SaveTerrain(field, files, folder / "none/c.army"));
}

/// Points as "army/command", and what lies on the first two areas as "name picture".
struct TerrainGame : testing::Test {
  TerrainGame() {
    InitTerrainKinds(Field);
    State.PointsLeft = 150;
    State.CommandPts = 20;
  }

  std::string Drop(int kind, int area) {
    DropTerrain(Field, State, Host, kind, area);
    return Points();
  }
  std::string Points() const {
    return NumberText(State.PointsLeft) + "/" + NumberText(State.CommandPts);
  }

  TempFolder Folder;
  ArmyState State{Folder.Path()};
  Battlefield Field;
  FakeHost Host;
};

TEST_F(TerrainGame, APieceNeedsItsWholePriceBeforeTheOldOneIsRefunded) {
  EXPECT_EQ(Drop(1, 0), "120/15");
  EXPECT_EQ(Drop(5, 0), "120/15");  // the exchange would cost 120
  EXPECT_EQ(Host.Heard(), Lines{"Not enough points"});
  EXPECT_EQ(Field.AreaTerrain[0] + Field.Terrain.Area[0].Tag, "SLOPE1");
  EXPECT_EQ(Drop(4, 0), "100/5");
  EXPECT_EQ(Field.Terrain.ArmyPts.Caption + State.Units.TotalCost.Caption,
            "100Points left: 100 of 0");
  EXPECT_EQ(Drop(4, 0), "100/5");  // 15 command points are not free
  EXPECT_EQ(Host.Heard(), Lines{"Not enough points"});
  EXPECT_EQ(Drop(0, 0), "150/20");
  EXPECT_EQ(Drop(5, 8), "0/20");  // just enough
  EXPECT_EQ(Field.AreaTerrain[8], "CLIFF");
  EXPECT_EQ(Field.Terrain.Area[8].Picture, 5);
}

TEST_F(TerrainGame, AClearedAreaKeepsItsPicture) {
  Drop(3, 2);
  ClearAreas(Field);
  ShowTerrainBtn_Click(Field, State);
  EXPECT_EQ(Field.Terrain.Area[2].Tag, "0");
  EXPECT_EQ(Field.Terrain.Area[2].Picture, 3);
  EXPECT_EQ(State.EditFrame.Front, 3);
  Field.AreaTerrain[2] = "CAMP";
  ShowTerrain(Field, State);
  EXPECT_EQ(Field.Terrain.Area[2].Tag + NumberText(Int16(Field.Terrain.Area[2].Picture)), "22");
}

TEST_F(TerrainGame, LoadingChargesEvenBelowZero) {
  Folder.Write("a.army", "[TERRAIN]\narea1=CLIFF\narea2=MOUNTAIN\narea4=MOUNTAIN\narea9=\n");
  LoadTerrain(Field, State, Folder / "a.army");
  EXPECT_EQ(Points(), "-100/-10");
  EXPECT_EQ(Field.AreaTerrain[3] + Field.AreaTerrain[8], "MOUNTAINCLEAR");
  Folder.Write("b.army", "[TERRAIN]\narea1=WOOD\narea2=wood\narea3=WOOD\n");
  EXPECT_THROW(LoadTerrain(Field, State, Folder / "b.army"), SubscriptError);
  EXPECT_EQ(Field.AreaTerrain[1] + Points(), "wood-120/-10");
}

}  // namespace
}  // namespace tarnwick
