// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/army_selection_dialog.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "ui/dialogs/army_picker.h"
#include "ui/parts/entry_list.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

ArmySelectionDialog::ArmySelectionDialog(Session& session, QWidget* parent)
    : Dialog("ArmySelectionForm", "Army Selection", session, parent) {
  auto* picker = new ArmyPicker(form_.ArmyList, bindings_, this);
  EntryList* list = picker->List();
  list->setAccessibleName("Base armies");
  list->setMinimumSize(320, 360);
  auto* confirm = Named(new QPushButton("&Select Army", this), "Command1");
  confirm->setDefault(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(picker);
  layout->addWidget(confirm, 0, Qt::AlignRight);

  FillArmySelection(session_.Work.Army, session_.Store, form_);
  bindings_.Refresh();
  const auto choose = [this] {
    if (ConfirmArmySelection(session_.Work.Army, session_.User, form_)) accept();
  };
  OnDoubleClick(list, [this, choose] { session_.Run(choose); });
  session_.Connect(confirm, choose);
}

}  // namespace tarnwick
