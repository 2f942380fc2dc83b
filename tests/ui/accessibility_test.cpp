// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <map>
#include <set>

#include <QAccessible>
#include <QScrollArea>

#include "ui_fixture.h"

namespace tarnwick {

/// What the user sees of a window and can work.
inline QList<QWidget*> ControlsOf(const QWidget& window) {
  auto controls = window.findChildren<QWidget*>();
  controls.removeIf([](const QWidget* widget) {
    const bool button = widget->inherits("QAbstractButton");
    return !widget->isVisible() || (widget->focusPolicy() == Qt::NoFocus && !button);
  });
  return controls;
}

/// What a screen reader calls a control. A drop-down list goes by its entry; what it is for is said
/// by its label or description.
inline QString HeardName(QWidget& control) {
  const auto* spoken = QAccessible::queryAccessibleInterface(&control);
  if (spoken->role() != QAccessible::ComboBox) return spoken->text(QAccessible::Name);
  const auto labels = spoken->relations(QAccessible::Label);
  return labels.isEmpty() ? spoken->text(QAccessible::Description)
                          : labels.front().first->text(QAccessible::Name);
}

struct AccessibilityTest : WindowTest {
  /// Each panel of an army, with a setup, and each dialog.
  void SeeAll(const std::function<void(QWidget&)>& see) {
    const auto seeDialog = [&](const char* button, const char* dialog) {
      OnDialog([&see, dialog, this] {
        see(Find(dialog));
        CloseDialog();
      });
      Click(button);
    };
    LoadTrebia();
    // Nobody gets out of an empty year box.
    Work.Header.FromData.Text = Work.Header.ToData.Text = "200";
    for (const auto& [button, panel] : PanelButtons) {
      Click(button);
      if (panel == Panel::Setup) Click("Command6");
      see(Form);
    }
    seeDialog("LoadBtn", "ArmyListForm");
    Click("ShowSaveFrame");
    seeDialog("NewArmyBtn", "ArmySelectionForm");
    LoadTrebia();
    Click("ShowCommandBtn");
    seeDialog("LeaderBtn", "LeaderMgmtForm");
    Click("ShowUnitsBtn");
    seeDialog("specLabel(0)", "specForm");
    Click("GuideBtn");
    see(Find("GuideForm"));
  }
  QString Spoken(const QString& name) const { return Find(name).accessibleName(); }
};

TEST_F(AccessibilityTest, EveryControlHasANameOfItsOwn) {
  SeeAll([](const QWidget& window) {
    std::map<std::pair<QAccessible::Role, QString>, QString> known;
    for (QWidget* control : ControlsOf(window)) {
      const QString name = HeardName(*control);
      EXPECT_FALSE(name.trimmed().isEmpty()) << control->objectName().toStdString();
      QString& other = known[{QAccessible::queryAccessibleInterface(control)->role(), name}];
      EXPECT_EQ(other, "") << name.toStdString();
      other = control->objectName();
    }
  });
}

TEST_F(AccessibilityTest, NamesSayWhichOneItIs) {
  LoadTrebia();
  Click("ShowUnitsBtn");
  EXPECT_EQ(Spoken("Buy(0)"), "Buy HI TQ 6 Sz 4, at most 8");
  EXPECT_EQ(Spoken("specLabel(0)"), "Special abilities of HI TQ 6 Sz 4");
  UnitsPanel& grid = Work.Army.Units;
  for (const auto column : {&UnitsPanel::TypeLabel, &UnitsPanel::ClassLabel, &UnitsPanel::TQLabel,
                            &UnitsPanel::SizeLabel, &UnitsPanel::MissileLabel})
    (grid.*column)[1] = (grid.*column)[0];
  Form.Refresh();
  EXPECT_EQ(Spoken("ViewBtn(1)"), "View HI TQ 6 Sz 4, line 2");
  Click("ShowCommandBtn");
  EXPECT_EQ(Spoken("SpecBuy(0)"), "Buy RALLY, at most 4");
  Click("ShowTerrainBtn", "TerrImg(3)", "Area(4)");
  EXPECT_EQ(Spoken("TerrImg(1)"), "Slope 30ap/5cp");
  EXPECT_EQ(Spoken("Area(4)"), "Area 5: Wood");
  Click("ShowSetup", "Command6");
  EXPECT_EQ(Spoken("unit(3)"), "Centre 2: empty");
  ClickEntry("unitList", 0);
  Click("assignBtn(3)");
  EXPECT_EQ(Spoken("unit(3)"), "Centre 2: " + Text("unit(3)"));
}

TEST_F(AccessibilityTest, EachMarkedLetterStandsForOneThing) {
  SeeAll([](const QWidget& window) {
    std::set<QString> letters;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
      const auto* label = qobject_cast<const QLabel*>(widget);
      const char* text = widget->inherits("QGroupBox") ? "title" : "text";
      const bool marks =
          label ? label->buddy() != nullptr : widget->inherits("QAbstractButton") || text[1] == 'i';
      if (!marks || !widget->isVisible()) continue;
      const QString letter = QKeySequence::mnemonic(widget->property(text).toString()).toString();
      EXPECT_TRUE(letter.isEmpty() || letters.insert(letter).second) << letter.toStdString();
    }
    EXPECT_GT(letters.size(), 0U);
  });
}

TEST_F(AccessibilityTest, TabGoesThroughAllInTheOrderOfReading) {
  SeeAll([this](QWidget& window) {
    QList<QWidget*> reached;
    const auto top = [&window](const QWidget* one) { return one->mapTo(&window, QPoint()); };
    int backwards = 0;
    for (QWidget* now = window.focusWidget(); !reached.contains(now); now = window.focusWidget()) {
      const QPoint before = reached.empty() ? QPoint() : top(reached.back());
      const bool on = top(now).x() > before.x() || top(now).y() > before.y();
      if (!on && ++backwards > 1)  // once, from the last to the first
        ADD_FAILURE() << reached.back()->objectName().toStdString() << " leads to "
                      << now->objectName().toStdString();
      reached.append(now);
      Press(Qt::Key_Tab);
    }
    for (const QWidget* one : ControlsOf(window)) {
      const bool takes = one->isEnabled() && (one->focusPolicy() & Qt::TabFocus);
      EXPECT_EQ(reached.contains(one), takes) << one->objectName().toStdString();
    }
  });
}

TEST(SmallScreen, EveryControlCanBeReached) {
  const QFont usual = QApplication::font();
  for (const int points : {usual.pointSize(), 11, 12}) {
    QFont font = usual;
    font.setPointSize(points);
    QApplication::setFont(font);
    const ShippedFolder shipped;
    Editor editor(shipped.Folder.Path());
    WindowDriver user;
    ASSERT_TRUE(editor.Form.Start());
    editor.Form.show();
    user.OnDialog([&user] { user.ClickEntry("ArmyList", "Trebia", true); });
    user.Click("ShowSaveFrame", "LoadBtn");
    for (const QSize size : {QSize(1092, 614), QSize(910, 512), QSize(960, 540)}) {
      editor.Form.resize(size);
      for (const auto& [button, panel] : WindowTest::PanelButtons) {
        user.Click(button);
        EXPECT_EQ(editor.Form.size(), size) << button << points;
        for (const QWidget* control : ControlsOf(editor.Form)) {
          const QWidget* seen = control;
          for (const QWidget* part = control; part != nullptr; part = part->parentWidget())
            if (part->inherits("QScrollArea")) seen = part;
          const QRect place(seen->mapTo(&editor.Form, QPoint()), seen->size());
          EXPECT_TRUE(editor.Form.rect().contains(place))
              << control->objectName().toStdString() << points;
        }
      }
    }
  }
  QApplication::setFont(usual);
}

}  // namespace tarnwick
