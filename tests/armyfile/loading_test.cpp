// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/loading.h"

#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "armyfile/resetting.h"
#include "armyfile/saving.h"
#include "base/errors.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

const std::string catalog =
    "[Armies]\ntotal=1\nname1=Host\n[Host]\npoints=200\ncommand_pts=200\ntot_units=4\n"
    "unit1=HI,,5,4,,10,6,\nunit2=HI,Vet,4.5,2,J,12,3,Old\nunit3=LM,SK,4,4,,30,2,Big\n"
    "unit4=SK,,3,1,A,4,9,\ntot_limits=0\ntot_leader=2\nleader1=Ana Prima,7,1,120\n"
    "leader2=Bel Secunda,4,1,40\ntot_special=4\nspecial1=RALLY,8,4\nspecial2=FLANK,2.5,3\n"
    "special3=MISSILE,5,3\nspecial4=CALTROP,4,3\n";

const std::string images =
    "[IMAGES]\ntotal=4\nimage1=a.svg,HI,,,Line\nimage2=b.svg,HI,Vet,J,Veteran\n"
    "image3=b.svg,LM,SK,,Worm\nimage4=c.svg,SK,,A,Boy\n";

const std::string army =
    "[EDITOR]\nversion=1.2.1\n[LEADER]\nname=Bel the Other\ninitiative=5\ncommand=1\n[ARMY]\n"
    "name=Mine\nbase=Host\nauthor=Zo\\xEB\npoints=1\ndescription=a@b\nperiod=-500,30\ntype=xPF\n"
    "images=\nspecial_rules=MOBILITY,Fow,LONGSWORD,,TRIBAL\nflank=3\nrally=-1\n"
    "unit1=HI,,5,4,,a.svg\nunit2=HI,Vet,4.5,2,J,b.svg,Old\nunit3=HI,,5,4,,a.svg\nnumunits=3\n"
    "[TERRAIN]\narea2=SLOPE\n[SETUP 4]\ndescription=four\nfield1=HI,,5,4,\n";

struct Loading : testing::Test {
  Loading() {
    Folder.Write("armylist.dat", catalog);
    Folder.Write("images.dat", images);
    Host.OnArmyListForm = [this] { Work.Header.ArmyFile = "x"; };
    Form_Load(Work);
  }

  /// Loads `army` with one text of it replaced.
  void Load(const std::string& find = "", const std::string& replacement = "") {
    std::string text = army;
    if (!find.empty()) text.replace(text.find(find), find.size(), replacement);
    Folder.Write("x.army", text);
    LoadBtn_Click(Work, Host);
  }

  std::string Bought() const {
    std::string counts;
    for (int r = 1; r <= 4; ++r)
      counts += std::to_string(Work.Army.BaseUnits[r].Bought.Value());
    return counts;
  }

  std::string Points() const {
    return std::to_string(Work.Army.PointsLeft.Value()) + "/" +
           std::to_string(Work.Army.PointsSpent.Value()) + " " +
           std::to_string(Work.Army.CommandPts.Value());
  }

  TempFolder Folder;
  FakeHost Host;
  WorkingArmy Work{Folder.Path()};
};

TEST_F(Loading, BringsBackEverythingButWhatTheFileDoesNotHold) {
  Work.Header.Ferocity.Value = Work.Header.FOW.Value = true;
  Folder.Write("working.setup", "[SETUP 1]\ndescription=old\n");
  Load();
  EXPECT_EQ(Host.Heard(), Lines());
  EXPECT_EQ(Bought(), "2100");
  // 200 - 32 - 30 of a slope; 200 - 40 - 8 of three cards (7.5) + 8 of minus one card - 5
  EXPECT_EQ(Points(), "138/32 155");
  EXPECT_EQ(Work.Army.SelectedLeader, 1);  // of the same first word
  EXPECT_TRUE(Work.Army.Command.LeaderName[1].Value);
  EXPECT_EQ(Work.Army.Command.SpecBuy[1].Text + Work.Army.Command.SpecBuy[0].Tag, "3-1");
  EXPECT_EQ(Work.Army.Command.SpecBuy[2].Text, "0");  // not in the file
  EXPECT_EQ(Work.Header.ArmyDesc.Text, "a\r\nb");
  EXPECT_EQ(Work.Header.FromData.Text + Work.Header.ToData.Text, "50030");
  EXPECT_TRUE(Work.Header.FromACBC[0].Value && Work.Header.toACBC[1].Value);
  EXPECT_TRUE(Work.Header.TYPE_IsFantasy.Value && Work.Header.TYPE_IsPersonal.Value);
  // The reset cleared all rules; the list ends at its first empty field, case counts.
  EXPECT_EQ(SpecialRulesText(Work.Header), "MOBILITY,LONGSWORD");
  EXPECT_EQ(Work.Field.AreaTerrain[1], "SLOPE");
  EXPECT_EQ(Work.Field.Setup.setupList.Entries.at(0).Text, "4");
  EXPECT_EQ(Work.Army.EditFrame.Front, 0);
  EXPECT_EQ(Work.Army.Units.Buy[0].Text + Work.Army.Units.ImageName[0].Text(), "2Line");
  EXPECT_EQ(Work.Army.FootUnits, 3);

  // What LoadSpecialRules leaves alone by itself.
  Work.Header.FOW.Value = Work.Header.TribalCheck.Value = true;
  LoadSpecialRules(Work.Header, Work.Army.Files, Folder / "x.army");
  EXPECT_EQ(SpecialRulesText(Work.Header), "MOBILITY,LONGSWORD,FOW");
}

TEST_F(Loading, ALeaderOfAnotherNameIsDefined) {
  Load("Bel the Other", "Cyr");
  EXPECT_EQ(Work.Army.Command.LeaderName[2].Caption, "Cyr 70 [ 5 / 1 ] ");
  EXPECT_TRUE(Work.Army.Command.LeaderName[2].Value && Work.Army.Command.LeaderName[2].Visible);
  EXPECT_EQ(Points(), "138/32 125");
  EXPECT_EQ(Work.Army.LeaderCount, 3);
}

TEST_F(Loading, AFaultIsReportedAndWhatWasAppliedStays) {
  Load("base=Host", "base=Nobody");
  EXPECT_EQ(Host.Heard(), Lines{"The army type [Nobody] is not present in armylist.dat\r\n"
                                "This army cannot be edited"});
  EXPECT_EQ(Work.Army.Management.ArmyName.Text + Work.Army.Management.ArmyFileName.Text, "Minex");
  EXPECT_FALSE(Work.Army.Units.Buy[0].Visible);

  const std::string path = (Folder / "x.army").string();
  const struct {
    const char* Find;
    const char* Replacement;
    std::string Said;
    const char* Bought;
  } faults[] = {
      {"numunits=3", "numunits=4", "Unit number 4 not found in " + path, "2100"},
      {"unit2=HI,Vet", "unit2=HI,vet", "Unit number 2 not found in " + path, "1000"},
      {"unit2=HI,Vet,4.5", "unit2=HI,Vet,4.50", "Unit number 2 not found in " + path, "1000"},
      // Saved as it must be, the missile "A" is not found again.
      {"unit2=HI,Vet,4.5,2,J", "unit2=SK,,3,1,AF", "Unit number 2 not found in " + path, "1000"},
      {"b.svg", "B.svg", "No image match for unit 2 (B.svg)", "1100"},
  };
  for (const auto& [find, replacement, said, bought] : faults) {
    SCOPED_TRACE(said);
    Load(find, replacement);
    EXPECT_EQ(Host.Heard(), Lines{said});
    EXPECT_EQ(Bought(), bought);
    EXPECT_EQ(Work.Army.Units.Buy[0].Text, std::string(1, bought[0]));
    EXPECT_EQ(Work.Army.SelectedLeader, -1);
    EXPECT_EQ(Work.Field.AreaTerrain[1], "CLEAR");
  }
}

TEST_F(Loading, NumbersThatAreNoneEndTheLoading) {
  EXPECT_THROW(Load("numunits=3", "numunits=40000"), OverflowError);
  EXPECT_THROW(Load("area2=SLOPE", "area2=slope"), SubscriptError);
  EXPECT_THROW(Load("period=-500,30", "period=-500"), TypeMismatchError);
  for (const char* count : {"numunits=0", "numunits=-1", "numunits=some"}) {
    Load("numunits=3", count);
    EXPECT_EQ(Bought() + Points(), "0000170/0 155") << count;
  }
}

TEST_F(Loading, NothingChosenLeavesTheArmyReset) {
  Load();
  Work.Header.ArmyFile = "";
  Host.OnArmyListForm = [] {};
  LoadBtn_Click(Work, Host);
  EXPECT_EQ(Bought() + Points(), "0000200/0 200");
  const ArmyState& state = Work.Army;
  EXPECT_EQ(state.SelectedLeader, -1);
  EXPECT_FALSE(state.Command.LeaderName[1].Value);
  EXPECT_EQ(state.Command.SpecBuy[1].Text + state.Command.SpecBuy[1].Tag, "0");
  EXPECT_EQ(state.Units.Buy[0].Text + state.Units.Buy[0].Tag + state.Units.UnitTotalLabel[0].Tag,
            "0");
  EXPECT_EQ(Work.Header.FromData.Text + Work.Header.ToData.Text, "");
  EXPECT_EQ(Work.Field.AreaTerrain[1], "CLEAR");
  EXPECT_EQ(Work.Army.Units.TotalCost.Caption, "Points left: 200 of 200");
  EXPECT_EQ(Work.Header.ArmyPeriod, "-500,30");  // only its boxes were emptied
}

TEST_F(Loading, TheSecondModuleLosesTerrainAndSetups) {
  Folder.Write("brakka/armylist.dat", catalog);
  Folder.Write("brakka/images_brakka.dat", images);
  Folder.Write("brakka/x.army", army);
  TickOption(Work.Army.Management.modOption, 1);
  modOption_Click(Work);
  LoadBtn_Click(Work, Host);
  EXPECT_EQ(Host.Heard(), Lines());
  EXPECT_EQ(Work.Field.AreaTerrain[1], "SLOPE");  // the file has it, though no save puts it there
  EXPECT_TRUE(Work.Field.Setup.setupList.Entries.empty());
  Host.Answers = {true};
  SaveArmy(Work, Host);
  EXPECT_EQ(Folder.Read("brakka/x.army").find("TERRAIN"), std::string::npos);
  EXPECT_NE(Folder.Read("x.army").find("[TERRAIN]\r\narea1=CLEAR\r\narea2=SLOPE"),
            std::string::npos);
  LoadBtn_Click(Work, Host);
  EXPECT_EQ(Work.Field.AreaTerrain[1], "CLEAR");
}

TEST_F(Loading, BrokenFilesEndInAMessageOrANamedError) {
  const auto survives = [this](const std::string& bytes) {
    Folder.Write("x.army", bytes);
    try {
      LoadBtn_Click(Work, Host);
    } catch (const RuntimeError&) {
    }
  };
  for (std::size_t length = 0; length < army.size(); length += 3)
    survives(army.substr(0, length));
  for (int fields = 0; fields <= 20; ++fields) {
    std::string line = "unit1=HI";
    for (int i = 1; i < fields; ++i)
      line += ",5";
    survives("[ARMY]\nbase=Host\nnumunits=1\n" + line + "\n");
  }
  std::string noise;
  unsigned seed = 1;
  for (int i = 0; i < 10'000'000; ++i)
    noise += static_cast<char>((seed = seed * 69069 + 1) >> 24);
  survives(noise);
  survives(
      "\x7F"
      "ELF\0\0");
  Host.Said.clear();
  survives(army + "unit1=SK\n[ARMY]\nbase=Nobody\n");
  EXPECT_EQ(Bought(), "2100");  // what stands first counts
}

}  // namespace
}  // namespace tarnwick
