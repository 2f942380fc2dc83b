// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/army_picker.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include "ui/parts/entry_list.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

ArmyPicker::ArmyPicker(ListBox& armies, Bindings& bindings, QWidget* parent)
    : QWidget(parent),
      search_(Named(new QLineEdit(this), "ArmySearch")),
      list_(new EntryList("ArmyList", this)),
      count_(NewHint("", "", this)) {
  search_->setPlaceholderText("Search");
  search_->setAccessibleName("Search");
  search_->setClearButtonEnabled(true);
  search_->installEventFilter(this);
  list_->setUniformItemSizes(true);
  count_->setMinimumHeight(fontMetrics().height());  // the list keeps its size
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(search_);
  layout->addWidget(list_, 1);
  layout->addWidget(count_);
  list_->setFocus();  // letters go to rows, Down and Enter choose

  bindings.Add(list_, armies);
  bindings.Add([this] { Narrow(); });
  connect(search_, &QLineEdit::textChanged, this, &ArmyPicker::Narrow);
}

bool ArmyPicker::eventFilter(QObject* /*search*/, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Down) return false;
  const bool any = list_->NextRow() >= 0;
  if (any && list_->selectedItems().isEmpty()) list_->setCurrentRow(list_->NextRow());
  if (any) list_->setFocus();
  return true;
}

void ArmyPicker::Narrow() {
  const QString text = search_->text();
  int left = 0;
  for (int row = 0; row < list_->count(); ++row) {
    const bool fits = list_->item(row)->text().contains(text, Qt::CaseInsensitive);
    list_->ShowRow(row, fits);
    left += fits;
  }
  const int cursor = list_->currentRow();
  if (cursor >= 0 && list_->isRowHidden(cursor)) list_->setCurrentRow(-1);
  count_->setText(text.isEmpty() ? "" : QString("%1 of %2").arg(left).arg(list_->count()));
}

}  // namespace tarnwick
