// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/terrain_panel.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "armyfile/warnings.h"
#include "battlefield/terrain.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/terrain_tile.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

constexpr int pieceSide = 64;
constexpr int smallestArea = 96, largestArea = 320;

/// The keyword of a kind as a word.
QString WordFor(const TerrainKindRec& kind) {
  const QString name = ToQt(kind.Name);
  return name.left(1) + name.mid(1).toLower();
}

/// A kind and its price. That of the slope stands a blank further off than the others.
QString CaptionFor(const TerrainKindRec& kind) {
  if (kind.ArmyCost == 0 && kind.CommandCost == 0) return WordFor(kind);
  return WordFor(kind) + (kind.Name == "SLOPE" ? "  " : " ") +
         QString("%1ap/%2cp").arg(kind.ArmyCost.Value()).arg(kind.CommandCost.Value());
}

}  // namespace

TerrainPanelWidget::TerrainPanelWidget(Session& session)
    : PanelWidget(Panel::Terrain, "Terrain", session) {
  auto* warning = NewWarning("TerrainWarning", this);
  bindings_.Add([this, warning] { ShowWarning(warning, TerrainWarning(army_)); });
  Body()->addWidget(warning);
  auto* row = new QHBoxLayout;
  row->setSpacing(16);
  auto* side = new QVBoxLayout;
  side->addWidget(NewPalette());
  side->addWidget(NewPointsFrame());
  side->addWidget(
      NewIdleButton("Command2", "Update",
                    "The points are always up to date. An area cleared by New army, "
                    "Reset or Load keeps its old picture until a piece is dropped on it.",
                    this));
  side->addStretch();
  row->addLayout(side);
  row->addWidget(NewAreas(), 1, Qt::AlignTop | Qt::AlignLeft);
  Body()->addLayout(row);
  Body()->addStretch();
}

void TerrainPanelWidget::showEvent(QShowEvent* event) {
  // Reading the pictures would only hold up the start of the program.
  if (pictures_[0].isNull()) {
    for (std::size_t kind = 0; kind < pictures_.size(); ++kind)
      pictures_.at(kind) = QIcon(QString(":/terrain/%1.svg").arg(kind));
    Refresh();
  }
  FitAreas();
  PanelWidget::showEvent(event);
}

void TerrainPanelWidget::resizeEvent(QResizeEvent* event) {
  FitAreas();
  PanelWidget::resizeEvent(event);
}

void TerrainPanelWidget::FitAreas() {
  const QWidget* view = parentWidget();
  const QPoint corner = areas_.front()->mapTo(this, QPoint());
  const int margin = Body()->contentsMargins().right();
  const int room = qMin(view->width() - corner.x(), view->height() - corner.y()) - margin;
  const int side = std::clamp(room / 3, smallestArea, largestArea);
  for (TerrainTile* area : areas_)
    area->setFixedSize(side, side);
}

void TerrainPanelWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) Pick(std::nullopt);
  PanelWidget::keyPressEvent(event);
}

QWidget* TerrainPanelWidget::NewPalette() {
  auto* palette = new QWidget(this);
  auto* layout = new QGridLayout(palette);
  layout->setContentsMargins(0, 0, 0, 0);
  for (int kind = 0; kind < 6; ++kind) {
    auto* piece = new TerrainTile(ElementName("TerrImg", kind), palette);
    piece->setFixedSize(pieceSide, pieceSide);
    piece->MakePiece(kind);
    piece->setToolTip("Drag onto an area, or click here and then the area");
    pieces_.push_back(piece);
    auto* label = NewLabel(QString("Label%1").arg(23 + kind), "", palette);
    bindings_.Add([this, kind, piece, label] {
      const QString caption = CaptionFor(field_.TerrainKinds[kind]);
      if (label->text() != caption) label->setText(caption);
      ShowSpokenName(piece, caption.simplified());
    });
    layout->addWidget(piece, kind, 0);
    layout->addWidget(label, kind, 1);
    AddPicture(piece, field_.Terrain.TerrImg[kind]);
    connect(piece, &TerrainTile::clicked, this,
            [this, kind] { Pick(picked_ == kind ? std::nullopt : std::optional(kind)); });
  }
  return palette;
}

QWidget* TerrainPanelWidget::NewAreas() {
  auto* areas = new QWidget(this);
  auto* layout = new QGridLayout(areas);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);  // one battlefield
  for (int i = 0; i < 9; ++i) {
    auto* area = new TerrainTile(ElementName("Area", i), areas);
    areas_.push_back(area);
    area->setToolTip(QString("Area %1").arg(i + 1));
    bindings_.Add([this, area, i] { ShowSpokenName(area, AreaText(i)); });
    area->MakeArea([this, i](int piece) { PutDown(piece, i); });
    layout->addWidget(area, i / 3, i % 3);
    AddPicture(area, field_.Terrain.Area[i]);
    connect(area, &TerrainTile::clicked, this, [this, i] {
      if (picked_) PutDown(*picked_, i);
    });
  }
  return areas;
}

QString TerrainPanelWidget::AreaText(int area) const {
  const int kind = field_.Terrain.Area[area].Picture;
  return QString("Area %1: %2").arg(area + 1).arg(WordFor(field_.TerrainKinds[kind]));
}

QWidget* TerrainPanelWidget::NewPointsFrame() {
  auto* frame = NewFrame("Frame5", "Points", this);
  auto* layout = new QGridLayout(frame);
  layout->addWidget(NewLabel("Label21", "Army pts", frame), 0, 0);
  layout->addWidget(bindings_.Add(NewNumberLabel("ArmyPts", frame), field_.Terrain.ArmyPts), 0, 1);
  layout->addWidget(NewLabel("Label20", "Command pts", frame), 1, 0);
  auto* commandPoints = NewNumberLabel("CommandPts", frame);
  layout->addWidget(bindings_.Add(commandPoints, field_.Terrain.CommandPts), 1, 1);
  layout->addWidget(NewLabel("Label22", "", frame), 2, 0);
  layout->setColumnMinimumWidth(1, TextWidth(frame, 7));
  return frame;
}

void TerrainPanelWidget::AddPicture(TerrainTile* tile, const PictureBox& control) {
  bindings_.Add([this, tile, &control] {
    tile->ShowPicture(pictures_.at(static_cast<std::size_t>(control.Picture)));
  });
}

void TerrainPanelWidget::Pick(std::optional<int> piece) {
  picked_ = piece;
  for (int kind = 0; TerrainTile* const tile : pieces_)
    tile->Mark(kind++ == piece);
}

void TerrainPanelWidget::PutDown(int piece, int area) {
  Pick(std::nullopt);
  session_.Run([this, area] { return FromQt(AreaText(area)); },
               [this, piece, area] { DropTerrain(field_, army_, user_, piece, area); });
}

}  // namespace tarnwick
