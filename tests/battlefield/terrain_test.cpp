// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "battlefield/terrain.h"

#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

class Terrain : public testing::Test {
 protected:
  Terrain() { InitTerrainKinds(field_); }

  /// Drops a piece on an area; the points left come back.
  std::string Drop(int kind, int area) {
    DropTerrain(field_, state_, host_, kind, area);
    return Points();
  }
  std::string Points() const { return Joined(state_.PointsLeft, state_.CommandPts); }
  void Save() {
    PendingFiles files;
    SaveTerrain(field_, files, folder_ / "x.army");
    files.Replace(disk_.Files);
  }
  void Load() { LoadTerrain(field_, state_, disk_.Files, folder_ / "x.army"); }
  /// What lies on an area, and how it is shown.
  std::string Area(int area) const {
    const PictureBox& box = field_.Terrain.Area[area];
    return Joined(field_.AreaTerrain[area], box.Tag, box.Picture);
  }

  TempFolder folder_;
  Disk disk_{folder_.Path()};
  ArmyState state_;
  Battlefield field_;
  FakeHost host_;
};

TEST_F(Terrain, APieceNeedsItsWholePriceBeforeTheOldOneIsRefunded) {
  const char* const prices[] = {"0|0", "-30|-5", "-60|-10", "-20|0", "-50|-15", "-150|0"};
  const char* const names[] = {"CLEAR", "SLOPE", "CAMP", "WOOD", "MOUNTAIN", "CLIFF"};
  for (int kind = 0; kind <= 5; ++kind) {
    field_.AreaTerrain[0] = names[kind];
    Save();
    state_.PointsLeft = state_.CommandPts = 0;
    Load();  // charges even below zero
    EXPECT_EQ(Points(), prices[kind]) << names[kind];
  }
  state_.PointsLeft = 150;
  state_.CommandPts = 20;
  EXPECT_EQ(Drop(1, 0), "120|15");
  EXPECT_EQ(Drop(5, 0), "120|15");  // the exchange would cost 120
  EXPECT_EQ(Area(0), "SLOPE|1|1");
  EXPECT_EQ(Drop(4, 0), "100|5");
  EXPECT_EQ(Joined(field_.Terrain.ArmyPts.Caption, field_.Terrain.CommandPts.Caption), "100|5");
  EXPECT_EQ(state_.Units.TotalCost.Caption, "Points left: 100 of 0");
  EXPECT_EQ(Drop(4, 0), "100|5");  // 15 command points are not free
  EXPECT_EQ(Drop(0, 0), "150|20");
  EXPECT_EQ(Drop(5, 8), "0|20");  // just enough
  EXPECT_EQ(Area(8), "CLIFF|5|5");
  state_.PointsLeft = -1;
  EXPECT_EQ(Drop(0, 8), "-1|20");  // nothing is taken off by an army in debt
  EXPECT_EQ(host_.Heard(), Lines(3, "Not enough points"));
}

TEST_F(Terrain, AClearedAreaKeepsItsPicture) {
  state_.PointsLeft = 99;
  Drop(3, 2);
  ClearAreas(field_);
  EXPECT_EQ(Joined(Points(), Area(2)), "79|0|CLEAR|3|3");
  state_.CommandPts = 7;
  ShowTerrainBtn_Click(field_, state_);
  EXPECT_EQ(Area(2), "CLEAR|0|3");
  EXPECT_EQ(Joined(field_.Terrain.ArmyPts.Caption, field_.Terrain.CommandPts.Caption), "79|7");
  EXPECT_EQ(state_.EditFrame.Front, Panel::Terrain);
  field_.AreaTerrain[2] = "CAMP";
  ShowTerrain(field_, state_);
  EXPECT_EQ(Area(2), "CAMP|2|2");
}

TEST_F(Terrain, FilesHoldAllNineAreas) {
  field_.AreaTerrain[0] = "SLOPE";
  folder_.Write("x.army", "[ARMY]\r\nname=x\r\n[terrain]\r\narea2=WOOD\r\n\r\n[SETUP 1]\r\n");
  Save();
  EXPECT_EQ(folder_.Read("x.army"),
            "[ARMY]\r\nname=x\r\n[terrain]\r\narea2=CLEAR\r\narea1=SLOPE\r\narea3=CLEAR\r\n"
            "area4=CLEAR\r\narea5=CLEAR\r\narea6=CLEAR\r\narea7=CLEAR\r\narea8=CLEAR\r\n"
            "area9=CLEAR\r\n\r\n[SETUP 1]\r\n");

  folder_.Write("x.army", "[TERRAIN]\narea1=\narea9=CLIFF\n");
  Load();
  EXPECT_EQ(Joined(field_.AreaTerrain[0], field_.AreaTerrain[8], Points()), "CLEAR|CLIFF|-150|0");
  folder_.Write("x.army", "[TERRAIN]\narea1=WOOD\narea2=wood\narea3=WOOD\n");
  EXPECT_THROW(Load(), SubscriptError);
  EXPECT_EQ(Joined(field_.AreaTerrain[1], field_.AreaTerrain[2], Points()), "wood|CLEAR|-170|0");
}

}  // namespace
}  // namespace tarnwick
