// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <QApplication>

#include "ui/editor.h"
#include "ui/parts/application_style.h"

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  QApplication application(argc, argv);
  ApplyStyle();

  Editor editor(QCoreApplication::applicationDirPath().toStdU16String());
  if (!editor.Form.Start()) return 1;
  editor.Form.show();
  return QApplication::exec();
}
