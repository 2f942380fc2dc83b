// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <QApplication>

#include "armyfile/working_army.h"
#include "ui/form_host.h"
#include "ui/main_form.h"
#include "ui/parts/application_style.h"
#include "ui/parts/session.h"

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  QApplication application(argc, argv);
  ApplyStyle();

  WorkingArmy work;
  Disk disk(QCoreApplication::applicationDirPath().toStdU16String());
  FormHost host;
  Session session(work, disk, host);
  host.Serve(session);
  MainForm form(session);
  if (!form.Start()) return 1;
  form.show();
  return QApplication::exec();
}
