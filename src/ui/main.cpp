// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <exception>
#include <string>

#include <QApplication>
#include <QStandardPaths>

#include "catalog/shipped_files.h"
#include "ui/editor.h"
#include "ui/parts/application_style.h"
#include "ui/parts/display_check.h"
#include "ui/parts/message_box.h"

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  ExplainMissingDisplay();
  QApplication application(argc, argv);
  QApplication::setDesktopFileName("tarnwick");  // by which a desktop finds the icon
  ApplyStyle();

  const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  const auto installation =
      FindInstallation(QCoreApplication::applicationDirPath().toStdU16String(),
                       (own + "/tarnwick").toStdU16String());
  try {
    BringUpToDate(installation);
  } catch (const std::exception& error) {
    ShowBox(QMessageBox::Critical,
            "The catalogs could not be brought up to date.\n\r" + std::string(error.what()));
  }  // and on with what there is
  Editor editor(installation.Program, installation.Guide);
  if (!editor.Form.Start()) return 1;
  editor.Form.show();
  return QApplication::exec();
}
