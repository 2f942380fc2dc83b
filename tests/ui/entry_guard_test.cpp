// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <cctype>
#include <functional>
#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include <QLineEdit>

#include "ui_fixture.h"

namespace tarnwick {
namespace {

/// A box that is checked when it is left, on a panel of a valid army.
struct Box {
  const char *Name, *PanelButton, *Refused, *Complaint, *Accepted;
  std::string (*Stored)(const WorkingArmy&);  ///< the line for the army file
  const char *Kept, *Taken;                   ///< after the refused and the accepted entry
  const char *NextBox, *Option;
};

void PrintTo(const Box& box, std::ostream* out) {
  *out << box.Name;
}

std::string Spent(const WorkingArmy& work) {
  return "points=" + std::to_string(work.Army.PointsSpent.Value());
}
std::string Cards(const WorkingArmy& work) {
  return "flank=" + work.Army.Command.SpecBuy[1].Tag;
}
std::string Period(const WorkingArmy& work) {
  return "period=" + work.Header.ArmyPeriod;
}

const Box boxes[] = {
    {"Buy(1)", "ShowUnitsBtn", "5", "You can only buy 4 units", "2", Spent, "points=165",
     "points=185", "Buy(2)", "ViewOption(1)"},
    {"SpecBuy(1)", "ShowCommandBtn", "5", "You can only buy 4 cards", "2", Cards, "flank=0",
     "flank=2", "SpecBuy(2)", "LeaderName(3)"},
    {"FromData", "ShowDetailBtn", "abc", "Please insert a numeric value between 3500 and 0", "300",
     Period, "period=0,0", "period=-300,0", "ToData", "toACBC(1)"},
    {"ToData", "ShowDetailBtn", "4000",
     "Please insert a numeric value between 3500 and 0|the date must be successive to ", "0",
     Period, "period=0,-4000", "period=0,0", "FromData", "FromACBC(1)"}};

struct LeavingABox : WindowTest, testing::WithParamInterface<std::tuple<Box, std::string>> {
  void Leave(const Box& box, const std::string& way) {
    if (way == "Tab") Hands.Press(Qt::Key_Tab);
    if (way == "Backtab") Hands.Press(Qt::Key_Backtab, Qt::ShiftModifier);
    if (way == "Enter") Hands.Press(Qt::Key_Return);
    if (way == "ControlS") Hands.Press(Qt::Key_S, Qt::ControlModifier);
    if (way == "OtherBox") Hands.Click(box.NextBox);
    if (way == "Option") Hands.Click(box.Option);
    if (way == "PanelButton") Hands.Click("ShowSetup");
    if (way == "QuickSave") Hands.Click("QuickSave");
    if (way != "Background") return;
    QWidget* panel = Hands.Find(box.Name).parentWidget();
    while (!panel->objectName().startsWith("EditFrame"))
      panel = panel->parentWidget();
    Hands.ClickAt(*panel, QPoint(3, panel->height() - 3));
  }

  /// Whether what the user wanted beside leaving the box was done.
  bool Done(const Box& box, const std::string& way) {
    if (way == "Background") return box.Stored(Work) == box.Taken;  // it takes no focus
    if (way == "Option") return Ticked(box.Option);
    if (way == "PanelButton") return Hands.Find("EditFrame(6)").isVisible();
    if (Saves(way)) return Folder.Read("Trebia.army").find(box.Taken) != std::string::npos;
    return way.ends_with("ab") ? Focus() != box.Name : Focus() == box.NextBox;
  }

  static bool Saves(const std::string& way) { return way == "QuickSave" || way == "ControlS"; }
  QString Focus() const { return Form.focusWidget() ? Form.focusWidget()->objectName() : ""; }
};

TEST_P(LeavingABox, ChecksTheEntryBeforeAnythingElseHappens) {
  const auto& [box, way] = GetParam();
  BuyValidArmy();
  Hands.Click(box.PanelButton);

  Hands.Enter(box.Name, box.Refused);
  Leave(box, way);
  EXPECT_EQ(Hands.TakeMessages().join("|"), box.Complaint);
  EXPECT_FALSE(Done(box, way));
  EXPECT_FALSE(Folder.Has("Trebia.army"));
  EXPECT_EQ(box.Stored(Work), box.Kept);
  EXPECT_EQ(Focus(), box.Name);
  EXPECT_EQ(Hands.Find<QLineEdit>(box.Name).selectedText(), box.Refused);

  Hands.Type(box.Accepted);  // into the selected text
  EXPECT_EQ(Text(box.Name), box.Accepted);
  Leave(box, way);
  EXPECT_EQ(Hands.TakeMessages().join("|"), Saves(way) ? "Army Saved" : "");
  EXPECT_TRUE(Done(box, way));
  EXPECT_EQ(box.Stored(Work), box.Taken);
}

INSTANTIATE_TEST_SUITE_P(Boxes, LeavingABox,
                         testing::Combine(testing::ValuesIn(boxes),
                                          testing::Values("Tab", "Backtab", "Enter", "OtherBox",
                                                          "Option", "PanelButton", "Background",
                                                          "QuickSave", "ControlS")),
                         [](const auto& test) {
                           std::string name =
                               std::get<0>(test.param).Name + std::get<1>(test.param);
                           std::erase_if(name, [](unsigned char c) { return !std::isalnum(c); });
                           return name;
                         });

TEST_F(WindowTest, ARefusedEntryKeepsTheFocusWhileAnotherWindowIsActive) {
  NewArmy(0);
  Hands.Click("ShowUnitsBtn");
  Hands.Enter("Buy(1)", "5");
  Hands.Click("ViewBtn(0)");  // the click leaves the box
  EXPECT_EQ(Hands.TakeMessages(), QStringList{"You can only buy 4 units"});
  QWidget other;
  other.show();
  for (const char* button : {"ViewOption(1)", "ShowSetup"}) {
    other.activateWindow();
    WindowDriver::Settle();
    ASSERT_FALSE(Form.isActiveWindow());
    Hands.Click(button);
    EXPECT_EQ(Hands.TakeMessages(), QStringList{"You can only buy 4 units"});
    EXPECT_EQ(Form.focusWidget()->objectName(), "Buy(1)");
  }
  EXPECT_FALSE(Ticked("ViewOption(1)") || Hands.Find("EditFrame(6)").isVisible());
}

TEST_F(WindowTest, TheLeaderDialogKeepsARefusedCommand) {
  struct Leaving {
    std::function<void()> Leave;
    bool Defines;
  };
  NewArmy(0);
  Hands.Click("ShowCommandBtn");
  for (const Leaving& way : {Leaving{[this] { Hands.Press(Qt::Key_Tab); }, false},
                             Leaving{[this] { Hands.Click("LeaderName"); }, false},
                             Leaving{[this] { Hands.Click("Command1"); }, true},
                             Leaving{[this] { Hands.Press(Qt::Key_Return); }, true}}) {
    const Int16 before = Work.Army.LeaderCount;
    Hands.OnDialog([&] {
      Hands.Enter("LeaderName", "Sosylos");
      Hands.Choose("InitiativeBox", 2);
      Hands.Choose("CommandBox", 1);
      way.Leave();
      EXPECT_EQ(Hands.TakeMessages(),
                QStringList{"Only leaders with initiative = 7 can have 2 command points"});
      auto* dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr);
      EXPECT_EQ(dialog->focusWidget()->objectName(), "CommandBox");
      EXPECT_EQ(Work.Army.LeaderCount, before);

      Hands.Press(Qt::Key_Home);  // 1
      EXPECT_EQ(Text("leaderCost"), "100");
      way.Leave();
      EXPECT_EQ(QApplication::activeModalWidget() == nullptr, way.Defines);
      if (way.Defines) return;
      EXPECT_NE(dialog->focusWidget()->objectName(), "CommandBox");
    });
    Hands.Click("LeaderBtn");
    EXPECT_EQ(Work.Army.LeaderCount, way.Defines ? before + 1 : before);
  }

  // Giving the leader up asks nothing.
  Hands.OnDialog([&] {
    Hands.Choose("InitiativeBox", 2);
    Hands.Choose("CommandBox", 1);
  });
  Hands.Click("LeaderBtn");
}

}  // namespace
}  // namespace tarnwick
