// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/application_style.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>

#include "ui/parts/editor_style.h"

/// Makes the library's pictures known. The macro must stand outside of all namespaces.
static void InitPictures() {
  Q_INIT_RESOURCE(pictures);
}

namespace tarnwick {

QColor TextColour() {
  return {0x1B, 0x21, 0x24};
}

QColor HeadingColour(bool filled) {
  return filled ? TextColour() : QColor(0x56, 0x60, 0x67);
}

QColor AccentColour() {
  return {0x0B, 0x6B, 0x68};
}

QColor WarningColour() {
  return {0x9A, 0x34, 0x12};
}

QColor MountedColour() {
  return {0x55, 0x55, 0xFF};
}

QColor BorderColour() {
  return {0x78, 0x83, 0x89};
}

QColor FrameColour() {
  return {0xC3, 0xCB, 0xCF};
}

void ApplyStyle() {
  QApplication::setStyle(new EditorStyle);
  const QColor window(0xF3, 0xF5, 0xF6);
  QPalette palette(QColor(0xE6, 0xEA, 0xEC), window);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, TextColour());
    palette.setColor(QPalette::Disabled, role, QColor(0x5B, 0x65, 0x6B));
  }
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::Highlight, AccentColour());
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, Qt::white);
  palette.setColor(QPalette::PlaceholderText, HeadingColour(false));
  QApplication::setPalette(palette);
  InitPictures();
  QApplication::setWindowIcon(QIcon(":/tarnwick.png"));
}

}  // namespace tarnwick
