// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/unit_pictures.h"

#include <QComboBox>
#include <QListWidgetItem>
#include <QPainter>

#include "ui/parts/colours.h"
#include "ui/parts/qt_text.h"

namespace tarnwick {
namespace {

bool HasPicture(const ArmyState& army, Int16 image) {
  return image >= 1 && image <= army.Catalog.TotImages;
}

/// Tells pictures apart.
QString KeyOf(const ArmyState& army, Int16 image) {
  if (!HasPicture(army, image)) return "";
  return ToQt(army.Catalog.Images[image].Id) + (army.BrakkaMode ? "/" : "");
}

QIcon UnitPicture(const ArmyState& army, const Disk& disk, Int16 image) {
  if (!HasPicture(army, image)) return {};
  const auto file = PictureFile(disk, army.BrakkaMode, army.Catalog.Images[image].Id);
  return QIcon(QString::fromStdU16String(file.u16string()));
}

}  // namespace

void ShowPictures(QComboBox* widget, const ListBox& list, const ArmyState& army, const Disk& disk) {
  for (int i = 0; i < widget->count(); ++i) {
    const Int16 image = list.Entries.at(static_cast<std::size_t>(i)).ItemData;
    const QString key = KeyOf(army, image);
    if (widget->itemData(i).toString() == key) continue;
    widget->setItemData(i, key);
    widget->setItemIcon(i, UnitPicture(army, disk, image));
  }
}

void ShowPicture(QListWidgetItem* entry, const ArmyState& army, const Disk& disk, Int16 image) {
  const QString key = KeyOf(army, image);
  if (entry->data(Qt::UserRole).toString() == key) return;
  entry->setData(Qt::UserRole, key);
  entry->setIcon(UnitPicture(army, disk, image));
}

void Thumbnail::Show(const ArmyState& army, const Disk& disk, Int16 image) {
  const QString key = KeyOf(army, image);
  if (key_ == key) return;
  key_ = key;
  picture_ = UnitPicture(army, disk, image);
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
