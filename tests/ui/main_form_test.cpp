// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "ui_fixture.h"

namespace tarnwick {

TEST_F(WindowTest, SaysWhatItSaysWhereItSaysIt) {
  EXPECT_EQ(Form.focusWidget()->objectName(), "modOption(0)");
  QString seen = Picture("MainForm");
  const auto openDialog = [&](const char* button, const char* dialog) {
    OnDialog([&seen, dialog, this] {
      seen += Picture(dialog);
      CloseDialog();
    });
    Click(button);
  };
  openDialog("NewArmyBtn", "ArmySelectionForm");
  openDialog("LoadBtn", "ArmyListForm");
  NewArmy(0);
  Click("ShowUnitsBtn");
  Fill({{"Buy(1)", "2"}});
  Click("ViewOption(2)");
  openDialog("specLabel(0)", "specForm");
  for (const auto& [button, panel] : PanelButtons) {
    Click(button, button);
    EXPECT_EQ(Work.Army.EditFrame.Front, panel) << button;
    ExpectWindowShowsState();
    if (panel == Panel::Command) openDialog("LeaderBtn", "LeaderMgmtForm");
    if (panel == Panel::Setup) Click("Command6");
    seen += Picture(ElementName("EditFrame", static_cast<int>(panel)));
  }
  Click("ShowSetup", "Command3");
  seen += Picture("EditFrame(5)");
  EXPECT_EQ(seen.toStdString(), TempFolder::ReadBytes(TEST_DATA "/window.txt"));
}

TEST_F(WindowTest, TheSummaryLeadsToWhatIsMissing) {
  EXPECT_EQ(Entries("StillMissing"), (QStringList{"New army", "Load army"}));
  NewArmy(0);
  EXPECT_EQ(Entries("StillMissing").front(), "You must buy at least 4 units of type HI");
  const auto panel = [this](int line) {
    Click("ShowDetailBtn");
    ClickEntry("StillMissing", line);
    return Work.Army.EditFrame.Front;
  };
  EXPECT_EQ(panel(0), Panel::Units);
  EXPECT_EQ(panel(5), Panel::Command);
  EXPECT_EQ(Form.focusWidget()->objectName(), "LeaderName(0)");
  Click("ShowUnitsBtn");
  Fill({{"Buy(0)", "3"}, {"Buy(1)", "2"}});
  EXPECT_EQ(Texts("HaveLimit(0)", "MinLimit(0)", "HaveLimit(1)"), (QStringList{"3", "4", "2"}));
  EXPECT_EQ(Find("TypeLimit(0)").toolTip(), "Counts: HI 3\nDoesn't: HI[Vet] 2");
  EXPECT_TRUE(Find("TypeLimit(0)").font().bold() && !Find("TypeLimit(1)").font().bold());
  EXPECT_EQ(Text("CommandLeft"), "Command left: 250 of 250");
  LoadTrebia();
  EXPECT_EQ(Texts("CommandLeft", "SummaryLeader"),
            (QStringList{"Command left: 200 of 250", "Hanno of Bruttium"}));
  EXPECT_EQ(panel(0), Panel::Management);
  Enter("ArmyName", "Mago");
  EXPECT_EQ(Text("SummaryName"), "Mago");

  Form.resize(1000, 700);
  Settle();
  EXPECT_FALSE(Sees("StillMissing"));
  EXPECT_EQ(Text("SummaryInShort"), "Hanno of Bruttium, 1 FLANK, 15 cards, 14 units (93%)");
  Click("ShowUnitsBtn");
  Fill({{"Buy(0)", "0"}});
  QTimer::singleShot(50, [this] {
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
  });
  Click("ShowSaveFrame", "StillMissingMenu");
  EXPECT_EQ(Work.Army.EditFrame.Front, Panel::Units);
}

TEST_F(WindowTest, KeysPressTheButtonsThatTheyStandFor) {
  LoadTrebia();
  const auto front = [this](Qt::Key key) {
    Press(key, Qt::ControlModifier);
    return Work.Army.EditFrame.Front;
  };
  int key = Qt::Key_1;
  for (const auto& [button, panel] : PanelButtons)
    EXPECT_EQ(front(Qt::Key(key++)), panel) << button;
  EXPECT_EQ(front(Qt::Key_PageDown), Panel::Management);
  EXPECT_EQ(front(Qt::Key_PageUp), Panel::Setup);
  EXPECT_EQ(front(Qt::Key_PageUp), Panel::Terrain);
  EXPECT_EQ(front(Qt::Key_PageDown), Panel::Setup);
  for (const Qt::Key opens : {Qt::Key_N, Qt::Key_O}) {
    OnDialog([this] {
      EXPECT_TRUE(Sees("ArmyList") && Work.Army.EditFrame.Front == Panel::Management);
      CloseDialog();
    });
    front(Qt::Key_4);
    Press(opens, Qt::ControlModifier);
  }
  Press(Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(Work.Army.EditFrame.Front, Panel::Command);
  PressIn("ShowUnitsBtn", Qt::Key_Return);
  EXPECT_EQ(Work.Army.EditFrame.Front, Panel::Units);
  Click("Buy(12)");
  Press(Qt::Key_M, Qt::AltModifier);
  EXPECT_TRUE(Ticked("ViewOption(1)"));
  EXPECT_EQ(Form.focusWidget()->objectName(), "Buy(6)") << "the view has no line 12";
  Click("ShowSaveFrame");
  Press(Qt::Key_F, Qt::AltModifier);
  EXPECT_EQ(Form.focusWidget()->objectName(), "ArmyFileName");
  // A box that a reset emptied is not checked when its panel comes back.
  Click("ShowDetailBtn");
  Fill({{"FromData", "0"}});
  Click("FromData");
  for (const Qt::Key letter : {Qt::Key_U, Qt::Key_R})
    Press(letter, Qt::AltModifier);
  EXPECT_EQ(front(Qt::Key_3), Panel::Detail);
  EXPECT_EQ(Form.focusWidget()->objectName(), "ArmyDesc");
  AnswerNext(QMessageBox::Discard);
  Press(Qt::Key_Q, Qt::ControlModifier);
  TakeMessages();
  EXPECT_FALSE(Form.isVisible());
  Form.show();
}

TEST_F(WindowTest, TheWheelOverAListScrollsThePanel) {
  LoadTrebia();
  Form.resize(1000, 420);
  Settle();
  auto& list = Find<QComboBox>("ImageName(0)");
  const auto* panel = qobject_cast<QScrollArea*>(Find("EditFrame(0)").parent()->parent());
  const QPoint middle = list.rect().center();
  const int before = list.currentIndex();
  QWheelEvent wheel(middle, list.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&wheel);  // as from a hand
  qApp->notify(&list, &wheel);
  EXPECT_EQ(list.currentIndex(), before);
  EXPECT_GT(panel->verticalScrollBar()->value(), 0);
}

TEST_F(WindowTest, QuantityBoxesTakeNoKeyBeyond16Bits) {
  const Pairs entries = {{"32767", "32767"},    {"32768", "3276"}, {"-32768", "-32768"},
                         {"-32769", "-3276"},   {"1e5", "1e"},     {"2.75", "2.75"},
                         {"3 units", "3 units"}};
  LoadTrebia();
  for (const auto& [typed, shown] : entries) {
    Enter("Buy(0)", typed);
    EXPECT_EQ(Text("Buy(0)"), shown);
  }
  Press(Qt::Key_A, Qt::ControlModifier);
  Paste("40000");
  EXPECT_EQ(Text("Buy(0)"), "3 units");
}

TEST_F(WindowTest, TextBoxesTakeWhatAFileCanHold) {
  Enter("ArmyName", QString(300, 'n'));
  EXPECT_EQ(Text("ArmyName").size(), 254);
  Enter("ArmyName", "né€");
  Press(Qt::Key_Home);
  Type("Ω ");
  EXPECT_EQ(Text("ArmyName"), "? né€");
  EXPECT_EQ(Work.Army.Management.ArmyName.Text, "? n\xE9\x80");
  Enter("ArmyName", "");
  Paste("two\nlines");
  EXPECT_EQ(Work.Army.Management.ArmyName.Text, "two lines");
  Enter("ArmyFileName", QString(130, QChar(0xE9)));  // two bytes each
  EXPECT_EQ(Text("ArmyFileName").size(), 123);

  Click("ShowDetailBtn");
  Enter("ArmyDesc", "b");
  Press(Qt::Key_Home);
  Type("Ωa");
  EXPECT_EQ(Text("ArmyDesc"), "?ab");
  Enter("ArmyDesc", QString(200, 'a') + "\n" + QString(60, 'b'));
  const QString full = QString(200, 'a') + "\n" + QString(53, 'b');  // the break is one "@"
  EXPECT_EQ(Texts("ArmyDesc", "ArmyDescWarning"), (QStringList{full, "254 of 254"}));
  EXPECT_EQ(Work.Header.ArmyDescription, QString(full).replace('\n', '@').toStdString());

  // In the middle nothing goes in either, and nothing falls off the end.
  Press(Qt::Key_Home);
  Paste("y\nz");
  EXPECT_EQ(Text("ArmyDesc"), full);
  Press(Qt::Key_Delete);
  Press(Qt::Key_Delete);
  Paste("y\nz");
  EXPECT_EQ(Text("ArmyDesc"), QString(200, 'a') + "\ny\n" + QString(51, 'b'));

  // All of it is replaced, by what fits of the paste; paste and cut are one step.
  const QString lines = QString("abcdefghijklmnopqrstuvwxy\n").repeated(12);
  Press(Qt::Key_A, Qt::ControlModifier);
  Paste(lines);
  EXPECT_EQ(Text("ArmyDesc"), lines.left(254));
  for (const char* text : {"😀😀", "??"}) {
    Press(Qt::Key_Backspace);
    Paste(text);
    EXPECT_EQ(Text("ArmyDesc"), lines.left(253) + "?");
  }
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text("ArmyDesc"), lines.left(253));
}

}  // namespace tarnwick
