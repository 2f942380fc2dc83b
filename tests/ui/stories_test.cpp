// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <QDate>
#include <QLabel>
#include <QTimer>

#include "base/text.h"
#include "ui_fixture.h"

namespace tarnwick {

/// Runs the event loop while `act` acts. The exit status, -1 when the program just goes on.
int Exec(const std::function<void()>& act) {
  QTimer goesOn;
  goesOn.callOnTimeout([] { QApplication::exit(-1); });
  QTimer::singleShot(0, [&] {
    act();
    WindowDriver::Settle();
    goesOn.start(0);
  });
  return QApplication::exec();
}

TEST_F(WindowTest, ANewArmyIsChosenInTheDialog) {
  const WorkingArmy none = Work;
  OnDialog([this] {
    Click("Command1");
    EXPECT_EQ(TakeMessages(), QStringList{"Please select one army"});
    ClickEntry("ArmyList", 2);
    ClickEntry("ArmyList", 1, true);
  });
  Click("NewArmyBtn");
  EXPECT_EQ(Text("ArmyName"), "Kingdom of Pontos");
  EXPECT_EQ(Form.windowTitle(), "Velmora Tarnwick ver 1.2.1 ");
  EXPECT_EQ(Joined(Rows("LeaderName"), Rows("Buy"), Rows("TypeLimit"), Rows("MinLimit")),
            "6|15|5|5");
  Click("ShowUnitsBtn");
  Fill({{"Buy(0)", "2"}});
  Click("ViewOption(1)");
  ExpectWindowShowsState();  // in blue
  Click("ViewOption(2)");
  EXPECT_EQ(Texts("TypeLabel(0)", "Buy(0)", "UnitTotalLabel(0)"), (QStringList{"PH", "2", "40"}));
  EXPECT_EQ(Rows("Buy"), 1);

  Work = none;  // without the card rows that the army brought
  Form.Refresh();
  EXPECT_EQ(Rows("SpecBuy"), 0);
}

TEST_F(WindowTest, ALeaderIsChosenAmongTheArmysAndThePlayersOwn) {
  const std::string armies = Folder.Read("armylist.dat");
  Folder.Write("armylist.dat", ReplaceText("leader4=Mago", "leaderX=Mago", armies));
  NewArmy(0);
  EXPECT_EQ(TakeMessages(), QStringList{"Leader # 4 not present"});
  EXPECT_EQ(Rows("LeaderName"), 3);
  OnDialog([this] {
    for (const char* leftBy : {"Command1", "LeaderName", ""}) {
      Choose("InitiativeBox", 2);
      Choose("CommandBox", 1);
      leftBy[0] == 0 ? Press(Qt::Key_Tab) : Click(leftBy);
      EXPECT_EQ(TakeMessages(),
                QStringList{"Only leaders with initiative = 7 can have 2 command points"});
      Press(Qt::Key_Home);  // the box has kept the focus
      EXPECT_EQ(Text("leaderCost"), "100");
    }
    Choose("InitiativeBox", 0);
    EXPECT_EQ(Text("leaderCost"), "40");
    Enter("LeaderName", "Ben & Bo");
    Press(Qt::Key_Return);
  });
  Click("ShowCommandBtn", "LeaderBtn", "LeaderName(5)");
  EXPECT_EQ(Rows("LeaderName"), 4);
  EXPECT_EQ(Texts("LeaderName(5)", "LeaderFrame"),
            (QStringList{"Ben & Bo 40 [ 4 / 1 ] ", " Leaders (pts left: 210)"}));
  Work.Army.CommandPts = 100;
  Press(Qt::Key_Up);  // past those that the army has not
  EXPECT_EQ(Form.focusWidget()->objectName(), "LeaderName(2)");
  Press(Qt::Key_Up);
  EXPECT_TRUE(Ticked("LeaderName(5)")) << "moving does not buy";
  Press(Qt::Key_Space);  // 60 dearer
  EXPECT_EQ(Text("LeaderFrame"), " Leaders (pts left: 40)");
  Press(Qt::Key_Left);
  Press(Qt::Key_Return);  // 50 dearer
  EXPECT_EQ(TakeMessages(), QStringList{"Insufficient points left"});
  for (const auto modifiers : {Qt::NoModifier, Qt::ShiftModifier}) {
    Press(Qt::Key_Tab, modifiers);
    EXPECT_FALSE(Form.focusWidget()->objectName().startsWith("LeaderName"));
    Press(Qt::Key_Tab, modifiers ^ Qt::ShiftModifier);
    EXPECT_EQ(Form.focusWidget()->objectName(), "LeaderName(1)");
  }
  EXPECT_TRUE(Ticked("LeaderName(1)"));
}

TEST_F(WindowTest, ARowShowsItsAbilitiesAndItsPicture) {
  NewArmy(0);
  OnDialog([this] { Click("Command1"); });
  Click("ShowUnitsBtn", "specLabel(1)");
  EXPECT_FALSE(Find("specLabel(5)").isEnabled());  // an LG without abilities
  Choose("ImageName(0)", 1);
  EXPECT_EQ(Work.Army.BaseUnits[1].ChosenImage, "Punic citizen");
  Click("ViewBtn(0)");
  auto& picture = Find<QLabel>("PictureForm");
  const QImage first = picture.pixmap().toImage();
  EXPECT_FALSE(first.isNull());
  EXPECT_EQ(picture.windowTitle(), "hi_punic_citizen");
  picture.resize(832, 600);
  Settle();
  EXPECT_EQ(picture.pixmap().height(), 600 - 32) << "read again, not blown up";
  Form.activateWindow();
  Settle();
  Click("ViewBtn(8)");
  EXPECT_TRUE(Form.isActiveWindow()) << "the player types on";
  EXPECT_NE(picture.pixmap().toImage(), first);
  const auto path = Folder / "pictures/hi_punic_citizen.svg";
  const QString file = QString::fromStdString(path.string());
  Folder.Write("pictures/hi_punic_citizen.svg", "no picture");
  Click("ViewBtn(0)");
  EXPECT_TRUE(picture.text().startsWith(file + "\n"));
  std::filesystem::remove(path);
  Click("ViewBtn(0)");
  EXPECT_EQ(TakeMessages(), QStringList{"File " + file + " not found"});
  picture.activateWindow();
  Settle();
  Press(Qt::Key_Escape);
  EXPECT_FALSE(picture.isVisible());
  Click("ViewBtn(8)");
  AnswerNext(QMessageBox::Discard);
  EXPECT_EQ(Exec([this] { Form.close(); }), 0) << "the picture keeps the program";
  TakeMessages();
  Form.show();
}

TEST_F(WindowTest, TheDetailsAreThoseOfTheArmy) {
  Click("ShowDetailBtn");
  Fill({{"FromData", "20"}, {"ToData", "10"}});
  for (const auto& [era, period] :
       Pairs{{"toACBC(1)", "-20,10"}, {"FromACBC(1)", "20,10"}, {"toACBC(0)", "20,10"}}) {
    Click(era);
    EXPECT_EQ(Work.Header.ArmyPeriod, period) << "what begins AC ends AC";
  }
  const Pairs boxes = {
      {"TYPE_IsPersonal", "P "}, {"TYPE_IsFantasy", "F "},     {"TribalCheck", " TRIBAL"},
      {"Ferocity", " FEROCITY"}, {"Mobility", " MOBILITY"},    {"LongSword", " LONGSWORD"},
      {"FOW", " FOW"},           {"Discipline", " DISCIPLINE"}};
  for (const auto& [box, stored] : boxes) {
    Click(box);
    EXPECT_EQ(ArmyTypeCode(Work.Header) + " " + SpecialRulesText(Work.Header), stored);
    Click(box);
  }
}

TEST_F(WindowTest, TheModuleHasItsOwnArmiesAndTrapsAndNoPeriod) {
  Click("modOption(1)");
  EXPECT_EQ(Text("NewArmyFile"), ".army in the folder brakka");
  Click("OpenFolder");  // which the platform can't
  EXPECT_EQ(TakeMessages(),
            QStringList("The army files are in " + ToQt((Folder / "brakka").string())));
  NewArmy(0);
  EXPECT_EQ(Text("ArmyName"), "Fenmoot of Oorl");
  OnDialog([this] {
    ClickEntry("ArmyList", 0);
    EXPECT_TRUE(Sees("DeleteWarning"));
    CloseDialog();
  });
  OnDialog([this] { CloseDialog(); });
  Click("LoadBtn", "NewArmyBtn");
  Enter("ArmyFileName", "gaul/Oorl");
  EXPECT_TRUE(Sees("FolderWarning") && Sees("BaseArmyWarning"));
  Click("ShowTerrainBtn");
  EXPECT_TRUE(Sees("TerrainWarning"));
  Click("ShowDetailBtn");
  EXPECT_TRUE(!Sees("HistoricTab") && Ticked("TYPE_IsFantasy"));
  Click("ShowSaveFrame", "modOption(0)");
  EXPECT_EQ(Work.Army.Units.TypeLabel[0].Caption, "PH") << "the army stays";
}

TEST_F(WindowTest, AnArmyIsVerifiedSavedAndReset) {
  LoadTrebia();
  Click("ShowUnitsBtn", "VerifyBtn", "ShowSaveFrame");
  EXPECT_EQ(TakeMessages(), QStringList{"Army is OK"});
  AnswerNext(QMessageBox::Cancel);
  Click("SaveBtn", "QuickSave");
  const QString question = "Do you want to replace the existing Trebia.army file ?";
  EXPECT_EQ(TakeMessages(), (QStringList{question, question, "Army Saved"}));
  const QString saved = QString::fromStdString(Folder.Read("Trebia.army"));
  EXPECT_TRUE(saved.contains("=" + QDate::currentDate().toString("yyyy-MM-dd") + "\r\n"));
  Click("ShowUnitsBtn", "ResetArmy");
  Fill({{"Buy(1)", "2"}});  // the reset took the unit from the line; it counts for the one shown
  EXPECT_EQ(Texts("Buy(0)", "Buy(1)", "UnitTotalLabel(1)", "TotalCost"),
            (QStringList{"", "2", "40", "Points left: 360 of 400"}));
}

TEST_F(WindowTest, AnErrorInACheckStopsWhatWouldFollow) {
  LoadTrebia();
  Work.Army.Command.SpecCostLabel[0].Caption = "20000";
  std::filesystem::remove(Folder / "Trebia.army");
  Click("ShowCommandBtn");
  Enter("SpecBuy(0)", "-2");
  EXPECT_EQ(Exec([this] { Press(Qt::Key_S, Qt::ControlModifier); }), 1);
  EXPECT_EQ(TakeMessages(), QStringList{"Run-time error: Overflow"});
  EXPECT_FALSE(Folder.Has("Trebia.army"));
}

TEST_F(WindowTest, AnErrorAtTheStartIsItsEnd) {
  Folder.Write("images.dat", "[IMAGES]\ntotal=99999\n");
  Editor other(Folder.Path());
  EXPECT_EQ(Exec([&other] { EXPECT_FALSE(other.Form.Start()); }), 1);
  EXPECT_EQ(TakeMessages(), QStringList{"Run-time error: Overflow"});
}

TEST_F(WindowTest, AnErrorInADialogEndsTheProgram) {
  Work.Army.LeaderCount = 7;  // there is no option for an eighth
  OnDialog([this] {
    Enter("LeaderName", "Sosylos");
    Click("Command1");
    CloseDialog();
  });
  Click("ShowCommandBtn");
  EXPECT_TRUE(Sees("LeaderWarning"));
  EXPECT_EQ(Exec([this] { Click("LeaderBtn", "LeaderBtn", "QuickSave"); }), 1);
  EXPECT_EQ(TakeMessages(), QStringList{"Run-time error: Subscript out of range"});
}

}  // namespace tarnwick
