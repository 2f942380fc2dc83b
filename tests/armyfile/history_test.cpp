// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/history.h"

#include <random>
#include <set>

#include "armyfile/resetting.h"
#include "battlefield/setups.h"
#include "battlefield/terrain.h"
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
    Past.EndEvent(Step("Buy"), ++typing_);
  }
  void Name(const char* text, int typing) {
    Army.Management.ArmyName.Text = text;
    Past.EndEvent(Step(std::string("Name ") + text), typing);
  }
  void Show(Panel panel) {
    ShowPanel(Army, panel);
    Past.EndEvent();
  }
  std::pair<WorkingArmy, std::string> Now() const { return {Work, Folder.Read("working.setup")}; }
  /// What undo and redo would do, and whether there is something to save.
  std::string Offers() const {
    return Past.UndoName() + "|" + Past.RedoName() + "|" + (Past.Unsaved() ? "*" : "");
  }

  History Past{Work, Store, 1000};

 private:
  int typing_ = 0;
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
  std::deque<std::pair<WorkingArmy, std::string>> befores, afters;
  while (afters.size() < 1000) {
    looks[random() % std::size(looks)](static_cast<int>(random() % 999));
    Past.EndEvent();
    auto before = Now();
    const std::size_t deed = random() % std::size(deeds);
    deeds[deed](static_cast<int>(random() % 999));
    const std::string name = std::to_string(afters.size());
    Past.EndEvent(Step(name));
    if (Past.UndoName() != name) continue;
    made.insert(deed);
    befores.push_back(std::move(before));
    afters.push_back(Now());
  }
  EXPECT_EQ(made.size(), std::size(deeds));
  const Lines files = Folder.Files();
  for (std::size_t i = 1000; i-- > 0;) {
    Past.Undo();
    ASSERT_TRUE(Now() == befores[i]) << i;
  }
  EXPECT_EQ(Past.UndoName(), "");
  for (std::size_t i = 0; i < 1000; ++i) {
    Past.Redo();
    ASSERT_TRUE(Now() == afters[i]) << i;
  }
  EXPECT_EQ(Past.RedoName(), "");
  EXPECT_EQ(Folder.Files(), files);
}

TEST_F(HistoryTest, OnlyAChangeOfTheArmyIsAStep) {
  NewArmy("Sample Army");
  Past.EndEvent(Step("New army"));
  Buy("2");
  for (const bool back : {true, false, true}) {
    Show(Panel::Detail);
    back ? Past.Undo() : Past.Redo();
    EXPECT_EQ(Army.EditFrame.Front, Panel::Management);
    EXPECT_EQ(Offers(), back ? "New army|Buy|*" : "Buy||*");
  }
  Show(Panel::Detail);
  // What was refused is no step, and gone when the one after it is taken back.
  Army.Command.SpecBuy[0].Text = "9";
  Buy("9");
  EXPECT_EQ(Offers(), "New army|Buy|*");
  Buy("3");
  EXPECT_EQ(Offers(), "Buy||*");
  Past.Undo();
  EXPECT_EQ(Army.Units.Buy[0].Text + Army.Command.SpecBuy[0].Text, "");
  Past.Undo();
  // An army that has nothing has nothing to lose.
  ResetArmy_Click(Work, Store);
  EXPECT_FALSE(Past.EndEvent(Step("Reset")));
  Load("");
  EXPECT_FALSE(Past.EndEvent(Step("Load")));
  EXPECT_EQ(Offers(), "|New army|");
  Load("saved");
  EXPECT_TRUE(Past.EndEvent(Step("Load")));
  Past.Redo();
  EXPECT_EQ(Offers(), "Load||*");
}

TEST_F(HistoryTest, TypingIsOneStepUntilTheBoxIsLeftOrTheArmySaved) {
  for (const char* typed : {"A", "Ab", "Abc"})
    Name(typed, 1);
  Name("B", 2);
  EXPECT_EQ(Offers(), "Name B||*");
  Past.Undo();
  EXPECT_EQ(Offers(), "Name Abc|Name B|*");
  Name("Abcd", 2);
  Name("Abc", 2);
  EXPECT_EQ(Offers(), "Name Abc||*") << "typed back, and what was taken back is gone";
  Name("Abcd", 2);
  Past.MarkSaved();
  Past.EndEvent();
  EXPECT_EQ(Offers(), "Name Abcd||");
  Name("Abcde", 2);
  Past.Undo();
  EXPECT_EQ(Offers(), "Name Abcd|Name Abcde|");
}

TEST_F(HistoryTest, KnowsWhereThereIsNothingToSave) {
  History few(Work, Store, 2);
  const auto step = [&](const char* name, bool saved = false) {
    Army.Management.ArmyName.Text = name;
    if (saved) few.MarkSaved();
    few.EndEvent(Step(name));
    return few.Unsaved();
  };
  const auto undo = [&] {
    few.Undo();
    return few.Unsaved();
  };
  EXPECT_FALSE(few.Unsaved() || !step("A") || step("B", true));
  EXPECT_TRUE(undo());
  few.Redo();
  EXPECT_FALSE(few.Unsaved());
  EXPECT_TRUE(undo() && step("C")) << "as many steps as were saved, but others";
  EXPECT_TRUE(undo() && !undo()) << "nothing was begun";
  for (const char* name : {"1", "2", "3"})
    step(name);
  EXPECT_TRUE(undo() && undo());
  EXPECT_EQ(few.UndoName() + few.RedoName(), "2") << "the first is forgotten";
}

TEST_F(HistoryTest, SetupsThatCannotBeWrittenStaySilently) {
  Command6_Click(Field, Army, Store);
  Past.EndEvent(Step("New Setup"));
  std::filesystem::remove(Folder / "working.setup");
  std::filesystem::create_directories(Folder / "working.setup/x");
  Describe("Feint");
  Past.EndEvent(Step("Feint"));
  Past.Undo();
  EXPECT_EQ(Field.Setup.description.Text, "New setup");
  Past.Undo();
  EXPECT_TRUE(Folder.Has("working.setup/x"));
}

}  // namespace tarnwick
