// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/setup_panel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/qt_text.h"
#include "ui/widgets.h"

namespace tarnwick {

SetupPanelWidget::SetupPanelWidget(Session& session) : PanelWidget(Panel::Setup, "Setup", session) {
  auto* row = new QHBoxLayout;
  auto* side = new QVBoxLayout;
  side->addWidget(Named(new QListWidget(this), "setupList"));
  side->addWidget(NewIdleButton("Command6", "New Setup", "", this));
  side->addWidget(NewIdleButton("Command3", "Delete Setup", "", this));
  row->addLayout(side, 1);
  row->addWidget(NewSetupFrame(), 4);
  Body()->addLayout(row, 1);
}

QWidget* SetupPanelWidget::NewSetupFrame() {
  auto* frame = NewFrame("setupFramePanel", "", this);
  auto* layout = new QGridLayout(frame);
  const char* const zones[] = {"Left",   "Left",   "Centre", "Centre", "Centre",
                               "Centre", "Centre", "Right",  "Right"};
  for (int place = 0; place < 9; ++place) {
    layout->addWidget(NewLabel("Label1", zones[place], frame), place, 0);
    layout->addWidget(NewIdleButton(ElementName("assignBtn", place), "<->", "", frame), place, 1);
    layout->addWidget(NewLabel(ElementName("unit", place), "", frame), place, 2);
  }
  layout->addWidget(Named(new QListWidget(frame), "unitList"), 0, 3, 9, 1);
  layout->addWidget(NewLabel("Label1", "Description", frame), 9, 0, 1, 4);
  auto* description = NewDescriptionBox("description", 2, frame);
  layout->addWidget(description, 10, 0, 1, 4);
  frame->hide();  // until a setup is chosen
  return frame;
}

}  // namespace tarnwick
