// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/army_list_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "armyfile/warnings.h"
#include "ui/dialogs/army_picker.h"
#include "ui/parts/entry_list.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

ArmyListDialog::ArmyListDialog(Session& session, QWidget* parent)
    : Dialog("ArmyListForm", "Army List", session, parent) {
  auto* picker = new ArmyPicker(form_.ArmyList, bindings_, this);
  EntryList* list = picker->List();
  list->setAccessibleName("Armies");
  list->setMinimumSize(TextWidth(list, 36), 360);
  auto* frame = NewFrame("", "Army Detail ", this);
  auto* detail = NewLabel("ArmyDetailLabel", "", frame);
  detail->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  detail->setWordWrap(true);
  detail->setMinimumWidth(TextWidth(detail, 40));
  (new QVBoxLayout(frame))->addWidget(detail);
  auto* remove = Named(new QPushButton("&Delete Army", this), "DelArmy");
  auto* select = Named(new QPushButton("&Select Army", this), "Command1");
  select->setDefault(true);
  remove->setAutoDefault(false);

  auto* lists = new QHBoxLayout;
  lists->addWidget(picker, 1);
  lists->addWidget(frame, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(remove);
  auto* warning = NewWarning("DeleteWarning", this);
  buttons->addWidget(warning, 1);
  buttons->addStretch();
  buttons->addWidget(select);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(lists);
  layout->addLayout(buttons);

  FillArmyList(session_.Work.Army, session_.Store, form_);
  bindings_.Add(detail, form_.ArmyDetailLabel);
  bindings_.Add([this, warning] {
    ShowWarning(warning, DeleteWarning(session_.Work.Army, session_.Store, form_));
  });
  bindings_.Refresh();

  const auto showDetail = [this] { ShowArmyDetail(session_.Work.Army, session_.Store, form_); };
  const auto choose = [this] {
    if (SelectArmy(session_.Work, session_.Store, session_.User, form_)) accept();
  };
  session_.Connect(list, &QListWidget::itemSelectionChanged, showDetail);
  OnDoubleClick(list, [this, showDetail, choose] {
    session_.Run(showDetail);
    session_.Run(choose);
  });
  list->OnKey([remove](const QKeyEvent& key) {
    if (key.key() == Qt::Key_Delete) remove->click();
    return key.key() == Qt::Key_Delete;
  });
  session_.Connect(select, choose);
  session_.Connect(
      remove, [this] { DelArmy_Click(session_.Work.Army, session_.Store, session_.User, form_); });
}

}  // namespace tarnwick
