// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "armyfile/loading.h"
#include "armyfile/saving.h"
#include "base/numbers.h"
#include "base/text.h"
#include "battlefield/setups.h"
#include "battlefield/terrain.h"
#include "rules/base_army_selection.h"
#include "rules/leaders.h"
#include "rules/special_cards.h"
#include "rules/unit_grid.h"
#include "rules/unit_purchase.h"
#include "rules/unit_types.h"
#include "rules/verification.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

/// An editor and a player who clicks about in it, always in the same way for the same seed.
class Player {
 public:
  Player(const TempFolder& folder, bool brakka, unsigned seed)
      : folder_(folder), work_(folder.Path()), random_(seed) {
    Form_Load(work_);
    TickOption(work_.Army.Management.modOption, brakka ? 1 : 0);
    modOption_Click(work_);
    host_.OnArmyListForm = [this] { work_.Header.ArmyFile = "x"; };
  }

  /// A legal army of that base army.
  void MakeArmy(const std::string& base) {
    ArmyState& army = work_.Army;
    host_.OnArmySelectionForm = [&] { army.BaseArmyName = base; };
    NewArmyBtn_Click(work_, host_);
    army.Management.ArmyFileName.Text = "x";
    MeetLimits();
    for (int i = 0; i < 12; ++i) {
      const int row = Any(1, army.TotUnits.Value());
      if (army.BaseUnits[row].Bought == 0) BuyRow(row, Any(1, 4));
    }
    ChooseLeader();
    for (int j = 0; j < army.TotSpecial.Value(); ++j) {
      army.Command.SpecBuy[j].Text = std::to_string(Any(0, 2));
      if (SpecBuy_Validate(army, host_, j)) army.Command.SpecBuy[j].Text = "";
      SpecBuy_Validate(army, host_, j);
    }
    for (int i = 0; i < 3; ++i)
      DropTerrain(work_.Field, army, host_, Any(0, 5), Any(0, 8));
    Describe();
    host_.Said.clear();
  }

  void ClearTerrain() {
    for (int area = 0; area <= 8; ++area)
      DropTerrain(work_.Field, work_.Army, host_, 0, area);
  }

  void AddSetups() {
    for (int n = 0; n < 2; ++n) {
      Command6_Click(work_.Field, work_.Army);
      work_.Field.Setup.description.Text = "Setup\r\n" + std::to_string(Any(0, 99));
      description_Change(work_.Field, work_.Army);
      work_.Field.Setup.unitList.ListIndex = 0;
      assignBtn_Click(work_.Field, work_.Army, host_, Any(0, 8));
    }
  }

  void Save() {
    host_.Answers = {true};
    SaveArmy(work_, host_);
    ASSERT_FALSE(host_.Said.empty());
    EXPECT_EQ(host_.Heard().back(), "Army Saved");
  }

  void Load() {
    LoadBtn_Click(work_, host_);
    EXPECT_EQ(host_.Heard(), Lines());
  }

  /// All that a player sees of the army.
  std::string Seen() const;

  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

 private:
  int Any(int least, int most) { return std::uniform_int_distribution<>(least, most)(random_); }

  /// Types a quantity into the line of a row, in the view that shows it.
  bool BuyRow(int row, int quantity) {
    ArmyState& army = work_.Army;
    if (army.BaseUnits[row].Missile == "A") return false;  // not found again, as it must be
    for (const int view : {0, 1}) {
      TickOption(army.Units.ViewOption, view);
      ShowSelectUnits(army);
      for (int k = 0; k < 23; ++k) {
        TextBox& box = army.Units.Buy[k];
        if (!box.Visible || box.Tag != std::to_string(row)) continue;
        ListBox& pictures = army.Units.ImageName[k];
        if (pictures.Entries.empty()) return false;
        pictures.ListIndex = Any(0, static_cast<int>(pictures.Entries.size()) - 1);
        ImageName_Click(army, k);
        box.Text = std::to_string(quantity);
        return BuyUnits(army, host_, k);
      }
    }
    return false;
  }

  /// Buys the cheapest units that a limit counts until it is met.
  void MeetLimits() {
    ArmyState& army = work_.Army;
    for (int j = 1; j <= army.TotLimits.Value(); ++j) {
      const LimitRec& limit = army.Limits[j];
      std::vector<int> rows;
      for (int r = 1; r <= army.TotUnits.Value(); ++r) {
        const UnitRec& unit = army.BaseUnits[r];
        const Int16 code = UnitTypeCode(unit.UnitType, unit.UnitClass);
        if (code == UnitTypeCode(limit.TypeA, limit.Class) ||
            (!limit.TypeB.empty() && code == UnitTypeCode(limit.TypeB, ""))) {
          rows.push_back(r);
        }
      }
      std::sort(rows.begin(), rows.end(),
                [&army](int a, int b) { return army.BaseUnits[a].Cost < army.BaseUnits[b].Cost; });
      int open = limit.Minimum.Value();
      for (const int r : rows)
        open -= army.BaseUnits[r].Bought.Value();
      for (const int r : rows) {
        const UnitRec& unit = army.BaseUnits[r];
        const int more = std::min(open, unit.MaxCount.Value() - unit.Bought.Value());
        if (more > 0 && BuyRow(r, unit.Bought.Value() + more)) open -= more;
      }
    }
  }

  void ChooseLeader() {
    ArmyState& army = work_.Army;
    if (Any(0, 2) == 0) {
      LeaderMgmtForm form;
      form.LeaderName.Text = "Zz of the Tests";
      form.InitiativeBox.ListIndex = Any(0, 3);
      form.CommandBox.ListIndex = 0;
      UpdateLeaderCost(form);
      DefineLeader(army, host_, form);
    }
    for (Int16 i = army.LeaderCount - 1; army.SelectedLeader == -1 && i >= 0; i = i - 1) {
      TickOption(army.Command.LeaderName, i);
      LeaderName_Click(army, host_, i);
    }
  }

  void Describe() {
    ArmyHeader& header = work_.Header;
    header.ArmyDesc.Text = "First \xE9\r\n\r\nlast";
    ArmyDesc_Change(header);
    header.FromData.Text = std::to_string(Any(300, 900));
    header.ToData.Text = std::to_string(Any(1, 300));
    TickOption(header.toACBC, Any(0, 1));
    BuildPeriod(header);
    for (CheckBox* box :
         {&header.TYPE_IsFantasy, &header.TYPE_IsPersonal, &header.TribalCheck, &header.Ferocity,
          &header.Mobility, &header.LongSword, &header.FOW, &header.Discipline}) {
      box->Value = Any(0, 1) == 1;
    }
  }

  const TempFolder& folder_;
  WorkingArmy work_;
  FakeHost host_;
  std::mt19937 random_;
};

std::string Player::Seen() const {
  const ArmyState& army = work_.Army;
  const ArmyHeader& header = work_.Header;
  std::string seen = army.Management.ArmyName.Text + "|" + army.Title + "|" +
                     army.Units.TotalCost.Caption + "|" + army.Units.TQinfo.Caption + "|" +
                     army.Command.LeaderFrame.Caption + "|" +
                     LeaderText(army.Leaders[army.SelectedLeader]) + "|" + header.ArmyDesc.Text +
                     "|" + header.ArmyPeriod + "|" + header.FromData.Text + header.ToData.Text +
                     ArmyTypeCode(header) + "|" + SpecialRulesText(header);
  for (const UnitRec& unit : army.BaseUnits) {
    if (unit.Bought <= 0) continue;
    seen += "|" + NumberText(unit.Bought) + " " + unit.UnitType + unit.UnitClass + unit.TQ + " " +
            army.Catalog.Images[unit.ChosenImageIdx].Id;
  }
  for (int j = 0; j < army.TotSpecial.Value(); ++j) {
    const std::string& bought = army.Command.SpecBuy[j].Text;
    seen += "|" + (bought == "0" ? "" : bought);  // loading shows a 0 where nothing was bought
  }
  for (const std::string& area : work_.Field.AreaTerrain)
    seen += "|" + area;
  return seen + "|" + folder_.Read("working.setup");
}

/// Without the card lines that only loading brings in.
std::string WithoutZeroCards(std::string file) {
  for (const char* card : {"rally", "flank", "cohesion", "missile", "caltrop"}) {
    file = ReplaceText(std::string(card) + "=0\r\n", "", file);
  }
  return file;
}

/// Random legal armies of every base army in the folder's catalogs, saved and loaded.
void ExpectRoundTrips(const TempFolder& folder, bool brakka, unsigned seeds) {
  const std::string file = brakka ? "brakka/x.army" : "x.army";
  ArmyState catalog(folder.Path());
  catalog.BrakkaMode = brakka;
  InitializeVariables(catalog);
  ArmySelectionForm bases;
  FillArmySelection(catalog, bases);
  ASSERT_FALSE(bases.ArmyList.Entries.empty());
  for (const ListEntry& base : bases.ArmyList.Entries) {
    for (unsigned seed = 1; seed <= seeds; ++seed) {
      SCOPED_TRACE(base.Text + " " + std::to_string(seed));
      std::filesystem::remove(folder / "x.army");
      std::filesystem::remove(folder / file);
      std::filesystem::remove(folder / "working.setup");
      Player maker(folder, brakka, seed);
      maker.MakeArmy(base.Text);
      if (brakka) maker.ClearTerrain();  // Brakka's terrain is saved elsewhere
      const std::string made = maker.Seen();
      maker.Save();
      const std::string first = folder.Read(file);
      Player reader(folder, brakka, seed);
      reader.Load();
      // The scratch file is what setups there are; none yet.
      EXPECT_EQ(reader.Seen(), made);
      reader.Save();
      EXPECT_EQ(WithoutZeroCards(folder.Read(file)), WithoutZeroCards(first));
      if (brakka) continue;
      reader.AddSetups();
      reader.Save();
      const std::string second = folder.Read(file);
      const std::string seen = reader.Seen();
      Player last(folder, brakka, seed);
      last.Load();
      EXPECT_EQ(last.Seen(), seen);
      last.Save();
      EXPECT_EQ(folder.Read(file), second);
    }
  }
}

TEST(RoundTrip, EveryShippedBaseArmy) {
  const TempFolder folder;
  std::filesystem::copy(SHIPPED_DATA, folder.Path(), std::filesystem::copy_options::recursive);
  ExpectRoundTrips(folder, false, 3);
  ExpectRoundTrips(folder, true, 3);
}

TEST(RoundTrip, ACatalogFullOfCorners) {
  const TempFolder folder;
  folder.Write("armylist.dat",
               "[Armies]\ntotal=1\nname1=O'Dd & Co\n[O'Dd & Co]\npoints=300\ncommand_pts=200\n"
               "tot_units=7\nunit1=HI,,4.5,4,,10,6,\nunit2=HI,any text,2.5,1.5,,7,6,Key\n"
               "unit3=HI,,4.5,4,AF,9,3,\nunit4=PH,,2.25,4,,12,4,\nunit5=SK,,3,1,A,4,9,\n"
               "unit6=LM,,4,2,,0,2,Ridden\nunit7=CO,Vet,\xE9"
               "6,2,,12,0,\ntot_limits=2\n"
               "limit1=HI+PH,3,\nlimit2=HI,1,x\ntot_leader=1\nleader1=Ana of \xC9lan,7,2,150\n"
               "tot_special=4\nspecial1=RALLY,2.5,4\nspecial2=FLANK,0,4\nspecial3=MISSILE,3,1\n"
               "special4=CALTROP,4,3\n");
  folder.Write("specials.dat", "[Ridden]\nspecial=MOUNTED\n");
  folder.Write("images.dat",
               "[IMAGES]\ntotal=7\nimage1=same.svg,HI,,,One\nimage2=same.svg,HI,any text,,Two\n"
               "image3=same.svg,HI,,AF,Three\nimage4=p.svg,PH,,,Four\nimage5=q.svg,PH,,,Four\n"
               "image6=same.svg,LM,,,Six\nimage7=same.svg,SK,,A,Seven\n");
  ExpectRoundTrips(folder, false, 40);
}

}  // namespace
}  // namespace tarnwick
