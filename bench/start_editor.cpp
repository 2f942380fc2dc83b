// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// The editor's start on the program folder given as the argument, up to the moment when its window
// has been painted. start.sh runs it.

#include <cstdio>

#include <QApplication>

#include "first_paint.h"
#include "ui/editor.h"
#include "ui/parts/application_style.h"

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 2) {
    std::fputs("usage: start_editor PROGRAM_FOLDER\n", stderr);
    return 2;
  }
  ApplyStyle();

  Editor editor(arguments[1].toStdU16String());
  const EndAtFirstPaint end;
  if (!editor.Form.Start() || editor.Work.Army.Catalog.TotImages == 0) return 1;
  editor.Form.show();
  return QApplication::exec();
}
