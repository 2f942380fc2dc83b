// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "battlefield/terrain.h"

#include <string>

#include <gtest/gtest.h>

#include "base/numbers.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

TEST(Terrain, KindsHaveTheirPrices) {
  Battlefield field;
  field.AreaTerrain[0] = "WOOD";
  InitTerrainKinds(field);
  std::string prices;
  for (const auto& kind : field.TerrainKinds) {
    prices +=
        kind.Name + " " + NumberText(kind.ArmyCost) + "/" + NumberText(kind.CommandCost) + ";";
  }
  EXPECT_EQ(prices, "CLEAR 0/0;SLOPE 30/5;CAMP 60/10;WOOD 20/0;MOUNTAIN 50/15;CLIFF 150/0;");
  EXPECT_EQ(field.AreaTerrain[0], "CLEAR");
}

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

}  // namespace
}  // namespace tarnwick
