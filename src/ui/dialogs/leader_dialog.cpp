// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/leader_dialog.h"

#include <QFormLayout>
#include <QPushButton>

#include "ui/parts/session.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

LeaderDialog::LeaderDialog(Session& session, QWidget* parent) : QDialog(parent), session_(session) {
  setObjectName("LeaderMgmtForm");
  setWindowTitle("LeaderMgmt");
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

  for (const QComboBox* list : {initiative, command}) {
    connect(list, &QComboBox::activated, this,
            [this] { Run([this] { UpdateLeaderCost(form_); }); });
  }
  session_.Guard.Watch(command, [this] {
    const bool allowed =
        session_.Allows([&] { return !CommandBox_Validate(form_, session_.User); });
    bindings_.Refresh();
    return allowed;
  });
  connect(define, &QPushButton::clicked, this, [this] {
    Run([this] {
      if (DefineLeader(session_.Work.Army, session_.User, form_)) accept();
    });
  });
}

void LeaderDialog::Run(const std::function<void()>& operation) {
  if (session_.Run(operation)) bindings_.Refresh();
}

}  // namespace tarnwick
