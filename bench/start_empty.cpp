// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// The least that a program with a window does: shows an empty window and ends when it has been
// painted. start.sh holds the editor's start against it.

#include <QApplication>
#include <QWidget>

#include "first_paint.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QWidget window;
  const tarnwick::EndAtFirstPaint end;
  window.show();
  return QApplication::exec();
}
