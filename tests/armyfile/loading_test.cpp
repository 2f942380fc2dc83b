// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/loading.h"

#include <string>

#include <gtest/gtest.h>

#include "armyfile/saving.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"
#include "support/sample_army.h"

namespace tarnwick {
namespace {

const std::string file =
    "[EDITOR]\nversion=1.2.1\n[LEADER]\nname=Arcas the Other\ninitiative=5\ncommand=1\n"
    "[ARMY]\nname=Mine\nbase=Sample Army\nauthor=Zo\xEB\npoints=1\ndescription=a@b\n"
    "period=-500,30\ntype=xPF\nspecial_rules=MOBILITY,Fow,LONGSWORD,,TRIBAL\nflank=3\nrally=-1\n"
    "unit1=SK,,3,1,J,pictures/sk two.svg\nunit2=EL,,5,4,,pictures/vet.svg,Old\n"
    "unit3=SK,,3,1,J,pictures/sk one.svg\nnumunits=3\n"
    "[TERRAIN]\narea2=SLOPE\n[SETUP 4]\ndescription=four\nfield1=SK,,3,1,J\n";

class Loading : public testing::Test {
 protected:
  void Load(const std::string& bytes) {
    sample_.Folder.Write("x.army", bytes);
    sample_.Load("x");
  }

  /// What is bought of rows 1 to 5, the army points left and spent, the command points.
  std::string Bought() const {
    std::string text;
    for (int r = 1; r <= 5; ++r)
      text += NumberText(army_.BaseUnits[r].Bought);
    return text + " " + NumberText(army_.PointsLeft) + "/" + NumberText(army_.PointsSpent) + " " +
           NumberText(army_.CommandPts);
  }

  SampleArmy sample_;
  FakeHost& host_ = sample_.Host;
  ArmyState& army_ = sample_.Work.Army;
  ArmyHeader& header_ = sample_.Work.Header;
  Battlefield& field_ = sample_.Work.Field;
};

TEST_F(Loading, BringsBackTheWholeArmy) {
  header_.Ferocity.Value = header_.FOW.Value = true;
  sample_.Folder.Write("working.setup", "[SETUP 1]\ndescription=old\n");
  Load(file);
  EXPECT_EQ(host_.Heard(), Lines());
  // 500 - 36 - 30 of a slope; 200 - 150 - 8 of three cards (7.5) + 8 of minus one card - 5
  EXPECT_EQ(Bought(), "02010 434/36 45");
  EXPECT_EQ(army_.FootUnits, 3);       // the elephant's class is not mounted
  EXPECT_EQ(army_.SelectedLeader, 0);  // of the same first word
  EXPECT_TRUE(army_.Command.LeaderName[0].Value);
  std::string cards;  // the third is not in the file, for the fourth nobody asks
  for (int j = 0; j < 4; ++j)
    cards += army_.Command.SpecBuy[j].Text + "/" + army_.Command.SpecBuy[j].Tag + " ";
  EXPECT_EQ(cards, "-1/-1 3/3 0/0 /0 ");
  EXPECT_EQ(header_.ArmyDesc.Text + header_.ArmyAuthor, "a\r\nbZo\xEB");
  EXPECT_EQ(header_.FromData.Text + header_.ToData.Text + ArmyTypeCode(header_), "50030FP");
  EXPECT_EQ(SpecialRulesText(header_), "MOBILITY,LONGSWORD");  // the reset cleared all
  EXPECT_EQ(field_.AreaTerrain[1] + field_.Setup.setupList.Entries.at(0).Text, "SLOPE4");
  EXPECT_EQ(army_.EditFrame.Front, Panel::Units);
  EXPECT_EQ(army_.BaseUnits[2].ChosenImageIdx, 2);  // the last line's picture
  EXPECT_EQ(army_.Units.Buy[1].Text + army_.Units.ImageName[1].Text(), "2Javelin");

  Load(ReplaceText("Arcas the Other\ninitiative=5", "Cyr\ninitiative=5.5 or so", file));
  EXPECT_EQ(army_.Command.LeaderName[1].Caption, "Cyr 100 [ 5.5 / 1 ] ");  // the cost of 6
  EXPECT_TRUE(army_.Command.LeaderName[1].Value && army_.Command.LeaderName[1].Visible);
  EXPECT_EQ(Bought(), "02010 434/36 95");
  Load(ReplaceText("[ARMY]", "[ARMY]\nname=No\nNAME=Nor\n", file) + "unit1=X\n[ARMY]\nbase=X\n");
  EXPECT_EQ(Bought() + army_.Management.ArmyName.Text, "02010 434/36 45No");  // the first counts
}

TEST_F(Loading, AResetReadsThePointsAgain) {
  Load(file);
  sample_.Folder.Write("armylist.dat", "[Sample Army]\npoints=321\ncommand_pts=99.5\n");
  sample_.Load("");  // nothing is chosen
  EXPECT_EQ(Bought(), "00000 321/0 100");
  EXPECT_EQ(army_.Units.TotalCost.Caption, "Points left: 321 of 500");
  EXPECT_EQ(army_.SelectedLeader, -1);
  EXPECT_FALSE(army_.Command.LeaderName[0].Value);
  EXPECT_EQ(army_.Command.SpecBuy[1].Text + army_.Command.SpecBuy[1].Tag, "0");
  const UnitsPanel& grid = army_.Units;
  EXPECT_EQ(grid.Buy[1].Text + grid.Buy[1].Tag + grid.UnitTotalLabel[1].Caption +
                grid.UnitTotalLabel[1].Tag + grid.ImageName[1].Text(),
            "0Javelin");
  EXPECT_EQ(header_.FromData.Text + header_.ToData.Text + SpecialRulesText(header_), "");
  EXPECT_EQ(header_.ArmyPeriod, "-500,30");  // only its boxes were emptied
  EXPECT_EQ(field_.AreaTerrain[1], "CLEAR");
  EXPECT_FALSE(army_.GridFilling || army_.SetupLoading);
}

TEST_F(Loading, AFaultIsReportedAndWhatWasAppliedStays) {
  const std::string notFound = " not found in " + (sample_.Folder / "x.army").string();
  const std::string second = "Unit number 2" + notFound;
  const struct {
    const char *Find, *Replacement;
    std::string Said;
    const char* Bought;
  } faults[] = {
      {"base=Sample Army", "base=Nobody",
       "The army type [Nobody] is not present in armylist.dat\r\nThis army cannot be edited",
       "00000 0/0 0"},
      {"numunits=3", "numunits=4", "Unit number 4" + notFound, "02010 500/36 200"},
      {"EL,,5,4,", "El,,5,4,", second, "01000 500/4 200"},
      {"EL,,5,4,", "EL,x,5,4,", second, "01000 500/4 200"},
      {"EL,,5,4,", "EL,,5.0,4,", second, "01000 500/4 200"},
      {"EL,,5,4,", "EL,,5,3,", second, "01000 500/4 200"},
      {"EL,,5,4,", "EL,,5,4,J", second, "01000 500/4 200"},
      // Saved as it must be, the missile "A" is not found again.
      {"EL,,5,4,", "HI,Vet,2.5,4,AF", second, "01000 500/4 200"},
      {"vet.svg", "Vet.svg", "No image match for unit 2 (pictures/Vet.svg)", "01010 500/32 200"}};
  for (const auto& [find, replacement, said, bought] : faults) {
    SCOPED_TRACE(said);
    Load(ReplaceText(find, replacement, file));
    EXPECT_EQ(host_.Heard(), Lines{said});
    EXPECT_EQ(Bought(), bought);
    EXPECT_EQ(army_.Units.Buy[0].Visible, bought[1] != '0');
    EXPECT_EQ(army_.SelectedLeader, -1);
    EXPECT_EQ(field_.AreaTerrain[1] + header_.FromData.Text, "CLEAR");
    EXPECT_EQ(army_.Management.ArmyName.Text + header_.ArmyPeriod, "Mine-500,30");
  }
  EXPECT_THROW(Load(ReplaceText("=3\n[T", "=40000\n[T", file)), OverflowError);
  EXPECT_EQ(Bought(), "00000 500/0 200");
  EXPECT_THROW(Load(ReplaceText("SLOPE", "slope", file)), SubscriptError);
  EXPECT_EQ(field_.AreaTerrain[1] + Bought(), "slope02010 464/36 50");
  EXPECT_EQ(header_.FromData.Text, "");
  EXPECT_THROW(Load(ReplaceText("-500,30", "-500", file)), TypeMismatchError);
  EXPECT_TRUE(field_.Setup.setupList.Entries.empty());
  for (const char* count : {"=0", "=-1", "=some"}) {
    Load(ReplaceText("=3\n[T", std::string(count) + "\n[T", file));
    EXPECT_EQ(Bought(), "00000 470/0 45") << count;
  }
  std::string full = "[Sample Army]\ntot_units=200\n";  // no row is left for the search to end on
  for (int i = 1; i <= 200; ++i)
    full += RowKey("unit", i) + "=MI,,3,1,,5,9,\n";
  sample_.Folder.Write("armylist.dat", full);
  EXPECT_THROW(Load(file), SubscriptError);
  sample_.Folder.Write("armylist.dat", "[Sample Army]\ntot_units=-3\n");
  Load(file);
  EXPECT_EQ(host_.Heard(), Lines{"Unit number 1" + notFound});
}

TEST_F(Loading, TheSecondModuleLosesTerrainAndSetups) {
  sample_.Folder.Write("brakka/images_brakka.dat", sampleImages);
  sample_.Folder.Write("brakka/x.army", file);
  sample_.ChooseModule(1);
  sample_.Load("x");
  EXPECT_EQ(field_.AreaTerrain[1], "SLOPE");  // the file has it, though no save puts it there
  EXPECT_TRUE(field_.Setup.setupList.Entries.empty());
  host_.Answers = {true};
  SaveArmy(sample_.Work, sample_.Store, host_);
  EXPECT_EQ(host_.Heard().size(), 2U);
  EXPECT_TRUE(sample_.Folder.Read("brakka/x.army").ends_with("TQ=4\r\nroute=30\r\n"));
  EXPECT_TRUE(sample_.Folder.Read("x.army").starts_with("[TERRAIN]\r\narea1=CLEAR\r\narea2=SLOPE"));
  sample_.Load("x");
  EXPECT_EQ(field_.AreaTerrain[1], "CLEAR");
}

}  // namespace
}  // namespace tarnwick
