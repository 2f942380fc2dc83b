// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include <QListWidget>
#include <QTimer>

#include "support/full_disk.h"
#include "ui_fixture.h"

namespace tarnwick {
namespace {

QColor TextColour(const QWidget& label) {
  return label.palette().color(label.foregroundRole());
}

TEST_F(WindowTest, ANewArmyIsChosenInTheDialog) {
  Hands.OnDialog([this] {
    const auto& list = Hands.Find<QListWidget>("ArmyList");
    ASSERT_GE(list.count(), 3);
    EXPECT_EQ(list.item(1)->text(), "Kingdom of Pontos");
    Hands.Click("Command1");
    EXPECT_EQ(Hands.TakeMessages(), QStringList{"Please select one army"});
    Hands.ClickEntry("ArmyList", 2);
    Hands.ClickEntry("ArmyList", 1, true);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  });
  Hands.Click("NewArmyBtn");
  EXPECT_EQ(Text("ArmyName"), "Kingdom of Pontos");
  EXPECT_EQ(Text("TotalCost"), "Points left: 430 of 430");
  EXPECT_EQ(Text("LeaderFrame"), " Leaders (pts left: 240)");
  EXPECT_EQ(Text("LeaderName(5)"), "Varius the Exile 40 [ 4 / 1 ] ");
  EXPECT_EQ(Form.windowTitle(), "Velmora Tarnwick ver 1.2.1 ");
  Hands.Click("ShowUnitsBtn");
  EXPECT_EQ(Text("TypeLimit(1)") + Text("MinLimit(1)"), "CO[Con]2");
  EXPECT_TRUE(Hands.Find("Buy(14)").isVisible());
  EXPECT_FALSE(Hands.Find("Buy(15)").isVisible());  // 15 rows on foot
  Hands.Enter("Buy(0)", "2");
  EXPECT_EQ(TextColour(Hands.Find("TypeLabel(0)")), QColor(Qt::black));
  Hands.Click("ViewOption(1)");
  EXPECT_EQ(Text("TypeLabel(0)") + Text("ClassLabel(0)") + Text("CostLabel(0)"), "LN25");
  EXPECT_EQ(TextColour(Hands.Find("TypeLabel(0)")), QColor(0x55, 0x55, 0xFF));
  Hands.Click("ViewOption(2)");
  EXPECT_EQ(Text("TypeLabel(0)") + Text("Buy(0)") + Text("UnitTotalLabel(0)"), "PH240");
  EXPECT_EQ(TextColour(Hands.Find("TypeLabel(0)")), QColor(Qt::black));
  EXPECT_FALSE(Hands.Find("Buy(1)").isVisible());

  // Closed by its frame, even with an entry selected, the dialog leaves the army but not its name.
  Hands.Click("ShowDetailBtn");
  Hands.Enter("ArmyDesc", "Old");
  Hands.Click("ShowSaveFrame");
  Hands.OnDialog([this] { Hands.ClickEntry("ArmyList", 0); });
  Hands.Click("NewArmyBtn");
  EXPECT_EQ(Text("ArmyName") + Text("ArmyDesc"), "");
  EXPECT_EQ(Text("TypeLabel(0)") + Text("Buy(0)"), "PH2");
  EXPECT_EQ(Points(), "390/40 240");
}

TEST_F(WindowTest, ALeaderIsChosenWithinTheCommandPoints) {
  NewArmy(0);
  Hands.Click("ShowCommandBtn");
  const auto expectChosen = [this](int leader, const std::string& points) {
    EXPECT_EQ(Work.Army.SelectedLeader, leader);
    EXPECT_EQ(Points(), "400/0 " + points);
    EXPECT_EQ(Text("LeaderFrame").toStdString(), " Leaders (pts left: " + points + ")");
    for (int i = 0; i < 7; ++i)
      EXPECT_EQ(Ticked(ElementName("LeaderName", i)), i == leader) << i;
  };
  Enter("SpecBuy(0)", "4");
  Enter("SpecBuy(1)", "4");
  Enter("SpecBuy(2)", "2");
  Enter("SpecBuy(3)", "3");
  EXPECT_EQ(Form.windowTitle(), "Velmora Tarnwick ver 1.2.1 [ #cards: 13 units: 0 (0%) ]");
  Hands.Click("LeaderName(0)");  // 150 of 142 points
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"Insufficient points left"});
  expectChosen(-1, "142");
  Hands.Click("LeaderName(4)");
  expectChosen(4, "102");
  Hands.Press(Qt::Key_Up);
  expectChosen(3, "72");
  Hands.Press(Qt::Key_Up);
  Hands.Press(Qt::Key_Up);
  expectChosen(1, "42");
  Hands.Press(Qt::Key_Up);
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"Insufficient points left"});
  expectChosen(1, "42");
  Enter("SpecBuy(1)", "");
  expectChosen(1, "82");
  Hands.Click("LeaderName(0)");
  expectChosen(0, "32");
}

TEST_F(WindowTest, ARowShowsItsAbilitiesAndItsPicture) {
  NewArmy(0);
  Hands.Click("ShowUnitsBtn");
  Hands.OnDialog([this] {
    EXPECT_EQ(Hands.Find("specForm").windowTitle(), "Special Abilities");
    EXPECT_EQ(Text("specText"),
              "Special abilities for the unit: HI\n\n\n*SPEARWALL=Levelled spears break a charge. "
              "Mounted enemies who hit the front lose the bonus of their charge.\n\n*STEADY=Old "
              "hands who have seen it all. The unit may repeat its first failed test of courage.");
    Hands.Click("Command1");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  });
  Hands.Click("specLabel(1)");
  EXPECT_FALSE(Hands.Find("specLabel(5)").isEnabled());  // an LG without abilities

  Hands.Choose("ImageName(0)", 1);
  EXPECT_EQ(Work.Army.BaseUnits[1].ChosenImage, "Punic citizen");
  Hands.Click("ViewBtn(0)");
  const auto picture = [this] { return Hands.Find<QLabel>("PictureForm").pixmap().toImage(); };
  const QImage first = picture();
  EXPECT_FALSE(first.isNull());
  Hands.Click("ViewBtn(8)");
  EXPECT_NE(picture(), first);
  int open = 0;
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    open += window->objectName() == "PictureForm";
  }
  EXPECT_EQ(open, 1);

  std::filesystem::remove_all(Folder / "pictures");
  Hands.Click("ViewBtn(0)");
  EXPECT_EQ(
      Hands.TakeMessages(),
      QStringList{"File " +
                  QString::fromStdString((Folder / "pictures/hi_punic_citizen.svg").string()) +
                  " not found"});
}

TEST_F(WindowTest, TheModuleHasItsOwnArmiesAndNoPeriod) {
  Hands.Click("modOption(1)");
  Hands.Click("ShowDetailBtn");
  EXPECT_FALSE(Hands.Find("HistoricTab").isVisible());
  Hands.OnDialog([this] {
    DoubleClickBelowArmies();
    EXPECT_EQ(Hands.TakeMessages(), QStringList{"Please select one army"});
    Hands.ClickEntry("ArmyList", 0, true);
  });
  Hands.Click("ShowSaveFrame");
  Hands.Click("NewArmyBtn");
  EXPECT_EQ(Text("ArmyName"), "Fenmoot of Oorl");
  EXPECT_TRUE(Ticked("TYPE_IsFantasy"));
  Hands.Click("modOption(0)");
  Hands.Click("ShowDetailBtn");
  EXPECT_TRUE(Hands.Find("HistoricTab").isVisible());
  EXPECT_EQ(Text("TypeLabel(0)"), "PH");  // the army stays
  NewArmy(2);
  EXPECT_FALSE(Ticked("TYPE_IsFantasy"));
}

TEST_F(WindowTest, AnArmyIsVerifiedSavedAndReset) {
  BuyValidArmy();
  Hands.Click("ShowUnitsBtn");
  Hands.Click("VerifyBtn");
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"Army is OK"});
  Hands.Click("ShowSaveFrame");
  Hands.Click("SaveBtn");
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"Army Saved"});
  const std::string saved = Folder.Read("Trebia.army");
  EXPECT_NE(saved.find("numunits=14\r\n"), std::string::npos) << saved;

  Hands.Enter("ArmyName", "Trasimene");
  const QString question = "Do you want to replace the existing Trebia.army file ?";
  Hands.CancelNextMessage();
  Hands.Click("SaveBtn");
  EXPECT_EQ(Hands.TakeMessages(), QStringList{question});
  EXPECT_EQ(Folder.Read("Trebia.army"), saved);
  Hands.Click("QuickSave");
  EXPECT_EQ(Hands.TakeMessages(), (QStringList{question, "Army Saved"}));
  EXPECT_NE(Folder.Read("Trebia.army").find("name=Trasimene\r\n"), std::string::npos);

  Hands.Click("ShowUnitsBtn");
  Hands.Click("ResetArmy");
  EXPECT_EQ(Points(), "400/0 250");
  EXPECT_EQ(Text("Buy(0)") + Text("UnitTotalLabel(0)"), "");
  EXPECT_FALSE(Ticked("LeaderName(4)"));
  Enter("Buy(1)", "2");  // the reset took the unit from the line; it counts for the one shown
  EXPECT_EQ(Points(), "360/40 250");
  EXPECT_EQ(Text("Buy(1)") + Text("UnitTotalLabel(1)"), "240");
  EXPECT_EQ(Work.Army.BaseUnits[2].Bought, 2);
  Hands.Click("VerifyBtn");
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"You must buy at least 4 units of type HI"});
}

/// Runs the event loop while `act` acts. The exit status, -1 when the program just goes on.
int Exec(const std::function<void()>& act) {
  QTimer goesOn;
  goesOn.callOnTimeout([] { QApplication::exit(-1); });
  QTimer::singleShot(0, [&] {
    act();
    goesOn.start(0);
  });
  return QApplication::exec();
}

TEST_F(WindowTest, AnErrorThatNobodyCatchesEndsTheProgram) {
  std::string catalog = "[IMAGES]\ntotal=201\n";
  for (int i = 1; i <= 201; ++i)
    catalog += "image" + std::to_string(i) + "=x.svg,PH,,,x\n";
  Folder.Write("brakka/images_brakka.dat", catalog);
  EXPECT_EQ(Exec([this] { Hands.Click("modOption(1)"); }), 1);
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"Run-time error: Subscript out of range"});
}

TEST_F(WindowTest, AnArmyThatCannotBeSavedStaysWholeOnDisk) {
  BuyValidArmy();
  Hands.Click("QuickSave");
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"Army Saved"});
  const std::string saved = Folder.Read("Trebia.army");
  const FullDisk full;
  EXPECT_EQ(Exec([this] { Hands.Click("QuickSave"); }), 1);
  const QStringList said = Hands.TakeMessages();
  ASSERT_EQ(said.size(), 2);
  EXPECT_TRUE(said[1].startsWith("Run-time error: File ")) << said[1].toStdString();
  EXPECT_TRUE(said[1].contains("Trebia.army cannot be written")) << said[1].toStdString();
  EXPECT_EQ(Folder.Read("Trebia.army"), saved);
}

TEST_F(WindowTest, AnArmyIsPutBackUnderTheWindow) {
  const WorkingArmy none = Work;
  BuyValidArmy();
  const WorkingArmy valid = Work;
  Work = none;  // without the card rows that the army brought
  Form.Refresh();
  ExpectWindowShowsState();
  EXPECT_TRUE(Form.findChild<QWidget*>("SpecBuy(3)")->isHidden());
  Work = valid;
  Form.Refresh();
  Enter("SpecBuy(3)", "1");
  EXPECT_EQ(Work.Army.Command.SpecBuy[3].Tag, "1");
}

TEST_F(WindowTest, AnErrorInACheckStopsWhatWouldFollow) {
  BuyValidArmy();
  Work.Army.Command.SpecCostLabel[0].Caption = "20000";
  Form.Refresh();
  Hands.Enter("SpecBuy(0)", "-2");
  EXPECT_EQ(Exec([this] { Hands.Press(Qt::Key_S, Qt::ControlModifier); }), 1);
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"Run-time error: Overflow"});
  EXPECT_FALSE(Folder.Has("Trebia.army"));
}

TEST_F(WindowTest, AnErrorInADialogEndsTheProgram) {
  BuyValidArmy();
  for (int leader = 5; leader < 8; ++leader) {  // there is no option for an eighth
    Hands.OnDialog([this] {
      Hands.Enter("LeaderName", "Sosylos");
      Hands.Click("Command1");
    });
    EXPECT_EQ(Exec([this] { Hands.Click("LeaderBtn"); }), leader < 7 ? -1 : 1);
  }
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"Run-time error: Subscript out of range"});
}

}  // namespace
}  // namespace tarnwick
