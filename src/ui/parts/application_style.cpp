// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/application_style.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace tarnwick {

QColor AccentColour() {
  return {0x0B, 0x6E, 0x6E};
}

void ApplyStyle() {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  const QColor window(0xF3, 0xF5, 0xF6);
  QPalette palette(QColor(0xE9, 0xED, 0xEF), window);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::Highlight, AccentColour());
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, Qt::white);
  palette.setColor(QPalette::ToolTipText, Qt::black);
  palette.setColor(QPalette::PlaceholderText, QColor(0x70, 0x78, 0x7C));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(0x8A, 0x92, 0x96));
  }
  QApplication::setPalette(palette);
}

}  // namespace tarnwick
