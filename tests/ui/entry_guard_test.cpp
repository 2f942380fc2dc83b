// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <QLineEdit>

#include "ui_fixture.h"

namespace tarnwick {

/// A box that is checked when it is left, on a panel of a valid army.
struct Box {
  const char *Name, *PanelButton, *Refused, *Complaint, *Accepted, *Saved, *NextBox, *Option;
};

const Box guardedBoxes[] = {
    {"Buy(1)", "ShowUnitsBtn", "5", "You can only buy 4 units", "2", "points=185\r", "Buy(2)",
     "ViewOption(1)"},
    {"SpecBuy(1)", "ShowCommandBtn", "5", "You can only buy 4 cards", "2", "flank=2\r",
     "SpecBuy(2)", "LeaderName(3)"},
    {"FromData", "ShowDetailBtn", "abc", "Please insert a numeric value between 3500 and 0", "300",
     "period=-300,0\r", "ToData", "toACBC(1)"},
    {"ToData", "ShowDetailBtn", "4000",
     "Please insert a numeric value between 3500 and 0|the date must be successive to 0", "0",
     "period=0,0\r", "FromData", "FromACBC(1)"}};

struct EntryGuardTest : WindowTest {
  using Act = std::function<void(const Box&)>;
  using Check = std::function<bool(const Box&)>;

  Act Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    return [=, this](const Box&) { Press(key, modifiers); };
  }
  void ClickBehindAnotherWindow(const QString& name) {
    QWidget other;
    other.show();
    other.activateWindow();
    Settle();
    EXPECT_FALSE(Form.isActiveWindow());
    Click(name);
    Form.activateWindow();
    Settle();
  }
};

TEST_F(EntryGuardTest, ChecksAnEntryBeforeAnythingElseHappens) {
  const auto isIn = [&](const QString& box) {
    return Form.focusWidget() && Form.focusWidget()->objectName() == box;
  };
  const auto left = [&](const Box& box) { return !isIn(box.Name); };
  const auto next = [&](const Box& box) { return isIn(box.NextBox); };
  const auto ticked = [&](const Box& box) { return Ticked(box.Option); };
  const auto setup = [&](const Box&) { return Sees("EditFrame(6)"); };
  const auto entered = [&](const Box& box) { return Text(box.Name) == box.Accepted; };
  const auto saved = [&](const Box& box) {
    return Folder.Read("Trebia.army").find(box.Saved) != std::string::npos;
  };
  // A way to leave a box, and whether what the user wanted by it was done.
  const std::tuple<const char*, Act, Check> ways[] = {
      {"Tab", Key(Qt::Key_Tab), left},
      {"Backtab", Key(Qt::Key_Tab, Qt::ShiftModifier), left},
      {"Return", Key(Qt::Key_Return), next},
      {"Enter", Key(Qt::Key_Enter), next},
      {"box", [&](auto& box) { Click(box.NextBox); }, next},
      {"option", [&](auto& box) { Click(box.Option); }, ticked},
      {"behind", [&](auto& box) { ClickBehindAnotherWindow(box.Option); }, ticked},
      {"panel", [&](auto&) { Click("ShowSetup"); }, setup},
      {"background", [&](auto&) { ClickAt(Form, Form.rect().bottomRight()); }, entered},
      {"QuickSave", [&](auto&) { Click("QuickSave"); }, saved},
      {"shortcut", Key(Qt::Key_S, Qt::ControlModifier), saved}};
  LoadTrebia();
  Click("ShowDetailBtn");
  Fill({{"FromData", "0"}, {"ToData", "0"}});
  const WorkingArmy valid = Work;
  for (const Box& box : guardedBoxes) {
    for (const auto& [way, leave, done] : ways) {
      SCOPED_TRACE(std::string(box.Name) + " by " + way);
      std::filesystem::remove(Folder / "Trebia.army");
      Work = valid;
      Form.Refresh();
      Click(box.PanelButton);
      Enter(box.Name, box.Refused);
      Click(box.Name);  // moves the caret
      leave(box);
      EXPECT_EQ(TakeMessages().join("|"), box.Complaint);
      EXPECT_FALSE(done(box) || Folder.Has("Trebia.army"));
      ASSERT_TRUE(isIn(box.Name));
      EXPECT_EQ(Find<QLineEdit>(box.Name).selectedText(), box.Refused);
      EXPECT_FALSE(Find(box.Name).acceptDrops()) << "nobody would leave the box";

      Type(box.Accepted);  // into the selected text
      EXPECT_EQ(Text(box.Name), box.Accepted);
      leave(box);
      EXPECT_TRUE(done(box));
      if (!Folder.Has("Trebia.army")) Click("QuickSave");
      EXPECT_EQ(TakeMessages(), QStringList{"Army Saved"});
      EXPECT_TRUE(saved(box));
    }
  }
}

TEST_F(EntryGuardTest, EscapeTakesAnEntryBackOrLeavesTheBox) {
  LoadTrebia();
  Click("ShowDetailBtn");
  Fill({{"FromData", "0"}, {"ToData", "0"}});
  const auto left = [&] { return Form.focusWidget()->objectName().startsWith("EditFrame"); };
  for (const Box& box : guardedBoxes) {
    SCOPED_TRACE(box.Name);
    Click(box.PanelButton, box.Name);
    const WorkingArmy valid = Work;
    Enter(box.Name, box.Refused);
    Click(box.Option);
    EXPECT_EQ(TakeMessages().join("|"), box.Complaint);
    ClickBehindAnotherWindow(box.Name);
    for (const bool again : {false, true}) {
      Press(Qt::Key_Escape);
      EXPECT_TRUE(Work == valid && left() == again);
    }
  }
  Click("ShowUnitsBtn");
  Enter("Buy(1)", "2");
  Press(Qt::Key_1, Qt::ControlModifier);  // which has it checked
  Type("3");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Work.Army.Units.Buy[1].Text, "2");
  Press(Qt::Key_R, Qt::AltModifier);  // empties the box that has the focus
  Press(Qt::Key_Escape);
  EXPECT_EQ(Work.Army.Units.Buy[1].Text, "");
  Click("ShowDetailBtn", "FromData");  // which is refused as it is
  Press(Qt::Key_Escape);
  EXPECT_TRUE(left());
  Enter("ArmyDesc", "In ambush");
  Press(Qt::Key_Escape);
  EXPECT_TRUE(left() && Work.Header.ArmyDescription == "In ambush");
  Click("ShowSaveFrame");
  Enter("ArmyName", "Mago");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Work.Army.Management.ArmyName.Text, "Hannibal at the Trebia");
}

}  // namespace tarnwick
