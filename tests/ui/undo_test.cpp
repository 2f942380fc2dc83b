// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <set>

#include "ui_fixture.h"

namespace tarnwick {

struct UndoTest : WindowTest {
  void Undo() { Press(Qt::Key_Z, Qt::ControlModifier); }
  void Redo() { Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

  /// "4 HI Vet", "" without a step.
  QString StepOf(const char* button) const { return Find(button).toolTip().section(": ", 1); }

  std::pair<WorkingArmy, std::string> Now() const { return {Work, Folder.Read("working.setup")}; }

  /// Acts on a control as one of the operations says.
  void Act(const QString& control, const QString& act, const QString& with) {
    const auto inDialog = [&](const Script& script) {
      OnDialog(script);
      Click(control);
    };
    if (act == "click") Click(control);
    if (act == "fill") Fill({{qPrintable(control), qPrintable(with)}});
    if (act == "choose") Choose(control, with.toInt());
    if (act == "entry") ClickEntry(control, with.toInt());
    if (act == "five") PressIn(control, Qt::Key_5);
    if (act == "escape") PressIn(control, Qt::Key_Escape);
    if (act == "view") Click(control), Find("PictureForm").close();
    if (act == "cancel") inDialog([this] { CloseDialog(); });
    if (act == "pick") inDialog([&] { ClickEntry("ArmyList", with.toInt(), true); });
    if (act != "define") return;
    inDialog([&] {
      Enter("LeaderName", with);
      Press(Qt::Key_Return);
    });
  }

  /// The operation makes the step, which undo takes back and redo does again, to the last byte;
  /// then it is taken back. Without a step it only looks around.
  void ExpectStep(const QString& control, const QString& act, const QString& step) {
    SCOPED_TRACE(qPrintable(control + " " + act));
    const QString last = StepOf("UndoBtn"), next = StepOf("RedoBtn");
    const auto before = Now();
    Act(control, act.section(' ', 0, 0), act.section(' ', 1));
    TakeMessages();
    EXPECT_EQ(StepOf("UndoBtn"), step.isEmpty() ? last : step);
    EXPECT_EQ(StepOf("RedoBtn"), step.isEmpty() ? next : "");
    if (step.isEmpty()) return;
    const auto after = Now();
    EXPECT_FALSE(before == after);
    Undo();
    EXPECT_TRUE(Now() == before);
    EXPECT_EQ(StepOf("UndoBtn"), last);
    ExpectWindowShowsState();
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_TRUE(Now() == after);
    ExpectWindowShowsState();
    Undo();
    EXPECT_TRUE(Now() == before);
  }

  /// The controls that a user can act on, arrays by their name alone.
  std::set<std::string> Controls() const {
    std::set<std::string> names;
    for (const QWidget* widget : Form.findChildren<QWidget*>()) {
      const bool acts = (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled();
      const QString name = widget->objectName().section('(', 0, 0);
      if (acts && !widget->isHidden() && !name.isEmpty()) names.insert(name.toStdString());
    }
    return names;
  }
};

TEST_F(UndoTest, EveryChangeIsTakenBackAndDoneAgain) {
  LoadTrebia();
  std::set<std::string> listed;
  // A control, what a user does with it, the step that it makes.
  std::ifstream operations(TEST_DATA "/operations.txt");
  for (std::string line; std::getline(operations, line);) {
    const QStringList fields = QString::fromStdString(line).split(" |");
    listed.insert(fields[0].section('(', 0, 0).toStdString());
    ExpectStep(fields[0], fields[1].trimmed(), fields[2].trimmed());
  }
  EXPECT_EQ(listed, Controls());
}

TEST_F(UndoTest, AMistakeCostsNothing) {
  Folder.Write("Other.army", Folder.Read("Trebia.army") + "[SETUP 2]\r\ndescription=Other\r\n");
  for (const auto& [key, value] : Pairs{{"tot_special", "5"}, {"special5", "AMBUSH,9,9"}})
    Store.Files.WriteIniString("Tribes of Gaul", key, value, Folder / "armylist.dat");
  LoadTrebia();
  Click("ShowSetup", "Command6", "QuickSave");
  const QStringList saved = {"Do you want to replace the existing Trebia.army file ?",
                             "Army Saved"};
  EXPECT_EQ(TakeMessages(), saved);
  const std::string file = Folder.Read("Trebia.army");
  const auto army = Now();
  const Script cancelNewArmy = [this] {
    OnDialog([this] { CloseDialog(); });
    Click("ShowSaveFrame", "NewArmyBtn");
    EXPECT_TRUE(Sees("BaseArmyWarning"));
  };
  for (const Script& mistake :
       {cancelNewArmy, Script([this] { Click("ShowUnitsBtn", "ResetArmy"); }),
        Script([this] { NewArmy(2); }), Script([this] { Load("Other"); })}) {
    mistake();
    EXPECT_FALSE(Now() == army);
    Click("UndoBtn", "ShowSetup", "QuickSave");
    ExpectWindowShowsState();
    EXPECT_EQ(Now().second, army.second);
    EXPECT_EQ(TakeMessages(), saved);
    EXPECT_EQ(Folder.Read("Trebia.army"), file);
  }
}

TEST_F(UndoTest, WhatIsTypedIntoTheBoxInFocusGoesFirst) {
  WorkingArmy before;
  const auto begin = [&](const char* box) {
    Click(box);
    before = Work;
  };
  const auto expectTypedBack = [&](const char* box) {
    EXPECT_TRUE(Work == before);
    EXPECT_EQ(Form.focusWidget()->objectName(), box);
    EXPECT_EQ(StepOf("UndoBtn"), "2 HI Vet");
    ExpectWindowShowsState();
  };
  LoadTrebia();
  Click("ShowUnitsBtn");
  Fill({{"Buy(1)", "2"}});
  begin("Buy(0)");
  Type("9");
  Undo();
  expectTypedBack("Buy(0)");
  Redo();
  EXPECT_EQ(Text("Buy(0)"), "94");
  Click("UndoBtn");  // leaves the box no more than the key does
  expectTypedBack("Buy(0)");
  Enter("Buy(0)", "40 men");
  Press(Qt::Key_Tab);  // the check rewrites it
  EXPECT_EQ(TakeMessages().size(), 1);
  Undo();
  expectTypedBack("Buy(0)");
  Fill({{"Buy(0)", "5"}});
  begin("Buy(0)");  // what was typed there is a step now
  Undo();
  EXPECT_EQ(StepOf("RedoBtn"), "5 HI");

  Click("ShowDetailBtn");
  begin("FromData");
  for (const bool escape : {true, false}) {
    Enter("FromData", "abc");
    Press(Qt::Key_Tab);
    EXPECT_EQ(TakeMessages().size(), 1);
    EXPECT_EQ(StepOf("UndoBtn"), "Historical period") << "refused, it changes the army";
    if (!escape) Undo();
    escape ? Press(Qt::Key_Escape) : Undo();
    expectTypedBack("FromData");
  }
  Press(Qt::Key_Escape);
  begin("ArmyDesc");
  Enter("ArmyDesc", "In ambush");
  for (int i = 0; i < 9 && StepOf("UndoBtn") == "Army description"; ++i)
    Undo();
  expectTypedBack("ArmyDesc");
}

TEST_F(UndoTest, NothingIsCheckedAndStepsComeInTheirOrder) {
  const auto expectSteps = [this](const char* undo, const char* redo) {
    EXPECT_EQ(StepOf("UndoBtn") + "|" + StepOf("RedoBtn"), QString("%1|%2").arg(undo, redo));
  };
  LoadTrebia();
  Click("ShowUnitsBtn");
  Fill({{"Buy(1)", "2"}});
  Click("ShowDetailBtn", "FromData");  // which would be refused as it is
  Undo();
  expectSteps("Load army", "2 HI Vet");
  Enter("Buy(0)", "99");
  Press(Qt::Key_Tab);
  EXPECT_EQ(TakeMessages().size(), 1);
  Click("RedoBtn");
  EXPECT_EQ(Texts("Buy(0)", "Buy(1)"), (QStringList{"4", "2"}));

  Click("ShowDetailBtn", "ArmyDesc");
  Type("X");
  Press(Qt::Key_R, Qt::AltModifier);  // leaves the focus where it is
  Undo();
  expectSteps("Army description", "Ferocity");
  Type("Y");
  Press(Qt::Key_S, Qt::ControlModifier);
  TakeMessages();
  Type("Z");
  Undo();
  EXPECT_FALSE(Events.HasChanges());
  Undo();
  expectSteps("Army description", "Army description");
  EXPECT_TRUE(Events.HasChanges());

  Click("ShowSetup", "Command6");
  Undo();
  EXPECT_EQ(Form.focusWidget()->objectName(), "setupList");
}

TEST_F(UndoTest, ClosingAsksWhenThereIsSomethingToSave) {
  const auto closes = [this](const std::list<QMessageBox::StandardButton>& answers) {
    for (const auto answer : answers)
      AnswerNext(answer);
    const bool closed = Form.close();
    Form.show();
    Settle();
    return closed;
  };
  const auto expectAsked = [this](const QStringList& then) {
    EXPECT_EQ(TakeMessages(), QStringList{"Save the changes to this army?"} + then);
  };
  LoadTrebia();
  EXPECT_TRUE(closes({}));
  const QImage saved = Find("QuickSave").grab().toImage();
  Click("ShowUnitsBtn");
  Fill({{"Buy(1)", "2"}});
  Click("UndoBtn");
  EXPECT_TRUE(closes({}));
  Click("RedoBtn");
  EXPECT_NE(Find("QuickSave").grab().toImage(), saved);
  EXPECT_FALSE(closes({QMessageBox::Cancel}));
  expectAsked({});
  const QString replaces = "Do you want to replace the existing Trebia.army file ?";
  EXPECT_FALSE(closes({QMessageBox::Save, QMessageBox::Cancel}));
  expectAsked({replaces});
  EXPECT_TRUE(closes({QMessageBox::Save}));
  expectAsked({replaces, "Army Saved"});
  EXPECT_TRUE(closes({}));
  Enter("Buy(0)", "99");
  EXPECT_FALSE(closes({QMessageBox::Save}));
  expectAsked({"You can only buy 8 units"});
  const std::string file = Folder.Read("Trebia.army");
  EXPECT_TRUE(closes({QMessageBox::Discard}));
  expectAsked({});
  EXPECT_EQ(Folder.Read("Trebia.army"), file);
  Press(Qt::Key_Escape);
  EXPECT_TRUE(closes({}));
  Fill({{"Buy(0)", "0"}});
  EXPECT_FALSE(closes({QMessageBox::Save}));
  expectAsked({"You must buy at least 4 units of type HI"});

  Folder.Write("Half.army", "[ARMY]\r\nbase=Carthage in Italy\r\nnumunits=1\r\nunit1=none\r\n");
  Load("Half");
  TakeMessages();
  EXPECT_FALSE(closes({QMessageBox::Cancel}));
  LoadTrebia();
  expectAsked({});
  EXPECT_TRUE(closes({}));
  Click("ShowSetup", "Command6");
  EXPECT_FALSE(closes({QMessageBox::Cancel}));
  Events.Run([] { throw SubscriptError(); });
  expectAsked({"Run-time error: Subscript out of range"});
  EXPECT_TRUE(closes({}));
}

}  // namespace tarnwick
