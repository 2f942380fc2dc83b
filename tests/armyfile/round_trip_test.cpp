// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "armyfile/army_browser.h"
#include "base/numbers.h"
#include "base/text.h"
#include "battlefield/setups.h"
#include "battlefield/terrain.h"
#include "rules/base_army_selection.h"
#include "rules/leaders.h"
#include "rules/special_cards.h"
#include "rules/unit_grid.h"
#include "rules/unit_purchase.h"
#include "rules/verification.h"
#include "support/sample_army.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// A player who clicks about in an editor, always in the same way for the same seed.
class Player : public Desk {
 public:
  Player(const fs::path& folder, bool brakka, unsigned seed) : Desk(folder), random_(seed) {
    ChooseModule(brakka ? 1 : 0);
  }

  /// A legal army of that base army.
  void MakeArmy(const std::string& base) {
    NewArmy(base);
    army_.Management.ArmyFileName.Text = "x";
    for (const bool atRandom : {false, true}) {
      for (const int view : {1, 0}) {
        TickOption(army_.Units.ViewOption, view);
        ShowSelectUnits(army_, Store);
        for (int k = 0; k < 23; ++k)
          BuyLine(k, atRandom);
      }
    }
    ChooseLeader();
    for (int j = 0; j < army_.TotSpecial.Value(); ++j) {
      army_.Command.SpecBuy[j].Text = std::to_string(Any(0, 2));
      if (SpecBuy_Validate(army_, Host, j)) army_.Command.SpecBuy[j].Text = "";
      EXPECT_FALSE(SpecBuy_Validate(army_, Host, j));
    }
    for (int i = 0; i < 3 && !army_.BrakkaMode; ++i)  // Brakka's terrain is not found again
      DropTerrain(Work.Field, army_, Host, Any(0, 5), Any(0, 8));
    Describe();
    Host.Said.clear();
  }

  void AddSetups() {
    for (int n = 0; n < 2; ++n) {
      Command6_Click(Work.Field, army_, Store);
      Work.Field.Setup.description.Text = "Setup\r\n" + std::to_string(Any(0, 99));
      description_Change(Work.Field, army_, Store);
      Work.Field.Setup.unitList.ListIndex = 0;
      assignBtn_Click(Work.Field, army_, Store, Host, Any(0, 8));
    }
  }

  /// What the player sees of the army beside what is in its file.
  std::string Seen() const {
    const ArmyHeader& header = Work.Header;
    std::string seen = army_.Title + "|" + army_.Units.TotalCost.Caption + "|" +
                       army_.Units.TQinfo.Caption + "|" + army_.Command.LeaderFrame.Caption + "|" +
                       LeaderText(army_.Leaders[army_.SelectedLeader]) + "|" +
                       header.ArmyDesc.Text + "|" + header.FromData.Text + header.ToData.Text;
    for (const Label& total : army_.Units.UnitTotalLabel)
      seen += "|" + (total.Visible ? total.Caption : "");
    return seen + "|" + TempFolder::ReadBytes(Store.ProgramFolder / "working.setup");
  }

 private:
  int Any(int least, int most) { return std::uniform_int_distribution<>(least, most)(random_); }

  /// How many units of a row the limits still ask for.
  int Needed(Int16 row) const {
    int most = 0;
    for (Int16 j = 1; j <= army_.TotLimits; ++j) {
      const LimitRec& limit = army_.Limits[j];
      const Int16 open = limit.Minimum - CountFor(limit, CountUnits(army_));
      if (CountFor(limit, army_.BaseUnits[row]) > 0) most = std::max(most, open.Value());
    }
    return std::min(most, army_.BaseUnits[row].MaxCount.Value());
  }

  void BuyLine(int line, bool atRandom) {
    TextBox& box = army_.Units.Buy[line];
    ListBox& pictures = army_.Units.ImageName[line];
    if (!box.Visible || !box.Text.empty() || pictures.Entries.empty()) return;
    if (army_.Units.MissileLabel[line].Caption == "A") return;  // not found again, as it must be
    const int quantity = atRandom ? Any(-3, 4) : Needed(StrictInt16(box.Tag));
    if (quantity <= 0) return;
    pictures.ListIndex = Any(0, static_cast<int>(pictures.Entries.size()) - 1);
    ImageName_Click(army_, line);
    box.Text = std::to_string(quantity);
    if (!BuyUnits(army_, Store, Host, line)) box.Text = "";
  }

  void ChooseLeader() {
    LeaderMgmtForm form;
    form.LeaderName.Text = "Zz of the Tests";
    form.InitiativeBox.ListIndex = Any(0, 3);
    form.CommandBox.ListIndex = 0;
    UpdateLeaderCost(form);
    if (Any(0, 2) == 0) std::ignore = DefineLeader(army_, Host, form);
    for (Int16 i = army_.LeaderCount - 1; army_.SelectedLeader == -1 && i >= 0; i -= 1)
      LeaderName_Click(army_, Host, i);
  }

  void Describe() {
    ArmyHeader& header = Work.Header;
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

  ArmyState& army_ = Work.Army;
  std::mt19937 random_;
};

/// Without the card lines that only loading brings in: it shows a 0 for every card that was not
/// bought, and a 0 is saved.
std::string WithoutZeroCards(std::string text) {
  for (const char* card : {"rally", "flank", "cohesion", "missile", "caltrop"})
    text = ReplaceText(std::string(card) + "=0\r\n", "", text);
  return text;
}

/// Random legal armies of every base army in the folder's catalogs, saved and loaded.
void ExpectRoundTrips(const TempFolder& folder, bool brakka, unsigned seeds) {
  const std::string saved = brakka ? "brakka/x.army" : "x.army";
  Desk catalog(folder.Path());
  catalog.ChooseModule(brakka ? 1 : 0);
  ArmySelectionForm bases;
  FillArmySelection(catalog.Work.Army, catalog.Store, bases);
  ASSERT_FALSE(bases.ArmyList.Entries.empty());
  for (const ListEntry& base : bases.ArmyList.Entries) {
    for (unsigned seed = 1; seed <= seeds; ++seed) {
      SCOPED_TRACE(base.Text + " " + std::to_string(seed));
      for (const char* old : {"x.army", "brakka/x.army", "working.setup"})
        fs::remove(folder / old);
      Player maker(folder.Path(), brakka, seed);
      maker.MakeArmy(base.Text);
      const std::string made = maker.Seen();
      EXPECT_EQ(maker.Save(), "Army Saved");
      const std::string first = folder.Read(saved);
      Player reader(folder.Path(), brakka, seed);
      reader.Load("x");
      EXPECT_EQ(reader.Host.Heard(), Lines());
      EXPECT_EQ(reader.Seen(), made);
      if (!brakka) reader.AddSetups();
      reader.Save();
      const std::string second = folder.Read(saved);
      EXPECT_TRUE(WithoutZeroCards(second).starts_with(WithoutZeroCards(first))) << first << second;
      const std::string seen = reader.Seen();
      Player last(folder.Path(), brakka, seed);
      last.Load("x");
      EXPECT_EQ(last.Seen(), seen);
      last.Save();
      EXPECT_EQ(folder.Read(saved), second);
    }
  }
}

TEST(RoundTrip, EveryShippedArmy) {
  const TempFolder folder;
  fs::copy(SHIPPED_DATA, folder.Path(), fs::copy_options::recursive);
  for (const bool brakka : {false, true}) {
    Desk editor(folder.Path());  // the sample armies are legal and say nothing
    editor.ChooseModule(brakka ? 1 : 0);
    ArmyListForm browser;
    FillArmyList(editor.Work.Army, editor.Store, browser);
    EXPECT_EQ(browser.ArmyList.Entries.size(), brakka ? 2U : 4U);
    for (const ListEntry& army : browser.ArmyList.Entries) {
      editor.Load(army.Text);
      EXPECT_TRUE(VerifyArmy(editor.Work.Army, editor.Host, false));
      EXPECT_EQ(editor.Host.Heard(), Lines()) << army.Text;
      EXPECT_GE(std::min(editor.Work.Army.PointsLeft, editor.Work.Army.CommandPts), 0) << army.Text;
      EXPECT_EQ(editor.Work.Field.Setup.setupList.Entries.size(), brakka ? 0U : 2U) << army.Text;
    }
    ExpectRoundTrips(folder, brakka, 3);
  }
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
