// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/panel_button.h"

#include <QPainter>
#include <QPainterPath>

#include "ui/parts/colours.h"

namespace tarnwick {

PanelButton::PanelButton(const QString& name, const QString& caption, QWidget* parent)
    : QPushButton(caption, parent) {
  setObjectName(name);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize PanelButton::sizeHint() const {
  const int em = fontMetrics().height();
  const int height = text().size() > 1 ? 2 * em + 4 : em + 14;
  return {fontMetrics().horizontalAdvance(text()) + 3 * em, height};
}

void PanelButton::Mark(bool marked) {
  if (marked_ == marked) return;
  marked_ = marked;
  update();
}

void PanelButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF area = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
  // What chooses no panel stands apart.
  const bool apart = !isCheckable();
  QColor fill = apart ? Qt::white : Qt::transparent;
  if (isChecked()) {
    fill = AccentColour();
  } else if (isEnabled() && (isDown() || underMouse())) {
    fill = AccentColour();
    fill.setAlpha(isDown() ? 70 : 35);
  }
  painter.setBrush(fill);
  painter.setPen(apart ? QPen(BorderColour()) : QPen(Qt::NoPen));
  const bool ring = hasFocus() && isChecked();
  if (hasFocus() && !ring) painter.setPen(QPen(AccentColour(), 2));
  painter.drawRoundedRect(area, 5, 5);
  if (ring) {  // around the accent nothing would be seen
    painter.setPen(QPen(Qt::white, 2));
    painter.drawRoundedRect(area.adjusted(3, 3, -3, -3), 3, 3);
  }
  painter.setPen(isChecked() ? Qt::white : TextColour());
  const int across = apart ? Qt::AlignHCenter : Qt::AlignLeft;
  painter.drawText(area.adjusted(apart ? 0 : fontMetrics().height(), 0, 0, 0),
                   across | int{Qt::AlignVCenter} | int{Qt::TextShowMnemonic}, text());
  const int em = fontMetrics().height();
  QRect picture(0, 0, em, em);
  picture.moveCenter(rect().center());
  icon().paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
  if (!marked_) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(AccentColour());
  painter.drawEllipse(QPointF(area.right() - em, area.center().y()), em / 4.0, em / 4.0);
}

QIcon TurnIcon(bool back) {
  constexpr int side = 64;
  QPixmap pixmap(side, side);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  if (!back) painter.setTransform({-1, 0, 0, 1, side, 0});
  painter.setPen(QPen(TextColour(), 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  QPainterPath way(QPointF(24, 54));
  way.lineTo(40, 54);
  way.arcTo(23, 20, 34, 34, -90, 180);
  way.lineTo(10, 20);
  painter.drawPath(way);
  painter.drawPolyline(QPolygon({{24, 6}, {10, 20}, {24, 34}}));
  return pixmap;
}

}  // namespace tarnwick
