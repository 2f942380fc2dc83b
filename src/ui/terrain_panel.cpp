// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/terrain_panel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/qt_text.h"
#include "ui/widgets.h"

namespace tarnwick {
namespace {

constexpr QSize pieceSize(64, 64);

}  // namespace

TerrainPanelWidget::TerrainPanelWidget(Session& session)
    : PanelWidget(Panel::Terrain, "Terrain", session) {
  auto* row = new QHBoxLayout;
  row->addWidget(NewPalette(), 0, Qt::AlignTop);
  row->addWidget(NewAreas(), 0, Qt::AlignTop);
  auto* side = new QVBoxLayout;
  side->addWidget(NewPointsFrame());
  side->addWidget(
      NewIdleButton("Command2", "Update", "Points and areas are always up to date", this));
  side->addStretch();
  row->addLayout(side);
  row->addStretch();
  Body()->addLayout(row);
  Body()->addStretch();
}

QWidget* TerrainPanelWidget::NewPalette() {
  const char* const captions[] = {"Clear",         "Slope  30ap/5cp",    "Camp 60ap/10cp",
                                  "Wood 20ap/0cp", "Mountain 50ap/15cp", "Cliff 150ap/0cp"};
  auto* palette = new QWidget(this);
  auto* layout = new QGridLayout(palette);
  layout->setContentsMargins(0, 0, 0, 0);
  for (int kind = 0; kind < 6; ++kind) {
    auto* piece = NewLabel(ElementName("TerrImg", kind), "", palette);
    piece->setFixedSize(pieceSize);
    piece->setFrameStyle(QFrame::StyledPanel);
    layout->addWidget(piece, kind, 0);
    layout->addWidget(NewLabel(QString("Label%1").arg(23 + kind), captions[kind], palette), kind,
                      1);
  }
  return palette;
}

QWidget* TerrainPanelWidget::NewAreas() {
  auto* areas = new QWidget(this);
  auto* layout = new QGridLayout(areas);
  layout->setContentsMargins(0, 0, 0, 0);
  for (int area = 0; area < 9; ++area) {
    auto* label = NewLabel(ElementName("Area", area), "", areas);
    label->setFixedSize(pieceSize * 2);
    label->setFrameStyle(QFrame::StyledPanel);
    layout->addWidget(label, area / 3, area % 3);
  }
  return areas;
}

QWidget* TerrainPanelWidget::NewPointsFrame() {
  auto* frame = NewFrame("Frame5", "Points", this);
  auto* layout = new QGridLayout(frame);
  layout->addWidget(NewLabel("Label21", "Army pts", frame), 0, 0);
  layout->addWidget(NewNumberLabel("ArmyPts", frame), 0, 1);
  layout->addWidget(NewLabel("Label20", "Command pts", frame), 1, 0);
  layout->addWidget(NewNumberLabel("CommandPts", frame), 1, 1);
  layout->setColumnMinimumWidth(1, TextWidth(frame, 7));
  return frame;
}

}  // namespace tarnwick
