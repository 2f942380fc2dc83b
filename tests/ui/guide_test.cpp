// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <QTextBrowser>

#include "ui_fixture.h"

namespace tarnwick {

struct GuideTest : WindowTest {
  QString Section() const { return Find<QTextBrowser>("GuideText").source().fileName(); }
};

TEST_F(GuideTest, OpensAtThePanelInFrontAndLeavesTheArmyAlone) {
  std::filesystem::copy(SHIPPED_DATA "/../docs/guide", Folder / "guide");
  Press(Qt::Key_F1);
  EXPECT_EQ(Section(), "first-army.md") << "there is no army yet";
  const QWidget& guide = Find("GuideForm");
  Press(Qt::Key_Escape);
  LoadTrebia();
  const char* const sections[] = {"units.md",   "leaders.md", "description.md",
                                  "terrain.md", "setups.md",  "saving.md"};
  for (int i = 0; const auto& [button, panel] : PanelButtons) {
    Click(button);
    Press(Qt::Key_F1);
    EXPECT_EQ(Section(), sections[i++]);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(guide.isVisible());
  }

  Click("ShowUnitsBtn");
  Enter("Buy(1)", "99");
  const auto state = [this] { return std::tuple(Work, Text("Buy(1)"), Find("UndoBtn").toolTip()); };
  const auto before = state();
  Press(Qt::Key_F1);
  for (const auto& [key, modifiers, section] : {std::tuple(Qt::Key_C, Qt::AltModifier, "units.md"),
                                                {Qt::Key_Down, {}, "codes.md"},
                                                {Qt::Key_End, {}, "trouble.md"},
                                                {Qt::Key_Left, Qt::AltModifier, "codes.md"}}) {
    Press(key, modifiers);
    EXPECT_EQ(Section(), section);
  }
  const auto [titles, row] = EntriesOf(Find("GuideContents"));
  EXPECT_EQ(titles[row], "What the codes mean");
  for (const QString& title : titles) {
    ClickEntry("GuideContents", title);
    EXPECT_TRUE(Text("GuideText").startsWith(title + "\n")) << title.toStdString();
  }
  Press(Qt::Key_Escape);
  Click("GuideBtn");
  Form.activateWindow();
  Settle();
  EXPECT_TRUE(state() == before);
  Press(Qt::Key_Escape);
  EXPECT_EQ(Text("Buy(1)"), "1") << "the box was not left";
}

TEST_F(GuideTest, SaysThatItIsNotThere) {
  Click("GuideBtn");
  const QString file = QString::fromStdString((Folder / "guide/first-army.md").string());
  EXPECT_EQ(Text("GuideText"), "The guide is not there: " + file);
}

}  // namespace tarnwick
