// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/history.h"

#include <random>
#include <set>

#include "armyfile/resetting.h"
#include "battlefield/setups.h"
#include "battlefield/terrain.h"
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

  void Take(const char* quantity) {
    Army.Units.Buy[0].Text = quantity;
    static_cast<void>(BuyUnits(Army, Store, Host, 0));
  }
  void Describe(const char* setup) {
    Field.Setup.description.Text = setup;
    description_Change(Field, Army, Store);
  }
  void Buy(const char* quantity) {
    Take(quantity);
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
  std::pair<WorkingArmy, std::string> Now() const { return {Work, Setups()}; }
  /// What undo and redo would do, and whether there is something to save.
  std::string Offers() const {
    return Past.UndoName() + "|" + Past.RedoName() + "|" + (Past.Unsaved() ? "*" : "");
  }

  History Past{Work, Store, 1000};
};

TEST_F(HistoryTest, AThousandStepsAreTakenBackAndDoneAgain) {
  const char *const bases[] = {"", "Sample Army", "Strict Army"}, *const saved[] = {"", "saved"};
  SetupPanel& setup = Field.Setup;
  const auto selectSetup = [&](int n) {
    setup.setupList.ListIndex = n % 4 - 1;
    setupList_Click(Field, Army, Store);
  };
  const auto deploy = [&](int n) {
    setup.unitList.ListIndex = n % 2 - 1;
    assignBtn_Click(Field, Army, Store, Host, n % 9);
  };
  const auto mounted = [&](int n) {
    TickOption(Army.Units.ViewOption, n % 3);
    ViewOption_Click(Army, Store);
  };
  const std::function<void(int)> looks[] = {
      [&](int n) { ShowPanel(Army, static_cast<Panel>(n % 7)); },
      [&](int) { ShowTerrainBtn_Click(Field, Army); }, selectSetup, mounted};
  const std::function<void(int)> deeds[] = {
      [&](int n) { Take(std::to_string(n % 5).c_str()); },
      [&](int n) { Header.Mobility.Value = n % 2; },
      [&](int n) { DropTerrain(Field, Army, Host, n % 6, n % 9); },
      [&](int) { Command6_Click(Field, Army, Store); },
      [&](int n) { Describe(std::to_string(n).c_str()); },
      deploy,
      [&](int) { ResetArmy_Click(Work, Store); },
      [&](int n) { ChooseModule(n % 2); },
      [&](int n) { NewArmy(bases[n % 3]); },
      [&](int n) { Load(saved[n % 2]); }};
  std::mt19937 random(12);
  std::set<std::size_t> made;
  std::deque<std::pair<WorkingArmy, std::string>> seen;  // before each step
  while (seen.size() < 1000) {
    looks[random() % std::size(looks)](static_cast<int>(random() % 999));
    Past.EndEvent();
    auto before = Now();
    const std::size_t deed = random() % std::size(deeds);
    deeds[deed](static_cast<int>(random() % 999));
    const std::string name = std::to_string(seen.size());
    Past.EndEvent(Step(name));
    if (Past.UndoName() != name) continue;
    made.insert(deed);
    seen.push_back(std::move(before));
  }
  seen.push_back(Now());
  EXPECT_EQ(made.size(), std::size(deeds));
  const Lines files = Folder.Files();
  for (std::size_t i = 1000; i-- > 0;) {
    Past.Undo();
    ASSERT_TRUE(Now() == seen[i]) << i;
  }
  EXPECT_EQ(Past.UndoName(), "");
  for (std::size_t i = 1; i <= 1000; ++i) {
    Past.Redo();
    ASSERT_TRUE(Now() == seen[i]) << i;
  }
  EXPECT_EQ(Past.RedoName(), "");
  EXPECT_EQ(Folder.Files(), files);
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
  Command6_Click(Field, Army, Store);
  Past.EndEvent(Step("New Setup"));
  const std::string first = Setups();
  Describe("Ambush");
  Past.EndEvent(Step("Ambush"));
  Past.Undo();
  EXPECT_EQ(Setups(), first);
  Past.Undo();
  EXPECT_EQ(Setups(), none);
  Past.Redo();
  EXPECT_EQ(Setups(), first);
  // A file that can't be written is left silently as it is.
  std::filesystem::remove(Folder / "working.setup");
  std::filesystem::create_directories(Folder / "working.setup/x");
  Describe("Feint");
  Past.EndEvent(Step("Feint"));
  EXPECT_EQ(Offers(), "Feint||*");
  Past.Undo();
  EXPECT_EQ(Field.Setup.description.Text, "New setup");
  Past.Undo();
  EXPECT_TRUE(Folder.Has("working.setup/x"));
}

}  // namespace tarnwick
