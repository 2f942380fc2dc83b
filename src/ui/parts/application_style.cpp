// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/application_style.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>

#include "ui/parts/colours.h"
#include "ui/parts/editor_style.h"

/// Makes the library's pictures known. The macro must stand outside of all namespaces.
static void InitPictures() {
  Q_INIT_RESOURCE(pictures);
}

namespace tarnwick {

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
  palette.setColor(QPalette::PlaceholderText, HintColour());
  palette.setColor(QPalette::Link, AccentColour());
  QApplication::setPalette(palette);
  InitPictures();
}

void ShowIcon() {
  QApplication::setWindowIcon(QIcon(":/tarnwick.png"));
}

}  // namespace tarnwick
