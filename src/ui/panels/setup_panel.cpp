// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/setup_panel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "armyfile/warnings.h"
#include "battlefield/setups.h"
#include "ui/parts/entry_list.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

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
  auto* list = new EntryList("setupList", side);
  auto* create = Named(new QPushButton("New Setup", side), "Command6");
  auto* remove = Named(new QPushButton("Delete Setup", side), "Command3");
  layout->addWidget(list, 1);
  layout->addWidget(create);
  layout->addWidget(remove);
  side->setFixedWidth(TextWidth(side, 20));

  bindings_.Add(list, field_.Setup.setupList);
  const auto choose = [this] { setupList_Click(field_, army_, disk_); };
  session_.Connect(list, &QListWidget::itemSelectionChanged, choose);
  // An entry that is selected already shows its setup again, as after the panel hid it.
  session_.Connect(list, &QListWidget::itemClicked, choose);
  session_.Connect(list, &QListWidget::itemActivated, choose);
  session_.Connect(create, [this] { Command6_Click(field_, army_, disk_); });
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
  auto* units = bindings_.Add(new EntryList("unitList", frame), field_.Setup.unitList);
  units->setMinimumWidth(TextWidth(units, 28));
  layout->addWidget(units, 0, 1, 3, 1);
  layout->addWidget(NewLabel("Label1(3)", "Description", frame), 3, 0);
  auto* length = NewWarning("descriptionWarning", frame);
  length->setAlignment(Qt::AlignRight);
  layout->addWidget(length, 3, 1);
  auto* description = NewDescriptionBox("description", 2, frame);
  layout->addWidget(description, 4, 0, 1, 2);
  layout->setRowStretch(4, 1);

  bindings_.AddVisible(frame, field_.Setup.setupFramePanel.Visible);
  bindings_.Add(description, field_.Setup.description);
  bindings_.Add(
      [this, length] { ShowWarning(length, LengthWarning(field_.Setup.description.Text, 2)); });
  session_.Connect(description, [this] { description_Change(field_, army_, disk_); });
  return frame;
}

QWidget* SetupPanelWidget::NewZone(int index, const char* caption, int firstPlace, int lastPlace,
                                   QWidget* parent) {
  auto* zone = new QFrame(parent);
  zone->setFrameStyle(QFrame::StyledPanel);
  auto* layout = new QGridLayout(zone);
  layout->setVerticalSpacing(2);
  auto* name = NewLabel(ElementName("Label1", index), caption, zone);
  name->setMinimumWidth(TextWidth(name, 9));
  layout->addWidget(name, 0, 0);
  for (int place = firstPlace; place <= lastPlace; ++place) {
    auto* assign = Named(new QPushButton("<->", zone), ElementName("assignBtn", place));
    assign->setFixedWidth(TextWidth(assign, 6));
    auto* unit = NewLabel(ElementName("unit", place), "", zone);
    unit->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    unit->setAutoFillBackground(true);
    unit->setBackgroundRole(QPalette::Base);
    unit->setMinimumWidth(TextWidth(unit, 26));
    layout->addWidget(assign, place - firstPlace, 1);
    layout->addWidget(bindings_.Add(unit, field_.Setup.unit[place]), place - firstPlace, 2);
    session_.Connect(assign,
                     [this, place] { assignBtn_Click(field_, army_, disk_, user_, place); });
  }
  layout->setColumnStretch(2, 1);
  return zone;
}

}  // namespace tarnwick
