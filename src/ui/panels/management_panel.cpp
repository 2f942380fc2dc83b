// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/management_panel.h"

#include <QDesktopServices>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QUrl>
#include <QVBoxLayout>

#include "armyfile/warnings.h"
#include "base/ansi.h"
#include "ui/dialogs/sheet_preview.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

ManagementPanelWidget::ManagementPanelWidget(Session& session)
    : PanelWidget(Panel::Management, "Army Managemet", session) {
  TitleLine()->addWidget(NewModuleFrame());
  TitleLine()->addStretch();
  Body()->addWidget(NewNameFrame());
  Body()->addWidget(NewButtons());
  Body()->addStretch();
}

QWidget* ManagementPanelWidget::NewModuleFrame() {
  auto* frame = NewLineFrame("Frame10", "Module", this);
  auto* modules = NewOptions("modOption", 2, frame->layout(), frame, "EB");
  bindings_.Add(modules, army_.Management.modOption);
  session_.Connect(
      modules, [this] { return "Module " + army_.Management.modOption[army_.BrakkaMode].Caption; },
      [this] { modOption_Click(work_, disk_); });
  return frame;
}

QWidget* ManagementPanelWidget::NewNameFrame() {
  auto* frame = NewFrame("", "Army", this);
  auto* name = bindings_.Add(NewTextBox("ArmyName", frame), army_.Management.ArmyName);
  auto* file = bindings_.Add(NewFileNameBox("ArmyFileName", frame), army_.Management.ArmyFileName);
  auto* fileHint = NewHint("NewArmyFile", "", frame);
  name->setMinimumWidth(TextWidth(name, 44));

  auto* layout = new QGridLayout(frame);
  auto* nameLabel = NewLabel("Label18", "Army &Name", frame);
  nameLabel->setBuddy(name);
  layout->addWidget(nameLabel, 0, 0);
  layout->addWidget(name, 0, 1);
  auto* fileLabel = NewLabel("Label19", "&File", frame);
  fileLabel->setBuddy(file);
  layout->addWidget(fileLabel, 1, 0);
  layout->addWidget(file, 1, 1);
  layout->addWidget(fileHint, 1, 2);
  auto* folder = Named(new QPushButton("Open folder", frame), "OpenFolder");
  folder->setToolTip("Show the folder of the army files; armies of friends go there");
  layout->addWidget(folder, 0, 2, Qt::AlignLeft);
  layout->setColumnStretch(2, 1);
  auto* warning = NewWarning("FolderWarning", frame);
  layout->addWidget(warning, 2, 1, 1, 2);

  bindings_.Add([fileHint, this] {
    fileHint->setText(army_.BrakkaMode ? ".army in the folder brakka" : ".army");
  });
  bindings_.Add([this, warning] { ShowWarning(warning, FolderWarning(army_, disk_)); });
  session_.Connect(name, Step("Army name"), [] {});
  session_.Connect(file, Step("File name"), [] {});
  session_.Connect(folder, [this] { OpenFolder(); });
  return frame;
}

void ManagementPanelWidget::OpenFolder() {
  const auto folder = disk_.ModuleFolder(army_.BrakkaMode);
  const bool opened = QDesktopServices::openUrl(QUrl::fromLocalFile(folder.c_str()));
  if (!opened) user_.Message("The army files are in " + AnsiFromPath(folder));
}

QWidget* ManagementPanelWidget::NewButtons() {
  auto* row = new QWidget(this);
  auto* layout = new QGridLayout(row);
  layout->setContentsMargins(0, 8, 0, 0);
  layout->setHorizontalSpacing(16);
  const auto add = [&](const char* name, const char* caption, const char* does, const char* key) {
    auto* button = Named(new QPushButton(caption, row), name);
    button->setMinimumSize(TextWidth(button, 18), button->fontMetrics().height() * 2);
    const int line = layout->rowCount();
    layout->addWidget(button, line, 0);
    layout->addWidget(NewLabel("", does, row), line, 1);
    layout->addWidget(NewHint("", key, row), line, 2);
    return button;
  };
  auto* newArmy = add("NewArmyBtn", "New &army", "Begin from a base army", "Ctrl+N");
  auto* load = add("LoadBtn", "L&oad army", "Open a saved army", "Ctrl+O");
  auto* save = add("SaveBtn", "Sa&ve Army", "Write the army to its file", "Ctrl+S");
  auto* sheet =
      add("SheetBtn", "Army s&heet", "Print the army, or save it as PDF or HTML", "Ctrl+P");
  auto* warning = NewWarning("BaseArmyWarning", row);
  layout->addWidget(warning, layout->rowCount(), 0, 1, 4);
  layout->setColumnStretch(3, 1);
  bindings_.Add([this, warning] { ShowWarning(warning, BaseArmyWarning(army_, disk_)); });
  session_.Connect(newArmy, Step("New army"), [this] { NewArmyBtn_Click(work_, disk_, user_); });
  session_.Connect(sheet, [this] { ShowSheet(work_, disk_, window()); });
  connect(load, &QPushButton::clicked, this, [this] { session_.Load(); });
  connect(save, &QPushButton::clicked, this, [this] { session_.Save(); });
  return row;
}

}  // namespace tarnwick
