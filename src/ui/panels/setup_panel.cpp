// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/setup_panel.h"

#include <map>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "armyfile/warnings.h"
#include "battlefield/setups.h"
#include "rules/unit_grid.h"
#include "ui/parts/entry_list.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/unit_pictures.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

constexpr QSize thumbnailSize(24, 24);

}  // namespace

SetupPanelWidget::SetupPanelWidget(Session& session) : PanelWidget(Panel::Setup, "Setup", session) {
  auto* warning = NewWarning("SetupWarning", this);
  bindings_.Add([this, warning] { ShowWarning(warning, SetupWarning(work_)); });
  Body()->addWidget(warning);
  auto* row = new QHBoxLayout;
  row->setSpacing(18);
  row->addWidget(NewSetupList());
  row->addWidget(NewSetupFrame(), 1);
  row->addStretch();
  Body()->addLayout(row, 1);
}

QWidget* SetupPanelWidget::NewSetupList() {
  auto* side = new QWidget(this);
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  setups_ = new EntryList("setupList", side);
  auto* create = Named(new QPushButton("&New Setup", side), "Command6");
  auto* remove = Named(new QPushButton("D&elete Setup", side), "Command3");
  setups_->setAccessibleName("Setups");
  layout->addWidget(setups_, 1);
  layout->addWidget(create);
  layout->addWidget(remove);
  side->setFixedWidth(TextWidth(side, 15));

  bindings_.Add(setups_, field_.Setup.setupList);
  const auto choose = [this] { setupList_Click(field_, army_, disk_); };
  session_.Connect(setups_, &QListWidget::itemSelectionChanged, choose);
  // An entry that is selected already shows its setup again, as after the panel hid it.
  session_.Connect(setups_, &QListWidget::itemClicked, choose);
  session_.Connect(setups_, &QListWidget::itemActivated, choose);
  session_.Connect(create, Step("New Setup"), [this] { Command6_Click(field_, army_, disk_); });
  connect(create, &QPushButton::clicked, this, [this] { units_->setFocus(); });
  session_.Connect(remove, [this] { Command3_Click(army_); });
  return side;
}

QWidget* SetupPanelWidget::NewSetupFrame() {
  auto* frame = Named(new QWidget(this), "setupFramePanel");
  auto* layout = new QGridLayout(frame);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setHorizontalSpacing(18);
  layout->addWidget(NewZone(0, "Left", 0, 1, frame), 0, 0);
  layout->addWidget(NewZone(1, "Centre", 2, 6, frame), 1, 0);
  layout->addWidget(NewZone(2, "Right", 7, 8, frame), 2, 0);
  layout->addLayout(NewUnitList(frame), 0, 1, 5, 1);
  auto* label = NewLabel("Label1(3)", "Descri&ption", frame);
  layout->addWidget(label, 3, 0);
  auto* length = NewWarning("descriptionWarning", frame);
  length->setAlignment(Qt::AlignRight);
  layout->addWidget(length, 3, 0);
  auto* description = NewDescriptionBox("description", 2, frame);
  label->setBuddy(description);
  layout->addWidget(description, 4, 0);
  layout->setRowStretch(4, 1);
  layout->setColumnStretch(0, 1);

  bindings_.AddVisible(frame, field_.Setup.setupFramePanel.Visible);
  bindings_.Add(description, field_.Setup.description);
  bindings_.Add(
      [this, length] { ShowWarning(length, LengthWarning(field_.Setup.description.Text, 2)); });
  session_.Connect(description, Step("Setup description"),
                   [this] { description_Change(field_, army_, disk_); });
  return frame;
}

QLayout* SetupPanelWidget::NewUnitList(QWidget* parent) {
  auto* hint = NewHint("", "1 to 9, or Enter", parent);
  units_ = bindings_.Add(new EntryList("unitList", parent), field_.Setup.unitList);
  units_->setMinimumWidth(TextWidth(units_, 28));
  units_->setIconSize(thumbnailSize);
  units_->setAccessibleName("Units to deploy");
  units_->setDragEnabled(true);
  session_.Connect(units_, &QListWidget::itemSelectionChanged, [] {});
  units_->OnKey([this](const QKeyEvent& key) { return DeployByKey(key); });
  connect(units_, &QListWidget::itemDoubleClicked, this,
          [this] { Deploy(units_->NextRow(), FirstFreePlace(field_.Setup)); });
  auto* heading = new QHBoxLayout;
  heading->addWidget(NewHeading("", "Units to deploy", parent), 1);
  heading->addWidget(hint);
  auto* layout = new QVBoxLayout;
  layout->addLayout(heading);
  layout->addWidget(units_, 1);
  return layout;
}

QWidget* SetupPanelWidget::NewZone(int index, const char* caption, int firstPlace, int lastPlace,
                                   QWidget* parent) {
  auto* zone = new QFrame(parent);
  zone->setFrameStyle(QFrame::StyledPanel);
  auto* layout = new QGridLayout(zone);
  layout->setVerticalSpacing(2);
  auto* name = NewLabel(ElementName("Label1", index), caption, zone);
  name->setMinimumWidth(TextWidth(name, 7));
  layout->addWidget(name, 0, 0);
  for (int place = firstPlace; place <= lastPlace; ++place) {
    const int row = place - firstPlace;
    AddPlace(place, QString("%1 %2").arg(caption).arg(row + 1), layout, row, zone);
  }
  layout->setColumnStretch(4, 1);
  return zone;
}

void SetupPanelWidget::AddPlace(int place, const QString& spoken, QGridLayout* layout, int row,
                                QWidget* zone) {
  auto* number = NewHint("", QString::number(place + 1), zone);
  auto* assign = Named(new QPushButton("<->", zone), ElementName("assignBtn", place));
  assign->setFixedWidth(TextWidth(assign, 6));
  auto* thumbnail = new Thumbnail(zone);
  thumbnail->setFixedSize(thumbnailSize);
  thumbnails_.push_back(thumbnail);
  auto* unit = NewLabel(ElementName("unit", place), "", zone);
  unit->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  unit->setAutoFillBackground(true);
  unit->setBackgroundRole(QPalette::Base);
  unit->setMinimumWidth(TextWidth(unit, 20));
  layout->addWidget(number, row, 1);
  layout->addWidget(assign, row, 2);
  layout->addWidget(thumbnail, row, 3);
  layout->addWidget(bindings_.Add(unit, field_.Setup.unit[place]), row, 4);

  assign->setAccessibleName("Deploy to " + spoken);
  bindings_.Add([this, spoken, unit, assign] { ShowPlace(spoken, unit, assign); });

  session_.Connect(assign, Step("Deployment"),
                   [this, place] { assignBtn_Click(field_, army_, disk_, user_, place); });
  const auto deploy = [this, place](int entry) { Deploy(entry, place); };
  const auto mark = [unit](bool held) {
    unit->setBackgroundRole(held ? QPalette::Midlight : QPalette::Base);
  };
  new DropPlace(assign, deploy, mark);
  new DropPlace(unit, deploy, mark);
}

void SetupPanelWidget::ShowPlace(const QString& spoken, QLabel* unit, QPushButton* assign) const {
  const QString here = unit->text();
  const QString selected = ToQt(field_.Setup.unitList.Text());
  ShowSpokenName(unit, spoken + ": " + (here.isEmpty() ? "empty" : here));
  QString tip = "Select a unit first";
  if (!here.isEmpty()) tip = here + " goes back to the list";
  if (!selected.isEmpty()) tip = selected + " goes to " + spoken;
  if (assign->toolTip() != tip) assign->setToolTip(tip);
}

void SetupPanelWidget::Refresh() {
  const QWidget* focus = window()->focusWidget();
  PanelWidget::Refresh();
  if (isVisible()) ShowThumbnails();
  // A setup that is taken back takes its frame along.
  if (isAncestorOf(focus) && !focus->isVisibleTo(this)) setups_->setFocus();
}

void SetupPanelWidget::showEvent(QShowEvent* event) {
  ShowThumbnails();
  PanelWidget::showEvent(event);
}

void SetupPanelWidget::ShowThumbnails() {
  // By the units' texts; of two rows alike, the first.
  std::map<std::string, Int16> images;
  for (Int16 r = 1; r <= army_.TotUnits; ++r)
    images.emplace(IdentityText(army_.BaseUnits[r]), PictureOf(army_, r));
  const auto imageOf = [&](const std::string& unit) {
    const auto found = images.find(unit);
    return found != images.end() ? found->second : Int16(0);
  };
  // By what the list shows: the window may come back while an operation is half done.
  for (int i = 0; i < units_->count(); ++i)
    ShowPicture(units_->item(i), army_, disk_, imageOf(FromQt(units_->item(i)->text())));
  for (int place = 0; auto* thumbnail : thumbnails_)
    thumbnail->Show(army_, disk_, imageOf(field_.Setup.unit[place++].Caption));
}

bool SetupPanelWidget::DeployByKey(const QKeyEvent& key) {
  constexpr auto others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if (key.modifiers() & others) return false;
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
    Deploy(units_->NextRow(), FirstFreePlace(field_.Setup));
  } else if (key.key() >= Qt::Key_1 && key.key() <= Qt::Key_9) {
    Deploy(units_->NextRow(), key.key() - Qt::Key_1);
  } else {
    return false;
  }
  return true;
}

void SetupPanelWidget::Deploy(int row, int place) {
  if (row < 0 || row >= units_->count() || place < 0) return;
  const auto deploy = [this, row, place] {
    field_.Setup.unitList.ListIndex = row;
    assignBtn_Click(field_, army_, disk_, user_, place);
  };
  session_.Run(Step("Deployment"), deploy);
  units_->setFocus();
}

}  // namespace tarnwick
