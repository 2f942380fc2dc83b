// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/gauges.h"

#include <algorithm>

#include <QPainter>

#include "ui/parts/colours.h"

namespace tarnwick {

ShareBar::ShareBar(QWidget* parent) : QWidget(parent) {
  setFixedHeight(8);
}

void ShareBar::Show(double share) {
  share = std::clamp(share, 0.0, 1.0);
  if (share_ == share) return;
  share_ = share;
  update();
}

void ShareBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(QRectF(0, 0, width() * share_, height()), AccentColour());
  painter.setPen(BorderColour());
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

Mark::Mark(QWidget* parent) : QWidget(parent) {
  const int side = fontMetrics().ascent();
  setFixedSize(side, side);
}

void Mark::Show(std::optional<bool> met) {
  if (met_ == met) return;
  met_ = met;
  update();
}

void Mark::paintEvent(QPaintEvent* /*event*/) {
  if (!met_) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(width(), height());
  painter.setPen(QPen(*met_ ? AccentColour() : WarningColour(), 2.0 / width()));
  if (*met_) {
    painter.drawPolyline(QPolygonF({{0.15, 0.55}, {0.4, 0.8}, {0.85, 0.25}}));
  } else {
    painter.drawEllipse(QRectF(0.2, 0.2, 0.6, 0.6));
  }
}

}  // namespace tarnwick
