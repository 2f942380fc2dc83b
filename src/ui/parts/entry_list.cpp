// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/entry_list.h"

#include <QKeyEvent>

namespace tarnwick {

EntryList::EntryList(const QString& name, QWidget* parent) : QListWidget(parent) {
  setObjectName(name);
}

int EntryList::NextRow() const {
  int row = currentRow();
  if (row >= 0 && !isRowHidden(row)) return row;
  for (row = 0; row < count(); ++row) {
    if (!isRowHidden(row)) return row;
  }
  return -1;
}

void EntryList::focusInEvent(QFocusEvent* event) {
  const bool cursor = currentIndex().isValid();
  QListWidget::focusInEvent(event);
  // The toolkit puts the cursor on the first row, from where an arrow key would go to the second.
  if (!cursor) selectionModel()->clearCurrentIndex();
}

void EntryList::keyPressEvent(QKeyEvent* event) {
  if (act_ && act_(*event)) return;
  const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (arrow && selectedItems().isEmpty()) {
    setCurrentRow(NextRow());
  } else {
    QListWidget::keyPressEvent(event);
  }
}

}  // namespace tarnwick
