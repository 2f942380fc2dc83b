// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// The editor's start on the program folder given as the argument, up to the moment when its window
// has been painted. start.sh runs it.

#include <cstdio>

#include <QApplication>

#include "armyfile/working_army.h"
#include "first_paint.h"
#include "ui/form_host.h"
#include "ui/main_form.h"
#include "ui/parts/application_style.h"
#include "ui/parts/session.h"

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 2) {
    std::fputs("usage: start_editor PROGRAM_FOLDER\n", stderr);
    return 2;
  }
  ApplyStyle();

  WorkingArmy work;
  Disk disk(arguments[1].toStdU16String());
  FormHost host;
  Session session(work, disk, host);
  host.Serve(session);
  MainForm form(session);
  const EndAtFirstPaint end(form);
  if (!form.Start() || work.Army.Catalog.TotImages == 0) return 1;
  form.show();
  return QApplication::exec();
}
