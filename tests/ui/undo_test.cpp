// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <set>

#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>

#include "ui_fixture.h"

namespace tarnwick {

/// What a user does with a control, and the step that it makes; without one it only looks around.
struct Operation {
  const char* Control;
  std::function<void()> Act;
  const char* StepName = "";
};

struct UndoTest : WindowTest {
  void Undo() { Press(Qt::Key_Z, Qt::ControlModifier); }
  void Redo() { Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

  /// "4 HI Vet", "" without a step.
  QString StepOf(const char* button) const { return Find(button).toolTip().section(": ", 1); }

  std::pair<WorkingArmy, std::string> Now() const { return {Work, Folder.Read("working.setup")}; }

  /// Does what undo takes back and redo does again, to the last byte; then it is taken back.
  void ExpectStep(const Operation& operation) {
    SCOPED_TRACE(std::string(operation.Control) + ": " + operation.StepName);
    const bool step = *operation.StepName != 0;
    const QString last = StepOf("UndoBtn"), next = StepOf("RedoBtn");
    const auto before = Now();
    const Lines files = Folder.Files();
    operation.Act();
    TakeMessages();
    EXPECT_EQ(StepOf("UndoBtn"), step ? operation.StepName : last);
    EXPECT_EQ(StepOf("RedoBtn"), step ? "" : next);
    if (!step) return;
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
    EXPECT_EQ(Folder.Files(), files);
  }

  /// The controls that a user can act on, arrays by their name alone.
  std::set<std::string> Controls() const {
    std::set<std::string> names;
    for (const QWidget* widget : Form.findChildren<QWidget*>()) {
      const bool acts = widget->inherits("QAbstractButton") || widget->inherits("QLineEdit") ||
                        widget->inherits("QPlainTextEdit") || widget->inherits("QComboBox") ||
                        widget->inherits("QListWidget");
      const QString name = widget->objectName().section('(', 0, 0);
      const bool steps = name == "UndoBtn" || name == "RedoBtn";
      const bool idle = widget->isHidden() || !widget->isEnabled();
      if (acts && !idle && !steps && !name.startsWith("qt_")) names.insert(name.toStdString());
    }
    return names;
  }
};

TEST_F(UndoTest, EveryChangeIsTakenBackAndDoneAgain) {
  Folder.Write("Half.army", "[ARMY]\r\nbase=Carthage in Italy\r\nnumunits=1\r\nunit1=none\r\n");
  const auto click = [this](const char* name) { return [this, name] { Click(name); }; };
  const auto go = [&](const char* button) { return Operation{button, click(button)}; };
  const auto fill = [this](const char* name, const char* text) {
    return [=, this] { Fill({{name, text}}); };
  };
  const auto choose = [this](const char* name, int entry) {
    return [=, this] { Choose(name, entry); };
  };
  const auto entry = [this](const char* name, int row) {
    return [=, this] { ClickEntry(name, row); };
  };
  const auto dialog = [this](const char* name, const Script& script) {
    return [=, this] {
      OnDialog(script);
      Click(name);
    };
  };
  const auto pick = [this](int row) { return [=, this] { ClickEntry("ArmyList", row, true); }; };
  const auto close = [this] { CloseDialog(); };
  const auto define = [this] {
    Choose("InitiativeBox", 0);
    Choose("CommandBox", 0);
    Enter("LeaderName", "Bo");
    Press(Qt::Key_Return);
  };
  const Operation operations[] = {
      go("ShowUnitsBtn"),
      {"Buy", fill("Buy(1)", "2"), "2 HI Vet"},
      {"Buy", fill("Buy(0)", ""), "0 HI"},
      {"Buy", fill("Buy(0)", "99")},
      {"Buy", [this] { Press(Qt::Key_Escape); }},
      {"ImageName", choose("ImageName(0)", 1), "Picture of HI"},
      {"ResetArmy", click("ResetArmy"), "Reset army"},
      {"VerifyBtn", click("VerifyBtn")},
      {"ViewOption", click("ViewOption(1)")},
      {"ViewBtn",
       [this] {
         Click("ViewBtn(0)");
         Find("PictureForm").close();
       }},
      {"specLabel", dialog("specLabel(0)", close)},
      go("ShowCommandBtn"),
      {"LeaderName", click("LeaderName(0)"), "Leader Hannibal Barca"},
      {"LeaderBtn", dialog("LeaderBtn", close)},
      {"LeaderBtn", dialog("LeaderBtn", define), "New leader Bo"},
      {"SpecBuy", fill("SpecBuy(1)", "2"), "2 FLANK"},
      go("ShowDetailBtn"),
      {"ArmyDesc", fill("ArmyDesc", "In ambush"), "Army description"},
      {"FromData", fill("FromData", "218"), "Historical period"},
      {"ToData", fill("ToData", "0"), "Historical period"},
      {"FromACBC", click("FromACBC(1)"), "Historical period"},
      {"toACBC", click("toACBC(1)"), "Historical period"},
      {"TYPE_IsPersonal", click("TYPE_IsPersonal"), "Personal"},
      {"TYPE_IsFantasy", click("TYPE_IsFantasy"), "Fantasy"},
      {"TribalCheck", click("TribalCheck"), "Tribal Command"},
      {"Ferocity", click("Ferocity"), "Ferocity"},
      {"Mobility", click("Mobility"), "Mobility"},
      {"LongSword", click("LongSword"), "Long Sword"},
      {"FOW", click("FOW"), "FOW"},
      {"Discipline", click("Discipline"), "Discipline"},
      go("ShowTerrainBtn"),
      {"TerrImg", click("TerrImg(3)")},
      {"Area", click("Area(8)"), "Area 9: Wood"},
      go("ShowSetup"),
      {"Command6", click("Command6"), "New Setup"},
      {"setupList", entry("setupList", 0)},
      {"description", fill("description", "Feint"), "Setup description"},
      {"assignBtn", click("assignBtn(0)"), "Deployment"},
      {"unitList", entry("unitList", 1)},
      {"assignBtn", click("assignBtn(0)"), "Deployment"},
      {"unitList", [this] { PressIn("unitList", Qt::Key_5); }, "Deployment"},
      go("Command3"),
      {"M_Size", choose("M_Size", 1), "Monster Size"},
      {"M_TQ", choose("M_TQ", 1), "Monster TQ"},
      {"M_Type", choose("M_Type", 1), "Monster Type"},
      {"NewMonsterBtn", click("NewMonsterBtn"), "New monster"},
      go("BackToSetup"),
      go("ShowSaveFrame"),
      {"ArmyName", fill("ArmyName", "Mago"), "Army name"},
      {"ArmyFileName", fill("ArmyFileName", "Mago"), "File name"},
      {"modOption", click("modOption(1)"), "Module Brakka"},
      {"NewArmyBtn", dialog("NewArmyBtn", close), "New army"},
      {"NewArmyBtn", dialog("NewArmyBtn", pick(1)), "New army"},
      {"LoadBtn", dialog("LoadBtn", pick(0)), "Load army"},
      {"LoadBtn", dialog("LoadBtn", pick(1)), "Load army"},
      {"SaveBtn", click("SaveBtn")},
      {"QuickSave", click("QuickSave")},
      {"StillMissing", entry("StillMissing", 0)}};
  OnDialog(pick(1));
  Click("LoadBtn");
  std::set<std::string> listed;
  for (const Operation& operation : operations) {
    listed.insert(operation.Control);
    ExpectStep(operation);
  }
  EXPECT_EQ(listed, Controls());
}

TEST_F(UndoTest, AMistakeCostsNothing) {
  Folder.Write("Other.army", Folder.Read("Trebia.army") + "[SETUP 2]\r\ndescription=Other\r\n");
  const std::pair<const char*, const char*> fiveCards[] = {{"tot_special", "5"},
                                                           {"special5", "AMBUSH,9,9"}};
  for (const auto& [key, value] : fiveCards)
    Store.Files.WriteIniString("Tribes of Gaul", key, value, Folder / "armylist.dat");
  OnDialog([this] { ClickEntry("ArmyList", "Trebia", true); });
  Click("LoadBtn", "ShowSetup", "Command6", "QuickSave");
  const QStringList saved = {"Do you want to replace the existing Trebia.army file ?",
                             "Army Saved"};
  EXPECT_EQ(TakeMessages(), saved);
  const std::string file = Folder.Read("Trebia.army");
  const auto army = Now();
  const Script mistakes[] = {
      [this] { Click("ShowUnitsBtn", "ResetArmy"); },
      [this] {
        OnDialog([this] { CloseDialog(); });
        Click("ShowSaveFrame", "NewArmyBtn");
        EXPECT_TRUE(Sees("BaseArmyWarning"));
      },
      [this] { NewArmy(2); },
      [this] {
        OnDialog([this] { CloseDialog(); });  // which loads the same army again
        Click("ShowSaveFrame", "LoadBtn");
      },
      [this] {
        OnDialog([this] { ClickEntry("ArmyList", "Other", true); });
        Click("ShowSaveFrame", "LoadBtn");
      }};
  for (const auto& make : mistakes) {
    make();
    EXPECT_FALSE(Now() == army);
    const Lines armies = {Folder.Read("Trebia.army"), Folder.Read("Other.army")};
    Click("UndoBtn");
    ExpectWindowShowsState();
    EXPECT_EQ(armies, (Lines{Folder.Read("Trebia.army"), Folder.Read("Other.army")}));
    Click("ShowSetup");
    EXPECT_EQ(Now().second, army.second);
    Click("QuickSave");
    EXPECT_EQ(TakeMessages(), saved);
    EXPECT_EQ(Folder.Read("Trebia.army"), file);
  }
}

TEST_F(UndoTest, WhatIsTypedIntoTheBoxInFocusGoesFirst) {
  LoadTrebia();
  Click("ShowUnitsBtn");
  Fill({{"Buy(1)", "2"}});
  WorkingArmy bought = Work;
  const auto expectTypedBack = [&](const char* name, const char* text) {
    SCOPED_TRACE(text);
    EXPECT_TRUE(Work == bought);
    EXPECT_EQ(Text(name), text);
    EXPECT_EQ(Form.focusWidget()->objectName(), name);
    EXPECT_EQ(StepOf("UndoBtn"), "2 HI Vet");
  };
  Click("Buy(0)");
  for (const bool byButton : {false, true}) {
    Type("9");
    byButton ? Click("UndoBtn") : Undo();
    expectTypedBack("Buy(0)", "4");
    Redo();
    EXPECT_EQ(Text("Buy(0)"), "94");
    Undo();
  }
  Enter("Buy(0)", "40 men");  // the check rewrites it
  Press(Qt::Key_Tab);
  EXPECT_EQ(TakeMessages().size(), 1);
  EXPECT_EQ(Text("Buy(0)"), "40");
  Undo();
  expectTypedBack("Buy(0)", "4");
  Fill({{"Buy(0)", "5"}});
  EXPECT_EQ(StepOf("UndoBtn"), "5 HI");
  Click("Buy(0)");  // what was typed there is a step now
  Undo();
  expectTypedBack("Buy(0)", "4");

  // A year changes the army as it is typed, and refused.
  Click("ShowDetailBtn", "FromData");
  bought = Work;
  for (const Qt::Key back : {Qt::Key_Escape, Qt::Key_Z}) {
    Enter("FromData", "abc");
    Press(Qt::Key_Tab);
    EXPECT_EQ(StepOf("UndoBtn"), "Historical period");
    TakeMessages();
    back == Qt::Key_Z ? Undo() : Press(back);
    if (back == Qt::Key_Z) Undo();
    expectTypedBack("FromData", "");
  }
  Type("218");
  Click("ArmyDesc");
  bought = Work;
  Enter("ArmyDesc", "In ambush");
  EXPECT_EQ(StepOf("UndoBtn"), "Army description");
  for (int i = 0; i < 9 && Text("ArmyDesc") != ToQt(bought.Header.ArmyDesc.Text); ++i)
    Undo();
  EXPECT_TRUE(Work == bought);
  EXPECT_EQ(StepOf("UndoBtn"), "Historical period");
  Fill({{"ArmyDesc", "At dawn"}});
  Click("ArmyDesc");
  Undo();
  EXPECT_TRUE(Work == bought);
  Undo();
  EXPECT_EQ(Work.Header.ArmyPeriod, "");
}

TEST_F(UndoTest, NothingIsCheckedAndStepsComeInTheirOrder) {
  LoadTrebia();
  Click("ShowUnitsBtn");
  Fill({{"Buy(1)", "2"}});
  Click("ShowDetailBtn", "FromData");  // which would be refused as it is
  const auto expectSteps = [this](const char* undo, const char* redo) {
    EXPECT_EQ(StepOf("UndoBtn") + "|" + StepOf("RedoBtn"), QString("%1|%2").arg(undo, redo));
  };
  Undo();
  expectSteps("Load army", "2 HI Vet");
  EXPECT_TRUE(Sees("EditFrame(0)"));
  Enter("Buy(0)", "99");
  Press(Qt::Key_Tab);
  EXPECT_EQ(TakeMessages().size(), 1);
  Click("RedoBtn");
  EXPECT_EQ(Texts("Buy(0)", "Buy(1)"), (QStringList{"4", "2"}));

  // Keys that leave the focus where it is.
  Click("ShowDetailBtn", "ArmyDesc");
  Type("X");
  Press(Qt::Key_R, Qt::AltModifier);
  Undo();
  expectSteps("Army description", "Ferocity");
  Undo();
  Redo();
  expectSteps("Army description", "Ferocity");
  Click("ArmyDesc");
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
  const QString question = "Save the changes to this army?";
  const auto closes = [this](const std::list<QMessageBox::StandardButton>& answers) {
    for (const auto answer : answers)
      AnswerNext(answer);
    const bool closed = Form.close();
    Form.show();
    Settle();
    return closed;
  };
  EXPECT_TRUE(closes({}));
  LoadTrebia();
  EXPECT_TRUE(closes({}));
  Click("ShowUnitsBtn");
  Fill({{"Buy(1)", "2"}});
  Click("UndoBtn");
  EXPECT_TRUE(closes({}));
  Click("RedoBtn");
  EXPECT_FALSE(closes({QMessageBox::Cancel}));
  EXPECT_FALSE(closes({QMessageBox::Save, QMessageBox::Cancel}));
  const QString replaces = "Do you want to replace the existing Trebia.army file ?";
  EXPECT_EQ(TakeMessages(), (QStringList{question, question, replaces}));
  EXPECT_TRUE(closes({QMessageBox::Save}));
  EXPECT_EQ(TakeMessages(), (QStringList{question, replaces, "Army Saved"}));
  EXPECT_TRUE(closes({}));
  Fill({{"Buy(0)", "0"}});
  EXPECT_FALSE(closes({QMessageBox::Save}));
  EXPECT_EQ(TakeMessages(), (QStringList{question, "You must buy at least 4 units of type HI"}));
  const std::string file = Folder.Read("Trebia.army");
  EXPECT_TRUE(closes({QMessageBox::Discard}));
  EXPECT_EQ(Folder.Read("Trebia.army"), file);
  TakeMessages();
  LoadTrebia();
  const QImage saved = Find("QuickSave").grab().toImage();
  Click("ShowUnitsBtn");
  Enter("Buy(0)", "99");
  EXPECT_FALSE(closes({QMessageBox::Save}));
  EXPECT_EQ(TakeMessages(), (QStringList{question, "You can only buy 8 units"}));
  Press(Qt::Key_Escape);
  EXPECT_TRUE(closes({}));

  Folder.Write("Half.army", "[ARMY]\r\nbase=Carthage in Italy\r\nnumunits=1\r\nunit1=none\r\n");
  for (const char* army : {"Half", "Trebia"}) {
    OnDialog([=, this] { ClickEntry("ArmyList", army, true); });
    Click("ShowSaveFrame", "LoadBtn");
    TakeMessages();
    EXPECT_EQ(closes({QMessageBox::Cancel}), *army == 'T') << army;
    TakeMessages();
  }
  Click("ShowSetup", "Command6");
  EXPECT_NE(Find("QuickSave").grab().toImage(), saved);
  EXPECT_FALSE(closes({QMessageBox::Cancel}));
  TakeMessages();
  Session& session = Events;
  EXPECT_FALSE(session.Run([] { throw SubscriptError(); }));
  EXPECT_TRUE(closes({})) << "after an error";
  TakeMessages();
}

}  // namespace tarnwick
