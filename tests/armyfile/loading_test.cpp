// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/loading.h"

#include "base/text.h"
#include "support/sample_army.h"

namespace tarnwick {

struct Loading : testing::Test, SampleArmy {
  void Load(const std::string& bytes) {
    Folder.Write("x.army", bytes);
    Desk::Load("x");
  }
  /// Loads the file with a change.
  void Load(const std::string& find, const std::string& replacement) {
    Load(ReplaceText(find, replacement, file));
  }

  /// What is bought of rows 2, 4 and 6; the army points left and spent, the command points.
  std::string Bought() const {
    const auto& rows = Army.BaseUnits;
    return Joined(rows[2].Bought, rows[4].Bought, rows[6].Bought, Army.PointsLeft, Army.PointsSpent,
                  Army.CommandPts);
  }
  /// Which leader is chosen, and the buttons that are ticked.
  std::string Leader() const {
    std::string leader = Joined(Army.SelectedLeader);
    for (int i = 0; i <= 6; ++i)
      if (Army.Command.LeaderName[i].Value) leader += "|" + Army.Command.LeaderName[i].Caption;
    return leader;
  }

  const std::string file = TempFolder::ReadBytes(TEST_DATA "/armies/by_hand.army");
};

TEST_F(Loading, BringsBackTheWholeArmy) {
  Header.Ferocity.Value = Header.FOW.Value = true;
  Folder.Write("working.setup", "[SETUP 1]\ndescription=old\n");
  Load(file);
  // 500 - 36 - 30 of a slope; 200 - 150 - 8 of three cards (7.5) + 8 of minus one card - 5
  EXPECT_EQ(Bought(), "2|1|0|434|36|45");
  EXPECT_EQ(Army.Units.TotalCost.Caption, "Points left: 434 of 500");
  EXPECT_EQ(Joined(Army.NumUnits, Army.FootUnits, Army.MountedUnits), "3|3|0");  // by class
  EXPECT_EQ(Leader(), "0|Arcas of Tyre 150 [ 7 / 2 ] ");  // its first word begins the name
  std::string cards;  // the third is not in the file, for the fourth nobody asks
  for (int j = 0; j < 5; ++j)
    cards += Army.Command.SpecBuy[j].Text + "/" + Army.Command.SpecBuy[j].Tag + " ";
  EXPECT_EQ(cards, "-1/-1 3/3 0/0 /0 /0 ");
  EXPECT_EQ(Joined(Header.ArmyDesc.Text, Header.ArmyAuthor, Header.FromData.Text,
                   Header.ToData.Text, ArmyTypeCode(Header), Header.ArmyTypeText),
            "a\r\nb|Zo\xEB|500|30|FP|xPF");
  EXPECT_EQ(SpecialRulesText(Header), "MOBILITY,LONGSWORD");  // the reset cleared all
  EXPECT_EQ(Joined(Field.AreaTerrain[1], Field.Setup.setupList.Entries.at(0).Text), "SLOPE|4");
  EXPECT_EQ(Army.EditFrame.Front, Panel::Units);
  // The last line's picture; the one of the elephant is in the catalog that the file names.
  EXPECT_EQ(Joined(Army.Units.Buy[1].Text, Army.Units.ImageName[1].Text(),
                   Army.BaseUnits[2].ChosenImageIdx, Army.BaseUnits[4].ChosenImageIdx,
                   Header.ArmyImages, Army.Management.ArmyFileName.Text),
            "2|Javelin|2|7|more.dat|x");
  Folder.Write("more.dat", "[IMAGES]\ntotal=2\nimage2=pictures/el.svg,EL,,,Big\n");
  Load("sk one", "sk two");
  EXPECT_EQ(Joined(Army.BaseUnits[2].ChosenImageIdx, Army.BaseUnits[4].ChosenImageIdx), "3|8");

  Load("type=xPF\n", "");
  EXPECT_EQ(Joined(ArmyTypeCode(Header), Header.ArmyTypeText), "|");
  Load("name=Mine", "name=");
  EXPECT_EQ(Army.Management.ArmyName.Text, "Sample Army");
  EXPECT_EQ(Host.Heard(), Lines());
}

TEST_F(Loading, LeadersAreTakenOrMadeAndPaidBeforeTheCards) {
  Load("Arcason\ninitiative=5", "Cyr\ninitiative=5.5 or so");
  EXPECT_EQ(Joined(Bought(), Army.LeaderCount), "2|1|0|434|36|95|4");
  EXPECT_EQ(Leader(), "3|Cyr 100 [ 5.5 / 1 ] ");  // the cost of 6
  EXPECT_TRUE(Army.Command.LeaderName[3].Visible);
  Load("flank=3", "flank=30");  // 75 points; a leader whom nobody could pay after them
  EXPECT_EQ(Joined(Leader(), Army.CommandPts), "0|Arcas of Tyre 150 [ 7 / 2 ] |-22");
  EXPECT_EQ(Host.Heard(), Lines());
  Load("Arcason", "Dido");  // too dear, and chosen all the same
  EXPECT_EQ(Host.Heard(), Lines{"Insufficient points left"});
  EXPECT_EQ(Joined(Army.SelectedLeader, Army.CommandPts), "2|195");
}

TEST_F(Loading, AFaultIsReportedAndWhatWasAppliedStays) {
  const std::string notFound = " not found in " + (Folder / "x.army").string();
  const struct {
    const char *Find, *Replacement;
    std::string Said;
    const char* Bought;
  } faults[] = {
      {"base=Sample Army", "base=Nobody",
       "The army type [Nobody] is not present in armylist.dat\r\nThis army cannot be edited",
       "0|0|0|0|0|0"},
      {"numunits=2.6", "numunits=4", "Unit number 4" + notFound, "2|1|0|500|36|200"},
      {"EL,,5,4,", "El,,5,4,", "Unit number 2" + notFound, "1|0|0|500|4|200"},
      {"EL,,5,4,", "EL,,5,4,J", "Unit number 2" + notFound, "1|0|0|500|4|200"},
      {"el.svg", "El.svg", "No image match for unit 2 (pictures/El.svg)", "1|1|0|500|32|200"}};
  for (const auto& [find, replacement, said, bought] : faults) {
    SCOPED_TRACE(said);
    Load(find, replacement);
    EXPECT_EQ(Host.Heard(), Lines{said});
    EXPECT_EQ(Bought(), bought);
    EXPECT_EQ(Army.Units.Buy[0].Visible, Army.TotUnits > 0);
    EXPECT_EQ(Joined(Leader(), Field.AreaTerrain[1], Header.FromData.Text), "-1|CLEAR|");
    EXPECT_EQ(Joined(Army.Management.ArmyName.Text, Header.ArmyPeriod), "Mine|-500,30");
  }
  EXPECT_THROW(Load("=2.6", "=40000"), OverflowError);
  EXPECT_EQ(Bought(), "0|0|0|500|0|200");
  EXPECT_THROW(Load("SLOPE", "slope"), SubscriptError);
  EXPECT_EQ(Joined(Field.AreaTerrain[1], Bought(), Header.FromData.Text), "slope|2|1|0|464|36|50|");
  EXPECT_THROW(Load("-500,30", "-500"), TypeMismatchError);
  EXPECT_TRUE(Field.Setup.setupList.Entries.empty());
  Load("=2.6 ", "=-1 ");
  EXPECT_EQ(Bought(), "0|0|0|470|0|45");
  Folder.Write("armylist.dat", "[Sample Army]\ntot_units=-3\n");
  Load(file);
  EXPECT_EQ(Host.Heard(), Lines{"Unit number 1" + notFound});
}

TEST_F(Loading, TheSecondModuleLosesTerrainAndSetups) {
  Folder.Write("x.army", "[ARMY]\nimages=more.dat\n");
  ChooseModule(1);
  Folder.Write("brakka/x.army", ReplaceText("two.svg", "one.svg", file));
  Desk::Load("x");
  EXPECT_EQ(Field.AreaTerrain[1], "SLOPE");  // the file has it, though no save puts it there
  EXPECT_TRUE(Field.Setup.setupList.Entries.empty());
  EXPECT_EQ(Save(), "Army Saved");
  EXPECT_TRUE(Folder.Read("brakka/x.army").ends_with("TQ=4\r\nroute=30\r\n"));
  EXPECT_NE(Folder.Read("x.army").find("\narea2=SLOPE\r\n"), std::string::npos);
  Desk::Load("x");
  EXPECT_EQ(Field.AreaTerrain[1], "CLEAR");
}

}  // namespace tarnwick
