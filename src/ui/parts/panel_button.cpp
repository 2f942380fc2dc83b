// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/panel_button.h"

#include <QPainter>

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
  return {fontMetrics().horizontalAdvance(text()) + 3 * em, 2 * em + 4};
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
  } else if (isDown() || underMouse()) {
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
}

}  // namespace tarnwick
