// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QTest>

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
class Application : public testing::Environment {
 public:
  void SetUp() override {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(argc_, argv_);
    ApplyStyle();
  }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  char name_[9] = "ui_tests";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

inline testing::Environment* const application = testing::AddGlobalTestEnvironment(new Application);

/// A program folder with the shipped catalogs; the tests save their own armies.
struct ShippedFolder {
  ShippedFolder() {
    std::filesystem::copy(SHIPPED_DATA, Folder.Path(), std::filesystem::copy_options::recursive);
    for (const char* army : {"Alesia.army", "Chaironeia.army", "Kadesh.army", "Trebia.army"})
      std::filesystem::remove(Folder / army);
  }

  TempFolder Folder;
};

/// The started editor in a program folder of its own. Every test ends with a look at whether the
/// window shows the state and whether a message was overlooked.
struct WindowTest : testing::Test, ShippedFolder, Editor {
  WindowTest() : Editor(Folder.Path()) {}

  void SetUp() override {
    ASSERT_TRUE(Form.Start());
    Form.resize(1280, 800);
    Form.show();
    WindowDriver::Settle();
  }

  void TearDown() override {
    EXPECT_EQ(Hands.TakeMessages(), QStringList());
    if (!HasFatalFailure()) ExpectWindowShowsState();
  }

  /// "Carthage in Italy", "Kingdom of Pontos", "Tribes of Gaul".
  void NewArmy(int row) {
    Hands.OnDialog([this, row] { Hands.ClickEntry("ArmyList", row, true); });
    Hands.Click("ShowSaveFrame");
    Hands.Click("NewArmyBtn");
  }

  /// Clicks twice below the entries of the list "ArmyList".
  void DoubleClickBelowArmies() {
    const auto& list = Hands.Find<QListWidget>("ArmyList");
    const QPoint empty(9, list.viewport()->height() - 9);
    ASSERT_EQ(list.itemAt(empty), nullptr);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, empty);
  }

  /// Enters a quantity, year or name and leaves the box.
  void Enter(const QString& box, const QString& text) {
    Hands.Enter(box, text);
    Hands.Press(Qt::Key_Tab);
  }

  /// Carthage with the cheapest leader and just what its limits ask for, 165 of 400 points and 40
  /// of 250 command points; to be saved as Trebia.army.
  void BuyValidArmy() {
    NewArmy(0);
    Hands.Enter("ArmyFileName", "Trebia");
    Hands.Click("ShowUnitsBtn");
    Enter("Buy(0)", "4");
    Enter("Buy(1)", "1");
    Enter("Buy(6)", "3");
    Enter("Buy(11)", "3");
    Hands.Click("ViewOption(1)");
    Enter("Buy(3)", "3");
    Hands.Click("ViewOption(0)");
    Hands.Click("ShowCommandBtn");
    Hands.Click("LeaderName(4)");
  }

  /// What a label, button, box or frame says.
  QString Text(const QString& name) const {
    const QWidget& widget = Hands.Find(name);
    for (const char* property : {"text", "title", "plainText", "currentText"}) {
      if (widget.property(property).isValid()) return widget.property(property).toString();
    }
    return "<no text>";
  }

  bool Ticked(const QString& name) const { return Hands.Find<QAbstractButton>(name).isChecked(); }

  /// "left/spent" of the army points, and the command points.
  std::string Points() const {
    const ArmyState& army = Work.Army;
    return std::to_string(army.PointsLeft.Value()) + "/" +
           std::to_string(army.PointsSpent.Value()) + " " + std::to_string(army.CommandPts.Value());
  }

  void ExpectWindowShowsState() const;

  WindowDriver Hands;

 private:
  void ExpectShown(const QString& name, const std::string& text, bool visible) const {
    const bool marks = qobject_cast<QAbstractButton*>(&Hands.Find(name)) != nullptr;
    EXPECT_EQ(Text(name), marks ? ButtonText(text) : ToQt(text)) << name.toStdString();
    EXPECT_EQ(Hands.Find(name).isHidden(), !visible) << name.toStdString();
  }

  template <typename Array>
  void ExpectCaptions(const char* array, const Array& controls, int count) const {
    for (int i = 0; i < count; ++i) {
      ExpectShown(ElementName(array, i), controls[i].Caption, controls[i].Visible);
    }
  }

  template <typename Array>
  void ExpectOptions(const char* array, const Array& options, int count) const {
    ExpectCaptions(array, options, count);
    for (int i = 0; i < count; ++i) {
      EXPECT_EQ(Ticked(ElementName(array, i)), options[i].Value) << array << i;
    }
  }
};

inline void WindowTest::ExpectWindowShowsState() const {
  const ArmyState& army = Work.Army;
  const UnitsPanel& units = army.Units;
  EXPECT_EQ(Form.windowTitle(), ToQt(army.Title));
  const std::pair<const char*, const UnitsPanel::Column<Label>*> columns[] = {
      {"TypeLabel", &units.TypeLabel},       {"ClassLabel", &units.ClassLabel},
      {"TQLabel", &units.TQLabel},           {"SizeLabel", &units.SizeLabel},
      {"MissileLabel", &units.MissileLabel}, {"CostLabel", &units.CostLabel},
      {"MaxLabel", &units.MaxLabel},         {"UnitTotalLabel", &units.UnitTotalLabel},
      {"specLabel", &units.specLabel}};
  for (const auto& [name, column] : columns)
    ExpectCaptions(name, *column, 23);
  ExpectCaptions("TypeLimit", units.TypeLimit, 7);
  ExpectCaptions("MinLimit", units.MinLimit, 7);
  for (int k = 0; k < 23; ++k) {
    ExpectShown(ElementName("Buy", k), units.Buy[k].Text, units.Buy[k].Visible);
    ExpectShown(ElementName("ImageName", k), units.ImageName[k].Text(), units.ImageName[k].Visible);
    EXPECT_EQ(Hands.Find(ElementName("ViewBtn", k)).isHidden(), !units.ViewBtn[k].Visible) << k;
  }
  ExpectShown("TotalCost", units.TotalCost.Caption, true);
  ExpectShown("TQinfo", units.TQinfo.Caption, true);
  ExpectShown("LeaderFrame", army.Command.LeaderFrame.Caption, true);
  ExpectOptions("ViewOption", units.ViewOption, 3);
  ExpectOptions("LeaderName", army.Command.LeaderName, 7);
  ExpectOptions("modOption", army.Management.modOption, 2);
  ExpectOptions("FromACBC", Work.Header.FromACBC, 2);
  ExpectOptions("toACBC", Work.Header.toACBC, 2);
  const int cards = army.Command.SpecNameLabel.Count();
  ExpectCaptions("SpecNameLabel", army.Command.SpecNameLabel, cards);
  ExpectCaptions("SpecCostLabel", army.Command.SpecCostLabel, cards);
  ExpectCaptions("SpecMaxLabel", army.Command.SpecMaxLabel, cards);
  for (int j = 0; j < army.Command.SpecBuy.Count(); ++j) {
    ExpectShown(ElementName("SpecBuy", j), army.Command.SpecBuy[j].Text,
                army.Command.SpecBuy[j].Visible);
  }
  ExpectShown("ArmyName", army.Management.ArmyName.Text, true);
  ExpectShown("ArmyFileName", army.Management.ArmyFileName.Text, true);
  ExpectShown("FromData", Work.Header.FromData.Text, true);
  ExpectShown("ToData", Work.Header.ToData.Text, true);
  ExpectShown("ArmyDesc", Work.Header.ArmyDesc.Text, true);
  EXPECT_EQ(Ticked("TYPE_IsFantasy"), Work.Header.TYPE_IsFantasy.Value);
  ExpectShown("ArmyPts", Work.Field.Terrain.ArmyPts.Caption, true);
  ExpectShown("CommandPts", Work.Field.Terrain.CommandPts.Caption, true);
  ExpectCaptions("unit", Work.Field.Setup.unit, 9);
  for (int i = 0; i < 9; ++i) {
    Hands.Find(ElementName("assignBtn", i));
    Hands.Find(ElementName("Area", i));
    Hands.Find(ElementName("TerrImg", i % 6));
  }
  ExpectShown("description", Work.Field.Setup.description.Text, true);
}

}  // namespace tarnwick
