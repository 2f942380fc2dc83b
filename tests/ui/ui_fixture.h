// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include "support/temp_folder.h"
#include "ui/editor.h"
#include "ui/parts/application_style.h"
#include "ui/parts/qt_text.h"
#include "window_driver.h"

inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << qPrintable(text) << '"';
}

namespace tarnwick {

/// The one application of the test program, without a display unless it is given one.
struct Application : testing::Environment {
  void SetUp() override {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    Qt = std::make_unique<QApplication>(ArgumentCount, Arguments);
    ApplyStyle();
  }
  void TearDown() override { Qt.reset(); }

  int ArgumentCount = 1;
  char Name[9] = "ui_tests", *Arguments[2] = {Name, nullptr};
  std::unique_ptr<QApplication> Qt;
};
inline testing::Environment* const application = testing::AddGlobalTestEnvironment(new Application);

/// What a user enters, and where; or does, and sees.
using Pairs = std::initializer_list<std::pair<const char*, const char*>>;

/// A program folder with the shipped catalogs and one army.
struct ShippedFolder {
  ShippedFolder() {
    Folder.Copy(SHIPPED_DATA);
    for (const std::string& file : Folder.Files())
      if (file.ends_with(".army")) std::filesystem::remove(Folder / file);
    std::filesystem::copy(TEST_DATA "/Trebia.army", Folder.Path());
  }
  TempFolder Folder;
};

/// The controls have the names that the state has for them.
#define EXPECT_SHOWN(...) ExpectShown(#__VA_ARGS__, __VA_ARGS__)

/// The started editor in a program folder of its own. Every test ends with a look at whether the
/// window shows the state, whether a message was overlooked and every scripted answer used.
struct WindowTest : testing::Test, ShippedFolder, Editor, WindowDriver {
  WindowTest() : Editor(Folder.Path()) {}

  void SetUp() override {
    OnSight([this](QWidget& window) {
      const auto* box = qobject_cast<QMessageBox*>(&window);
      if (box == nullptr) return;
      EXPECT_EQ(box->windowTitle(), "Velmora Tarnwick");
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      const bool asksToSave = box->button(QMessageBox::Ok) == nullptr;
      EXPECT_EQ(box->defaultButton(),
                box->button(asksToSave ? QMessageBox::Save : QMessageBox::Ok));
      EXPECT_EQ(box->icon() == QMessageBox::Critical, box->text().startsWith("Run-time error: "));
      const auto* entry = qobject_cast<QLineEdit*>(Form.focusWidget());
      if (entry != nullptr && box->parentWidget() == &Form) {
        const QRect row(0, entry->mapToGlobal(QPoint()).y(), 9999, entry->height());
        EXPECT_FALSE(box->frameGeometry().intersects(row)) << entry->objectName().toStdString();
      }
    });
    // After an error in the test before no dialog would stay open until a program begins anew.
    QTimer::singleShot(0, qApp, [] { QCoreApplication::quit(); });
    QApplication::exec();
    ASSERT_TRUE(Form.Start());
    Form.resize(1280, 800);
    Form.show();
    // With its first paint come the panels behind.
    ASSERT_TRUE(QTest::qWaitFor([this] { return Form.findChild<QWidget*>("EditFrame(0)"); }));
    Settle();
  }

  void TearDown() override {
    EXPECT_EQ(TakeMessages(), QStringList());
    if (!HasFatalFailure()) ExpectWindowShowsState();
  }

  /// "Carthage in Italy", "Kingdom of Pontos", "Tribes of Gaul".
  void NewArmy(int row) {
    OnDialog([this, row] { ClickEntry("ArmyList", row, true); });
    Click("ShowSaveFrame", "NewArmyBtn");
  }

  /// Enters quantities, years or names and leaves the boxes.
  void Fill(const Pairs& texts) {
    for (const auto& [box, text] : texts) {
      Enter(box, text);
      Press(Qt::Key_Tab);
    }
  }

  /// Carthage with the cheapest leader, a card and just what its limits ask for: 235 of 400 army
  /// points and 200 of 250 command points are free.
  void LoadTrebia() { Load("Trebia"); }
  void Load(const QString& army) {
    OnDialog([this, army] { ClickEntry("ArmyList", army, true); });
    Click("ShowSaveFrame", "LoadBtn");
  }

  void ExpectWindowShowsState() const {
    const ArmyState& army = Work.Army;
    EXPECT_EQ(Form.windowTitle(), ToQt(army.Title));
    for (const auto& [button, panel] : PanelButtons) {
      const bool front = army.EditFrame.Front == panel;
      EXPECT_EQ(Sees(ElementName("EditFrame", static_cast<int>(panel))), front) << button;
      EXPECT_EQ(Ticked(button), front) << button;
    }
    const UnitsPanel& grid = army.Units;
    EXPECT_SHOWN(grid.TypeLabel, grid.ClassLabel, grid.TQLabel, grid.SizeLabel, grid.MissileLabel,
                 grid.CostLabel, grid.MaxLabel, grid.Buy, grid.UnitTotalLabel, grid.ImageName,
                 grid.specLabel, grid.ViewBtn, grid.ViewOption, grid.TypeLimit, grid.MinLimit,
                 grid.TotalCost, grid.TQinfo);
    const CommandPanel& command = army.Command;
    EXPECT_SHOWN(command.LeaderFrame, command.LeaderName, command.SpecNameLabel,
                 command.SpecCostLabel, command.SpecMaxLabel, command.SpecBuy);
    const ArmyHeader& header = Work.Header;
    EXPECT_SHOWN(header.ArmyDesc, header.HistoricTab.Visible, header.FromACBC, header.toACBC,
                 header.FromData, header.ToData, header.TYPE_IsPersonal, header.TYPE_IsFantasy,
                 header.TribalCheck, header.Ferocity, header.Mobility, header.LongSword, header.FOW,
                 header.Discipline);
    EXPECT_SHOWN(army.Management.modOption, army.Management.ArmyName, army.Management.ArmyFileName,
                 army.Monster.M_Size, army.Monster.M_TQ, army.Monster.M_Type);
    const SetupPanel& setup = Work.Field.Setup;
    EXPECT_SHOWN(Work.Field.Terrain.ArmyPts, Work.Field.Terrain.CommandPts, setup.setupList,
                 setup.setupFramePanel.Visible, setup.description, setup.unit, setup.unitList);
  }

  static constexpr std::pair<const char*, Panel> PanelButtons[] = {
      {"ShowUnitsBtn", Panel::Units},   {"ShowCommandBtn", Panel::Command},
      {"ShowDetailBtn", Panel::Detail}, {"ShowTerrainBtn", Panel::Terrain},
      {"ShowSetup", Panel::Setup},      {"ShowSaveFrame", Panel::Management}};

 private:
  template <typename... Controls>
  void ExpectShown(const QString& names, const Controls&... controls) const {
    const QStringList name = names.split(QRegularExpression(",\\s*"));
    qsizetype i = 0;
    (ExpectShows(QString(name[i++]).remove(".Visible").section('.', -1), controls), ...);
  }

  template <typename Control, int Last>
  void ExpectShows(const QString& name, const Table<Control, 0, Last>& array) const {
    for (int i = 0; i <= Last; ++i)
      ExpectShows(ElementName(name.toLatin1(), i), array[i]);
  }
  template <typename Control>
  void ExpectShows(const QString& name, const ControlArray<Control>& array) const {
    for (int i = 0; i < array.Count(); ++i)
      ExpectShows(ElementName(name.toLatin1(), i), array[i]);
    EXPECT_LE(Rows(name), array.Count());
  }
  void ExpectShows(const QString& name, bool visible) const {
    EXPECT_EQ(!FindHidden(name).isHidden(), visible) << name.toStdString();
  }
  template <typename Control>
  void ExpectShows(const QString& name, const Control& control) const {
    const QWidget& widget = FindHidden(name);
    const bool label = qobject_cast<const QLabel*>(&widget) != nullptr;
    const auto expect = [&](const auto& shown, const auto& held) {
      EXPECT_EQ(shown, held) << name.toStdString();
    };
    if constexpr (requires { control.Visible; }) ExpectShows(name, control.Visible);
    if constexpr (requires { control.Value; }) expect(Ticked(widget), control.Value);
    if constexpr (requires { control.Text.size(); }) expect(TextOf(widget), ToQt(control.Text));
    if constexpr (requires { control.Caption; } && !std::is_same_v<Control, Button>) {
      expect(TextOf(widget), ToQt(control.Caption));
    }
    if constexpr (requires { control.ForeColor; }) {
      const bool blue = widget.palette().color(widget.foregroundRole()) == QColor(0x55, 0x55, 0xFF);
      if (label) expect(blue, control.ForeColor == Colour::LightBlue);
    }
    if constexpr (requires { control.Entries; }) {
      QStringList texts;
      for (const ListEntry& entry : control.Entries)
        texts.append(ToQt(entry.Text));
      expect(EntriesOf(widget), std::pair(texts, control.ListIndex));
    }
  }
};

}  // namespace tarnwick
