// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <map>
#include <string>

#include <gtest/gtest.h>

#include <QClipboard>

#include "ui_fixture.h"

namespace tarnwick {
namespace {

/// The panel that holds a control, −1 for the column beside the panels.
int PanelOf(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (widget->objectName().startsWith("EditFrame(")) return widget->objectName()[10].digitValue();
  }
  return -1;
}

TEST_F(WindowTest, CaptionsItsControlsToTheLetter) {
  EXPECT_EQ(Form.windowTitle(), "Velmora Tarnwick ver. 1.2.1");
  const std::map<int, QStringList> inventory = {
      {-1,
       {"ShowUnitsBtn=Units", "ShowCommandBtn=Command", "ShowDetailBtn=Detail",
        "ShowTerrainBtn=Terrain", "ShowSaveFrame=Load/Save", "ShowSetup=Setup",
        "QuickSave=QuickSave", "HistoricalPeriod=Define Historical Period",
        "SpecRulesBtn=Special Rules", "DescriptionBtn=Army description"}},
      {0,
       {"=Units", "VerifyBtn=Verify army", "ResetArmy=Reset army", "Frame2=Limits", "Label2=Type",
        "Frame1=Summary", "TotalCost=Total: ", "Frame4=View ", "ViewOption(0)=Infantry",
        "ViewOption(1)=Mounted", "ViewOption(2)=Buy", "Label1=Image"}},
      {1,
       {"=Command", "LeaderBtn=Add a new Leader", "SpecialFrame=Special cards ", "Label5=Card",
        "Label6=$$", "Label7=Max", "Label8=Buy", "LeaderFrame=Leaders ",
        "Label4=Name: $$  initiative/command"}},
      {2,
       {"=Detail", "Frame3=Army Description ", "HistoricTab=Historical Period",
        "Label30=From:", "FromACBC(0)=BC", "FromACBC(1)=AC", "toACBC(0)=BC", "toACBC(1)=AC",
        "Frame6=Army Type", "TYPE_IsPersonal=Personal", "TYPE_IsFantasy=Fantasy",
        "SpecRuleFrame= Special Rules ", "Discipline=Discipline", "Ferocity=Ferocity",
        "TribalCheck=Tribal Command", "Mobility=Mobility", "LongSword=Long Sword", "FOW=FOW"}},
      {3,
       {"=Terrain", "Command2=Update", "Frame5=Points", "Label21=Army pts", "Label20=Command pts"}},
      {4,
       {"=Army Managemet", "Frame10=Module", "modOption(0)=Velmora", "modOption(1)=Brakka",
        "SaveBtn=Save Army", "LoadBtn=Load army", "NewArmyBtn=New army", "Label18=Army Name",
        "Label19=File"}},
      {5,
       {"=Monster Laboratory", "Command4=Save Army", "NewMonsterBtn=New army",
        "Command5=Load army"}},
      {6,
       {"=Setup", "Command6=New Setup", "Command3=Delete Setup", "Label1(0)=Left",
        "Label1(1)=Centre", "Label1(2)=Right", "Label1(3)=Description"}}};
  for (const auto& [panel, entries] : inventory) {
    QStringList shown;
    for (const QWidget* widget : Form.findChildren<QWidget*>()) {
      if (PanelOf(widget) != panel) continue;
      for (const char* text : {"text", "title"}) {
        shown.append(widget->objectName() + "=" + widget->property(text).toString());
      }
    }
    for (const QString& entry : entries) {
      EXPECT_EQ(shown.count(entry), 1) << panel << " " << entry.toStdString();
    }
  }
}

TEST_F(WindowTest, HasOnePanelInFront) {
  const auto expectInFront = [this](int front, const char* button) {
    for (int panel = 0; panel < 7; ++panel) {
      EXPECT_EQ(Hands.Find(ElementName("EditFrame", panel)).isVisible(), panel == front) << button;
    }
    for (const auto* other : {"ShowUnitsBtn", "ShowCommandBtn", "ShowDetailBtn", "ShowTerrainBtn",
                              "ShowSaveFrame", "ShowSetup"}) {
      EXPECT_EQ(Ticked(other), std::string(other) == button) << button << " marks " << other;
    }
  };
  expectInFront(4, "ShowSaveFrame");
  const std::vector<std::pair<const char*, int>> buttons = {
      {"ShowUnitsBtn", 0},   {"ShowCommandBtn", 1}, {"ShowDetailBtn", 2},
      {"ShowTerrainBtn", 3}, {"ShowSaveFrame", 4},  {"ShowSetup", 6}};
  for (const auto& [button, panel] : buttons) {
    for (int clicks = 0; clicks < 2; ++clicks) {
      Hands.Click(button);
      expectInFront(panel, button);
    }
  }
  EXPECT_FALSE(Hands.Find("setupFramePanel").isVisible());
}

TEST_F(WindowTest, QuantityBoxesTakeNoKeyBeyond16Bits) {
  NewArmy(0);
  const std::vector<std::pair<QString, QString>> entries = {
      {"32767", "32767"}, {"32768", "3276"}, {"-32768", "-32768"},  {"-32769", "-3276"},
      {"1e5", "1e"},      {"2.75", "2.75"},  {"3 units", "3 units"}};
  for (const auto& [panel, box] :
       {std::pair{"ShowUnitsBtn", "Buy(0)"}, {"ShowCommandBtn", "SpecBuy(0)"}}) {
    Hands.Click(panel);
    for (const auto& [typed, shown] : entries) {
      Hands.Enter(box, typed);
      EXPECT_EQ(Text(box), shown) << box;
    }
    Hands.Press(Qt::Key_A, Qt::ControlModifier);
    QApplication::clipboard()->setText("40000");
    Hands.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text(box), "3 units") << box;
    Hands.Enter(box, "");
  }
}

TEST_F(WindowTest, TextBoxesTakeWhatAFileCanHold) {
  Hands.Enter("ArmyName", QString(300, 'n'));
  EXPECT_EQ(Text("ArmyName").size(), 254);
  Hands.Enter("ArmyName", QString::fromUtf8("Ω né€"));
  EXPECT_EQ(Text("ArmyName"), QString::fromUtf8("? né€"));
  EXPECT_EQ(Work.Army.Management.ArmyName.Text, "? n\xE9\x80");
  QApplication::clipboard()->setText("two\nlines");
  Hands.Enter("ArmyName", "");
  Hands.Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Work.Army.Management.ArmyName.Text, "two lines");
  Hands.Enter("ArmyFileName", "a/b\\c:d*?\"<>|.e");
  EXPECT_EQ(Text("ArmyFileName"), "a/b\\c:d*?\"<>|.e");
  Hands.Enter("ArmyFileName", QString(130, QChar(0xE9)));  // two bytes each
  EXPECT_EQ(Text("ArmyFileName").size(), 123);

  Hands.Click("ShowDetailBtn");
  Hands.Enter("ArmyDesc", QString::fromUtf8("aΩb"));
  EXPECT_EQ(Text("ArmyDesc"), "a?b");
  Hands.Enter("ArmyDesc", QString(200, 'a') + "\n" + QString(60, 'b'));
  const QString full = QString(200, 'a') + "\n" + QString(53, 'b');  // the break is one "@"
  EXPECT_EQ(Text("ArmyDesc"), full);
  EXPECT_EQ(Work.Header.ArmyDescription, QString(full).replace('\n', '@').toStdString());

  // In the middle nothing goes in either, and nothing falls off the end.
  Hands.Press(Qt::Key_Home);
  Hands.Type("x");
  QApplication::clipboard()->setText("y\nz");
  Hands.Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text("ArmyDesc"), full);
  Hands.Press(Qt::Key_Delete);
  Hands.Press(Qt::Key_Delete);
  Hands.Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text("ArmyDesc"), QString(200, 'a') + "\ny\n" + QString(51, 'b'));
  EXPECT_EQ(Work.Header.ArmyDescription.size(), 254U);

  // All of it is replaced, by what fits of the paste.
  QString alphabet;
  for (int i = 0; i < 300; ++i)
    alphabet += i % 50 == 49 ? QChar('\n') : QChar('a' + i % 26);
  QApplication::clipboard()->setText(alphabet);
  for (const bool empty : {false, true}) {
    Hands.Press(Qt::Key_A, Qt::ControlModifier);
    if (empty) Hands.Press(Qt::Key_Delete);
    Hands.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text("ArmyDesc"), alphabet.left(254));
  }
  for (const char* paste : {"😀😀", "??"}) {
    Hands.Press(Qt::Key_Backspace);
    QApplication::clipboard()->setText(QString::fromUtf8(paste));
    Hands.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Text("ArmyDesc"), alphabet.left(253) + "?");
  }
  Hands.Press(Qt::Key_Z, Qt::ControlModifier);  // paste and cut are one step
  EXPECT_EQ(Text("ArmyDesc"), alphabet.left(253));
}

}  // namespace
}  // namespace tarnwick
