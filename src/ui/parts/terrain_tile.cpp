// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/terrain_tile.h"

#include <utility>

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>

#include "ui/parts/colours.h"

namespace tarnwick {
namespace {

constexpr const char* pieceFormat = "application/x-tarnwick-terrain";

}  // namespace

TerrainTile::TerrainTile(const QString& name, QWidget* parent) : QAbstractButton(parent) {
  setObjectName(name);
  setFocusPolicy(Qt::StrongFocus);
}

void TerrainTile::MakeArea(std::function<void(int)> drop) {
  drop_ = std::move(drop);
  setAcceptDrops(true);
}

void TerrainTile::ShowPicture(const QIcon& picture) {
  if (picture_.cacheKey() == picture.cacheKey()) return;
  picture_ = picture;
  update();
}

void TerrainTile::Mark(bool marked) {
  if (marked_ == marked) return;
  marked_ = marked;
  update();
}

void TerrainTile::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  picture_.paint(&painter, rect());
  const int width = marked_ ? 4 : hasFocus() ? 2 : 1;
  const QColor border = marked_ || hasFocus() ? AccentColour() : QColor(0, 0, 0, 60);
  painter.setPen(QPen(border, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  const int inset = width / 2;
  painter.drawRect(rect().adjusted(inset, inset, -inset - 1, -inset - 1));
}

void TerrainTile::mousePressEvent(QMouseEvent* event) {
  pressedAt_ = event->pos();
  QAbstractButton::mousePressEvent(event);
}

void TerrainTile::mouseMoveEvent(QMouseEvent* event) {
  const int distance = (event->pos() - pressedAt_).manhattanLength();
  if (kind_ && isDown() && distance >= QApplication::startDragDistance()) {
    setDown(false);  // a drag is no click
    Drag();
  } else {
    QAbstractButton::mouseMoveEvent(event);
  }
}

void TerrainTile::Drag() {
  auto* piece = new QMimeData;
  piece->setData(pieceFormat, QByteArray::number(*kind_));
  auto* drag = new QDrag(this);  // the drag machinery deletes it
  drag->setMimeData(piece);
  drag->setPixmap(picture_.pixmap(size(), devicePixelRatio()));
  drag->setHotSpot(rect().center());
  drag->exec(Qt::CopyAction);
}

void TerrainTile::dragEnterEvent(QDragEnterEvent* event) {
  if (!event->mimeData()->hasFormat(pieceFormat)) return;
  event->acceptProposedAction();
  Mark(true);
}

void TerrainTile::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
  Mark(false);
}

void TerrainTile::dropEvent(QDropEvent* event) {
  Mark(false);
  event->acceptProposedAction();
  drop_(event->mimeData()->data(pieceFormat).toInt());
}

}  // namespace tarnwick
