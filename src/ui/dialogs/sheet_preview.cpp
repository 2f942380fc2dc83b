// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/sheet_preview.h"

#include <filesystem>
#include <functional>
#include <string>

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScreen>
#include <QStandardPaths>
#include <QToolBar>
#include <QToolButton>

#include "base/errors.h"
#include "catalog/file_replacement.h"
#include "sheet/army_sheet.h"
#include "ui/parts/message_box.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/sheet_pages.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

/// High enough for a whole page that can be read.
constexpr QSize previewSize(960, 900);

/// The file that the user names, or nothing when he does not; `ending` is added where it misses.
std::filesystem::path AskForFile(const QString& name, const QString& ending, QWidget* parent) {
  QFileDialog dialog(parent, "Save as " + ending.toUpper());
  dialog.setObjectName("SaveSheetForm");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(ending);
  dialog.setNameFilter("*." + ending);
  dialog.setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dialog.selectFile(QString(name).replace('/', '-') + "." + ending);
  if (dialog.exec() != QDialog::Accepted) return {};
  QString file = dialog.selectedFiles().value(0);
  if (file.endsWith("." + ending)) return file.toStdU16String();
  file += "." + ending;  // behind a name with a dot of its own
  constexpr auto buttons = QMessageBox::Ok | QMessageBox::Cancel;
  const bool replaced = QFileInfo::exists(file);
  const std::string question = "Do you want to replace the existing " + FromQt(file) + " ?";
  if (replaced && ShowBox(QMessageBox::Question, question, buttons) != QMessageBox::Ok) return {};
  return file.toStdU16String();
}

/// Saves what `make` makes under a name that the user chooses.
void SaveAs(const QString& name, const QString& ending, const std::function<std::string()>& make,
            QWidget* parent) {
  const std::filesystem::path file = AskForFile(name, ending, parent);
  if (file.empty()) return;
  try {
    ReplaceFile(file, make(), Durability::Lasting);
  } catch (const FileError& error) {  // the army is as safe as before
    ShowBox(QMessageBox::Warning, error.what());
  }
}

}  // namespace

void ShowSheet(const WorkingArmy& work, const Disk& disk, QWidget* parent) {
  const std::string title = SheetTitle(work);
  const QString name = ToQt(title);
  std::string html = SheetPage(title, {ArmySheet(work, disk, ReadTerrainPictures())});
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageMargins(sheetMargins, QPageLayout::Millimeter);
  printer.setDocName(name);
  QPrintPreviewDialog preview(&printer, parent);
  preview.setObjectName("SheetForm");
  preview.setWindowTitle("Army sheet");
  preview.resize(previewSize.boundedTo(preview.screen()->availableSize()));
  QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                   [&html](QPrinter* paper) {
                     if (!PrintSheets(html, *paper, paper->fromPage(), paper->toPage())) {
                       ShowBox(QMessageBox::Warning, "The sheet cannot be printed.");
                     }
                   });
  auto* bar = preview.findChild<QToolBar*>();
  bar->setIconSize(QSize(16, 16));  // all of it fits on a small screen
  const auto add = [&](const char* object, const QString& ending,
                       const std::function<std::string()>& make) {
    QAction* action = bar->addAction("Save as " + ending.toUpper() + "...");
    Named(bar->widgetForAction(action), object);
    QObject::connect(action, &QAction::triggered, &preview,
                     [&, ending, make] { SaveAs(name, ending, make, &preview); });
  };
  add("SavePdf", "pdf", [&] { return SheetPdf(html, name, printer.pageLayout()); });
  add("SaveHtml", "html", [&] { return html; });
  for (auto* button : bar->findChildren<QToolButton*>())
    button->setFocusPolicy(Qt::TabFocus);
  preview.exec();
}

}  // namespace tarnwick
