// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/army_selection_dialog.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "ui/parts/session.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

ArmySelectionDialog::ArmySelectionDialog(Session& session, QWidget* parent)
    : QDialog(parent), session_(session) {
  setObjectName("ArmySelectionForm");
  setWindowTitle("Army Selection");
  auto* list = new QListWidget(this);
  list->setObjectName("ArmyList");
  list->setMinimumSize(320, 360);
  auto* confirm = new QPushButton("Select Army", this);
  confirm->setObjectName("Command1");
  confirm->setDefault(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(list);
  layout->addWidget(confirm, 0, Qt::AlignRight);

  FillArmySelection(session_.Work.Army, session_.Store, form_);
  bindings_.Add(list, form_.ArmyList);
  bindings_.Refresh();
  OnDoubleClick(list, [this] { Confirm(); });
  connect(confirm, &QPushButton::clicked, this, &ArmySelectionDialog::Confirm);
}

void ArmySelectionDialog::Confirm() {
  session_.Run([this] {
    if (ConfirmArmySelection(session_.Work.Army, session_.User, form_)) accept();
  });
}

}  // namespace tarnwick
