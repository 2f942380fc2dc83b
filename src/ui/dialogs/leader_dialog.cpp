// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/leader_dialog.h"

#include <QFormLayout>
#include <QPushButton>

#include "ui/parts/widgets.h"

namespace tarnwick {

LeaderDialog::LeaderDialog(Session& session, QWidget* parent)
    : Dialog("LeaderMgmtForm", "LeaderMgmt", session, parent) {
  auto* name = NewTextBox("LeaderName", this);
  name->setMinimumWidth(TextWidth(name, 28));
  auto* initiative = NewDropDown("InitiativeBox", this);
  auto* command = NewDropDown("CommandBox", this);
  auto* cost = NewNumberLabel("leaderCost", this);
  cost->setFrameStyle(QFrame::StyledPanel);
  cost->setAutoFillBackground(true);
  cost->setBackgroundRole(QPalette::Button);
  cost->setMargin(3);
  auto* define = Named(new QPushButton("&Define new Leader", this), "Command1");
  define->setDefault(true);

  auto* layout = new QFormLayout(this);
  const auto addRow = [&](const char* label, const char* caption, auto* widget, auto& control) {
    auto* text = NewLabel(label, caption, this);
    text->setBuddy(widget);
    layout->addRow(text, bindings_.Add(widget, control));
  };
  addRow("Label2", "&Name:", name, form_.LeaderName);
  addRow("Label1", "&Initiative:", initiative, form_.InitiativeBox);
  addRow("Label3", "&Command:", command, form_.CommandBox);
  addRow("Label4", "Cost:", cost, form_.leaderCost);
  layout->addRow(define);
  bindings_.Refresh();

  for (QComboBox* list : {initiative, command})
    session_.Connect(list, [this] { UpdateLeaderCost(form_); });
  session_.Guard(command, nullptr, [this] { return CommandBox_Validate(form_, session_.User); });
  session_.Connect(define, [this] {
    if (DefineLeader(session_.Work.Army, session_.User, form_)) accept();
  });
}

}  // namespace tarnwick
