// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/leader_dialog.h"

#include <QFormLayout>
#include <QPushButton>

#include "ui/parts/session.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

LeaderDialog::LeaderDialog(Session& session, QWidget* parent)
    : Dialog("LeaderMgmtForm", "LeaderMgmt", session, parent) {
  auto* name = NewTextBox("LeaderName", this);
  name->setMinimumWidth(TextWidth(name, 28));
  auto* initiative = Named(new QComboBox(this), "InitiativeBox");
  auto* command = Named(new QComboBox(this), "CommandBox");
  auto* cost = NewNumberLabel("leaderCost", this);
  cost->setFrameStyle(QFrame::StyledPanel);
  cost->setAutoFillBackground(true);
  cost->setBackgroundRole(QPalette::Button);
  cost->setMargin(3);
  auto* define = Named(new QPushButton("Define new Leader", this), "Command1");
  define->setDefault(true);

  auto* layout = new QFormLayout(this);
  layout->addRow(NewLabel("Label2", "Name:", this), name);
  layout->addRow(NewLabel("Label1", "Initiative:", this), initiative);
  layout->addRow(NewLabel("Label3", "Command:", this), command);
  layout->addRow(NewLabel("Label4", "Cost:", this), cost);
  layout->addRow(define);

  bindings_.Add(name, form_.LeaderName);
  bindings_.Add(initiative, form_.InitiativeBox);
  bindings_.Add(command, form_.CommandBox);
  bindings_.Add(cost, form_.leaderCost);
  bindings_.Refresh();

  for (QComboBox* list : {initiative, command})
    session_.Connect(list, &QComboBox::activated, [this] { UpdateLeaderCost(form_); });
  session_.Guard(command, [this] { return CommandBox_Validate(form_, session_.User); });
  session_.Connect(define, &QPushButton::clicked, [this] {
    if (DefineLeader(session_.Work.Army, session_.User, form_)) accept();
  });
}

}  // namespace tarnwick
