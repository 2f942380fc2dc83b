// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/unit_pictures.h"

#include <QComboBox>
#include <QPainter>

#include "ui/parts/application_style.h"
#include "ui/parts/qt_text.h"

namespace tarnwick {

QIcon UnitPicture(const ArmyState& army, const Disk& disk, Int16 image) {
  if (image < 1 || image > army.Catalog.TotImages) return {};
  const auto file = PictureFile(disk, army.BrakkaMode, army.Catalog.Images[image].Id);
  return QIcon(QString::fromStdU16String(file.u16string()));
}

void ShowPictures(QComboBox* widget, const ListBox& list, const ArmyState& army, const Disk& disk) {
  for (int i = 0; i < widget->count(); ++i) {
    const Int16 row = list.Entries.at(static_cast<std::size_t>(i)).ItemData;
    // The widget remembers which picture it has: looking for the file takes its time.
    const QString shown = ToQt(army.Catalog.Images[row].Id) + (army.BrakkaMode ? "/" : "");
    if (widget->itemData(i).toString() == shown) continue;
    widget->setItemData(i, shown);
    widget->setItemIcon(i, UnitPicture(army, disk, row));
  }
}

void Thumbnail::Show(const QIcon& picture) {
  if (picture_.cacheKey() == picture.cacheKey()) return;
  picture_ = picture;
  update();
}

void Thumbnail::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  picture_.paint(&painter, rect());
}

Horseshoe::Horseshoe(QWidget* parent) : QWidget(parent) {
  const int side = fontMetrics().ascent();
  setFixedSize(side, side);
  setToolTip("Mounted");
}

void Horseshoe::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(MountedColour(), 2));
  const QRectF bow(width() * 0.2, height() * 0.15, width() * 0.6, height() * 0.6);
  painter.drawArc(bow, 0, 180 * 16);
  for (const double x : {bow.left(), bow.right()})
    painter.drawLine(QPointF(x, bow.center().y()), QPointF(x, height() * 0.9));
}

}  // namespace tarnwick
