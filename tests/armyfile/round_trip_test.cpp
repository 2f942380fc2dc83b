// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <random>

#include "armyfile/army_browser.h"
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

/// A player who clicks about in an editor, always in the same way for the same seed. Limits count
/// for nothing.
class Player : public Desk {
 public:
  Player(const TempFolder& folder, bool brakka, unsigned seed)
      : Desk(folder.Path()), random_(seed) {
    ChooseModule(brakka ? 1 : 0);
  }

  void MakeArmy(const std::string& base) {
    NewArmy(base);
    Army.Management.ArmyFileName.Text = "x";
    for (const int view : {1, 0}) {
      TickOption(Army.Units.ViewOption, view);
      ShowSelectUnits(Army, Store);
      for (int k = 0; k < 23; ++k)
        BuyLine(k);
    }
    LeaderName_Click(Army, Host, Any(0, Army.LeaderCount.Value() - 1));
    for (Int16 j = 0; j < Army.TotSpecial; ++j) {
      Army.Command.SpecBuy[j].Text = std::to_string(Any(0, 2));
      if (SpecBuy_Validate(Army, Host, j)) Army.Command.SpecBuy[j].Text = "0";
    }
    for (int i = 0; i < 3 && !Army.BrakkaMode; ++i)  // Brakka's terrain is not found again
      DropTerrain(Field, Army, Host, Any(0, 5), Any(0, 8));
  }

  std::string Save() {
    Army.TotLimits = 0;
    return Desk::Save();
  }

  /// What the player sees of the army beside what is in its file.
  Lines Seen() const {
    return {Army.Title, Army.Units.TotalCost.Caption, Army.Units.TQinfo.Caption,
            Army.Command.LeaderFrame.Caption, LeaderText(Army.Leaders[Army.SelectedLeader])};
  }

 private:
  int Any(int least, int most) { return std::uniform_int_distribution<>(least, most)(random_); }

  void BuyLine(int line) {
    TextBox& box = Army.Units.Buy[line];
    ListBox& pictures = Army.Units.ImageName[line];
    if (!box.Visible || pictures.Entries.empty()) return;
    if (Army.Units.MissileLabel[line].Caption == "A") return;  // not found again, as it must be
    pictures.ListIndex = Any(0, static_cast<int>(pictures.Entries.size()) - 1);
    ImageName_Click(Army, line);
    box.Text = std::to_string(std::max(0, Any(-3, 4)));
    if (!BuyUnits(Army, Store, Host, line)) box.Text = "";
  }

  std::mt19937 random_;
};

/// Random armies of every base army in the folder's catalogs, saved and loaded.
void ExpectRoundTrips(const TempFolder& folder, bool brakka, unsigned seeds) {
  Player catalog(folder, brakka, 0);
  ArmySelectionForm bases;
  FillArmySelection(catalog.Army, catalog.Store, bases);
  EXPECT_FALSE(bases.ArmyList.Entries.empty());
  for (const std::string& base : Entries(bases.ArmyList)) {
    for (unsigned seed = 1; seed <= seeds; ++seed) {
      SCOPED_TRACE(base + " " + std::to_string(seed));
      Player maker(folder, brakka, seed), reader(folder, brakka, seed);
      maker.MakeArmy(base);
      EXPECT_EQ(maker.Save(), "Army Saved");
      const std::string file = brakka ? "brakka/x.army" : "x.army", bytes = folder.Read(file);
      reader.Load("x");
      EXPECT_EQ(reader.Host.Heard(), Lines());
      EXPECT_EQ(reader.Seen(), maker.Seen());
      reader.Save();
      EXPECT_EQ(folder.Read(file), bytes);
    }
  }
}

TEST(RoundTrip, EveryShippedArmy) {
  const TempFolder folder;
  folder.Copy(SHIPPED_DATA);
  for (const bool brakka : {false, true}) {
    Player editor(folder, brakka, 0);  // the sample armies are legal and say nothing
    ArmyListForm browser;
    FillArmyList(editor.Army, editor.Store, browser);
    EXPECT_EQ(browser.ArmyList.Entries.size(), brakka ? 2U : 4U);
    for (const std::string& army : Entries(browser.ArmyList)) {
      editor.Load(army);
      EXPECT_TRUE(VerifyArmy(editor.Army, editor.Host, false));
      EXPECT_EQ(editor.Host.Heard(), Lines()) << army;
      EXPECT_GE(std::min(editor.Army.PointsLeft, editor.Army.CommandPts), 0) << army;
      EXPECT_EQ(editor.Field.Setup.setupList.Entries.size(), brakka ? 0U : 2U) << army;
    }
    ExpectRoundTrips(folder, brakka, 1);
  }
}

TEST(RoundTrip, ACatalogFullOfCorners) {
  const TempFolder folder;
  folder.Copy(TEST_DATA "/corners");
  ExpectRoundTrips(folder, false, 20);
}

}  // namespace
}  // namespace tarnwick
