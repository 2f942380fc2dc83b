// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/history.h"

#include <map>
#include <random>

#include "armyfile/resetting.h"
#include "battlefield/setups.h"
#include "battlefield/terrain.h"
#include "rules/leaders.h"
#include "rules/special_cards.h"
#include "rules/unit_grid.h"
#include "rules/unit_purchase.h"
#include "support/sample_army.h"

namespace tarnwick {

struct HistoryTest : testing::Test, SampleArmy {
  HistoryTest() {
    Folder.Copy(TEST_DATA "/armies");
    Past.EndEvent();
  }

  void Buy(const char* quantity) {
    Army.Units.Buy[0].Text = quantity;
    static_cast<void>(BuyUnits(Army, Store, Host, 0));
    Past.EndEvent(Step("Buy"));
  }
  void Name(const char* text, int typing = 1) {
    Army.Management.ArmyName.Text = text;
    Past.EndEvent(Step(std::string("Name ") + text), typing);
  }
  void Show(Panel panel) {
    ShowPanel(Army, panel);
    Past.EndEvent();
  }
  void EndOfSave() {
    Past.MarkSaved();
    Past.EndEvent();
  }
  std::string Setups() const { return Folder.Read("working.setup"); }
  /// What undo and redo would do, and whether there is something to save.
  std::string Offers() const {
    return Past.UndoName() + "|" + Past.RedoName() + "|" + (Past.Unsaved() ? "*" : "");
  }

  History Past{Work, Store, 1000};
};

/// What an event does, or looks at, with a random number.
struct Deed {
  const char* Name;  ///< "" for one that only looks around
  std::function<void(int)> Do;
};

TEST_F(HistoryTest, AThousandStepsAreTakenBackAndDoneAgain) {
  const Deed deeds[] = {
      {"Buy",
       [&](int n) {
         Army.Units.Buy[n % 2].Text = std::to_string(n % 5);
         static_cast<void>(BuyUnits(Army, Store, Host, n % 2));
       }},
      {"Picture",
       [&](int n) {
         ListBox& list = Army.Units.ImageName[n % 2];
         if (!list.Entries.empty()) list.ListIndex = n % static_cast<int>(list.Entries.size());
         ImageName_Click(Army, n % 2);
       }},
      {"Leader",
       [&](int n) {
         if (n % 7 < Army.LeaderCount) LeaderName_Click(Army, Host, n % 7);
       }},
      {"Card",
       [&](int n) {
         Army.Command.SpecBuy[0].Text = std::to_string(n % 3);
         if (Army.TotSpecial > 0) static_cast<void>(SpecBuy_Validate(Army, Host, 0));
       }},
      {"Rule", [&](int n) { (n % 2 ? Header.Mobility : Header.TYPE_IsPersonal).Value = n % 3; }},
      {"Period",
       [&](int n) {
         Header.FromData.Text = std::to_string(n % 5000);
         static_cast<void>(FromData_Validate(Header, Host));
       }},
      {"Description",
       [&](int n) {
         Header.ArmyDesc.Text = std::to_string(n);
         ArmyDesc_Change(Header);
       }},
      {"Terrain", [&](int n) { DropTerrain(Field, Army, Host, n % 6, n % 9); }},
      {"Setup", [&](int) { Command6_Click(Field, Army, Store); }},
      {"Setup's text",
       [&](int n) {
         Field.Setup.description.Text = std::to_string(n);
         description_Change(Field, Army, Store);
       }},
      {"Deploy",
       [&](int n) {
         Field.Setup.unitList.ListIndex = n % 2 - 1;
         assignBtn_Click(Field, Army, Store, Host, n % 9);
       }},
      {"Reset", [&](int) { ResetArmy_Click(Work, Store); }},
      {"Module", [&](int n) { ChooseModule(n % 2); }},
      {"New army",
       [&](int n) {
         NewArmy(n % 3 == 0 ? "" : n % 2 ? "Sample Army" : "Strict Army");
       }},
      {"Load", [&](int n) { Load(n % 3 == 0 ? ""
                                 : n % 2    ? "saved"
                                            : "by_hand"); }},
      {"", [&](int n) { ShowPanel(Army, static_cast<Panel>(n % 7)); }},
      {"", [&](int) { ShowTerrainBtn_Click(Field, Army); }},
      {"",
       [&](int n) {
         TickOption(Army.Units.ViewOption, n % 3);
         ViewOption_Click(Army, Store);
       }},
      {"", [&](int n) {
         Field.Setup.setupList.ListIndex = n % 4 - 1;
         setupList_Click(Field, Army, Store);
       }}};
  std::mt19937 random(12);
  std::vector<std::pair<WorkingArmy, std::string>> seen;  // before each step
  std::map<std::string, int> done;
  std::pair before(Work, Setups());
  while (seen.size() < 1000) {
    const Deed& deed = deeds[random() % std::size(deeds)];
    deed.Do(static_cast<int>(random() % 10000));
    const std::string name = std::string(deed.Name) + " " + std::to_string(seen.size());
    Past.EndEvent(*deed.Name ? Step(name) : nullptr);
    const bool step = Past.UndoName() == name;
    if (step) seen.push_back(before);
    if (step) ++done[deed.Name];
    if (step || !*deed.Name) before = {Work, Setups()};
  }
  EXPECT_EQ(done.size(), 15U) << "each of them made a step";
  seen.emplace_back(Work, Setups());
  const Lines files = Folder.Files();
  const std::string army = Folder.Read("saved.army");
  const auto isAt = [&](std::size_t i) {
    return Work == seen[i].first && Setups() == seen[i].second;
  };
  for (std::size_t i = 1000; i-- > 0;) {
    Past.Undo();
    ASSERT_TRUE(isAt(i)) << i << ", before " << Past.RedoName();
  }
  EXPECT_EQ(Past.UndoName(), "");
  for (std::size_t i = 1; i <= 1000; ++i) {
    Past.Redo();
    ASSERT_TRUE(isAt(i)) << i << ", after " << Past.UndoName();
  }
  EXPECT_EQ(Past.RedoName(), "");
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_EQ(Folder.Read("saved.army"), army);
}

TEST_F(HistoryTest, OnlyAChangeOfTheArmyIsAStep) {
  NewArmy("Sample Army");
  Past.EndEvent(Step("New army"));
  Buy("2");
  Past.Undo();
  EXPECT_EQ(Offers(), "New army|Buy|*");
  // Looking around, as a first picture is chosen for what a view shows.
  Show(Panel::Detail);
  Army.BaseUnits[6].ChosenImageIdx = 1;
  Past.EndEvent();
  EXPECT_EQ(Offers(), "New army|Buy|*");
  Past.Redo();
  EXPECT_EQ(Army.EditFrame.Front, Panel::Management);
  Past.Undo();
  EXPECT_EQ(Joined(static_cast<int>(Army.EditFrame.Front), Army.BaseUnits[6].ChosenImageIdx),
            "2|1");
  // What was refused is no step, and gone when the one after it is taken back.
  Buy("9");
  Army.Command.SpecBuy[0].Text = "9";
  EXPECT_TRUE(SpecBuy_Validate(Army, Host, 0));
  Past.EndEvent(Step("Card"));
  EXPECT_EQ(Offers(), "New army|Buy|*");
  Buy("3");
  EXPECT_EQ(Offers(), "Buy||*");
  Past.Undo();
  EXPECT_EQ(Army.Units.Buy[0].Text + Army.Command.SpecBuy[0].Text, "");
  Past.Undo();
  // An army that has nothing has nothing to lose.
  for (const char* army : {"", "", "saved"}) {
    ResetArmy_Click(Work, Store);
    Past.EndEvent(Step("Reset"));
    EXPECT_EQ(Offers(), "|New army|");
    Load(army);
    Past.EndEvent(Step(*army ? "Load" : "No load"));
  }
  EXPECT_EQ(Offers(), "Load||*");
  Past.Redo();
  EXPECT_EQ(Offers(), "Load||*");
}

TEST_F(HistoryTest, TypingIsOneStepUntilTheBoxIsLeftOrTheArmySaved) {
  for (const char* typed : {"A", "Ab", "Abc"})
    Name(typed);
  Name("B", 2);
  EXPECT_EQ(Offers(), "Name B||*");
  Past.Undo();
  EXPECT_EQ(Offers(), "Name Abc|Name B|*");
  Name("Abcd", 2);
  EXPECT_EQ(Offers(), "Name Abcd||*") << "what was taken back is gone";
  Name("Abc", 2);
  EXPECT_EQ(Offers(), "Name Abc||*") << "typed back";
  Name("Abcd", 2);
  Past.Undo();
  Past.Undo();
  EXPECT_EQ(Offers() + Army.Management.ArmyName.Text, "|Name Abc|");
  Name("C", 3);
  EndOfSave();
  EXPECT_EQ(Offers(), "Name C||");
  Name("Cd", 3);
  EXPECT_EQ(Offers(), "Name Cd||*");
  Past.Undo();
  EXPECT_EQ(Offers(), "Name C|Name Cd|");
}

TEST_F(HistoryTest, KnowsWhereThereIsNothingToSave) {
  EXPECT_EQ(Offers(), "||");
  Name("A", 0);
  Name("B", 0);
  EndOfSave();
  Past.Undo();
  EXPECT_EQ(Offers(), "Name A|Name B|*");
  Past.Redo();
  EXPECT_EQ(Offers(), "Name B||");
  Past.Undo();
  Name("C", 0);  // as many steps as were saved, but others
  EXPECT_EQ(Offers(), "Name C||*");
  Past.Undo();
  Past.Undo();
  EXPECT_EQ(Offers(), "|Name A|*");

  History few(Work, Store, 2);
  few.EndEvent();
  for (const char* name : {"1", "2", "3"}) {
    Army.Management.ArmyName.Text = name;
    few.EndEvent(Step(name));
  }
  few.Undo();
  few.Undo();
  EXPECT_EQ(Joined(few.UndoName(), few.RedoName(), few.Unsaved()), "|2|1")
      << "the first is forgotten";
}

TEST_F(HistoryTest, TheSetupsComeBackAsAnEditGoesToTheDisk) {
  const std::string none = Setups();
  const auto describe = [&](const char* text) {
    Field.Setup.description.Text = text;
    description_Change(Field, Army, Store);
    Past.EndEvent(Step(text));
  };
  Command6_Click(Field, Army, Store);
  Past.EndEvent(Step("New Setup"));
  const std::string first = Setups();
  describe("Ambush");
  Past.Undo();
  EXPECT_EQ(Setups(), first);
  Past.Undo();
  EXPECT_EQ(Setups(), none);
  Past.Redo();
  EXPECT_EQ(Setups(), first);
  // A file that can't be written is left silently as it is.
  std::filesystem::remove(Folder / "working.setup");
  std::filesystem::create_directories(Folder / "working.setup/x");
  describe("Feint");
  EXPECT_EQ(Offers(), "Feint||*");
  Past.Undo();
  EXPECT_EQ(Field.Setup.description.Text, "New setup");
  Past.Undo();
  EXPECT_TRUE(Folder.Has("working.setup/x"));
}

}  // namespace tarnwick
