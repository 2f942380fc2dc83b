// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/working_army.h"

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "armyfile/resetting.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "support/sample_army.h"

namespace tarnwick {
namespace {

class NewArmy : public testing::Test {
 protected:
  NewArmy() {
    sample_.NewArmy("Sample Army");
    army_.BaseUnits[1].Bought = 2;
    army_.Management.ArmyName.Text = "Mine";
    header_.ArmyDesc.Text = header_.ArmyDescription = "Words";
    header_.TribalCheck.Value = header_.LongSword.Value = true;
    header_.TYPE_IsPersonal.Value = header_.TYPE_IsFantasy.Value = true;
    sample_.Work.Field.AreaTerrain[4] = "WOOD";
  }

  /// Name, description, rules, type, units of the first row, an area and the points.
  std::string Summary() const {
    return army_.Management.ArmyName.Text + "|" + header_.ArmyDesc.Text + header_.ArmyDescription +
           "|" + SpecialRulesText(header_) + "|" + ArmyTypeCode(header_) + "|" +
           NumberText(army_.BaseUnits[1].Bought) + "|" + sample_.Work.Field.AreaTerrain[4] + "|" +
           NumberText(army_.PointsLeft);
  }

  SampleArmy sample_;
  ArmyState& army_ = sample_.Work.Army;
  ArmyHeader& header_ = sample_.Work.Header;
};

TEST_F(NewArmy, StartsFromTheChosenBaseArmy) {
  sample_.NewArmy("");  // a cancelled choice empties name and description only
  EXPECT_EQ(Summary(), "||TRIBAL,LONGSWORD|FP|2|WOOD|500");
  EXPECT_TRUE(army_.Units.Buy[0].Visible);
  sample_.NewArmy("Strict Army");
  EXPECT_EQ(Summary(), "Strict Army|||P|0|CLEAR|100");
  EXPECT_EQ(army_.Command.LeaderName[0].Caption, "Milo 40 [ 4 / 1 ] ");
  EXPECT_FALSE(army_.Units.Buy[0].Visible);
}

TEST_F(NewArmy, IsAPlainValue) {
  WorkingArmy& work = sample_.Work;
  const WorkingArmy before = work;
  const std::function<void()> changes[] = {[&] { army_.BaseUnits[200].SpecialsKey = "x"; },
                                           [&] { army_.Catalog.Images[1].Name = "x"; },
                                           [&] { army_.Leaders[10].Command = 1; },
                                           [&] { army_.Units.ImageName[22].AddItem("x"); },
                                           [&] { army_.Command.SpecBuy[3].Tag = "1"; },
                                           [&] { army_.Command.SpecBuy.Load(); },
                                           [&] { army_.Command = {}; },
                                           [&] { work.Field.Terrain.Area[8].Picture = 1; },
                                           [&] { work.Field.Setup.unit[8].Caption = "x"; },
                                           [&] { header_.ToData.Tag = "x"; },
                                           [&] { sample_.NewArmy("Strict Army"); },
                                           [&] { ResetArmyData(work, sample_.Store); }};
  for (const auto& change : changes) {
    change();
    EXPECT_FALSE(work == before);
    work = before;
    EXPECT_TRUE(work == before);
  }
}

TEST_F(NewArmy, TheModuleMovesTheCatalogsAndLeavesTheArmy) {
  EXPECT_EQ(army_.EditFrame.Front, Panel::Management);
  const std::string before = Summary();
  sample_.Folder.Write("brakka/armylist.dat", "[Trolls]\npoints=77\n");
  // The army that was loaded names a further catalog; the second module, too, looks for it in the
  // program folder, and shows no pictures of the base game then.
  sample_.Folder.Write("Tyre.army", "[ARMY]\nimages=more.dat\n");
  sample_.Folder.Write("brakka/Tyre.army", "[ARMY]\nimages=images.dat\n");
  sample_.Folder.Write("more.dat", "[IMAGES]\ntotal=3 rows\nimage1=x, HI ,Vet,J,X\nimage3=z\n");
  header_.ArmyFile = "Tyre";
  for (const int module : {1, 0, 1}) {
    sample_.ChooseModule(module);
    EXPECT_EQ(army_.BrakkaMode, module == 1);
    EXPECT_EQ(army_.ArmyListFile.parent_path().filename() == "brakka", module == 1);
    EXPECT_EQ(header_.HistoricTab.Visible, module == 0);
    std::string pictures;
    for (Int16 i = 1; i <= army_.Catalog.TotImages; ++i)
      pictures += army_.Catalog.Images[i].Id.substr(0, 14) + ";";
    EXPECT_EQ(pictures, module == 1 ? "troll.svg;x;;z;"
                                    : "pictures/vet.s;pictures/sk on;pictures/sk tw;"
                                      "pictures/ph.sv;pictures/bi.sv;x;;z;");
    const ImageRec& last = army_.Catalog.Images[army_.Catalog.TotImages - 2];
    EXPECT_EQ(last.Type + last.Class + last.Missile + last.Name, " HI VetJX");
    EXPECT_EQ(Summary(), before);
  }
  header_.TYPE_IsFantasy.Value = false;
  sample_.NewArmy("Trolls");
  EXPECT_EQ(Summary(), "Trolls|||FP|0|CLEAR|77");
  sample_.Folder.Write("images.dat", "[IMAGES]\ntotal=201\n");
  EXPECT_THROW(Desk(sample_.Folder.Path()), SubscriptError);
}

}  // namespace
}  // namespace tarnwick
