// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/entry_list.h"

#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>

namespace tarnwick {
namespace {

constexpr const char* entryFormat = "application/x-tarnwick-entry";

}  // namespace

EntryList::EntryList(const QString& name, QWidget* parent) : QListWidget(parent) {
  setObjectName(name);
}

void EntryList::ShowRow(int row, bool shown) {
  if (isRowHidden(row) != shown) return;
  setRowHidden(row, !shown);
  QListWidgetItem* entry = item(row);
  entry->setFlags(entry->flags().setFlag(Qt::ItemIsEnabled, shown));  // letters pass it by
}

int EntryList::NextRow() const {
  const int row = currentRow();
  return row >= 0 && !isRowHidden(row) ? row : ShownRow(0, 1);
}

int EntryList::ShownRow(int from, int step) const {
  int row = from;
  while (row >= 0 && row < count() && isRowHidden(row))
    row += step;
  return row < count() ? row : -1;
}

QModelIndex EntryList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  // The toolkit goes to the very first and last row, hidden or not.
  if (action == MoveHome) return model()->index(ShownRow(0, 1), 0);
  if (action == MoveEnd) return model()->index(ShownRow(count() - 1, -1), 0);
  return QListWidget::moveCursor(action, modifiers);
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

QStringList EntryList::mimeTypes() const {
  return {entryFormat};
}

QMimeData* EntryList::mimeData(const QList<QListWidgetItem*>& entries) const {
  auto* entry = new QMimeData;  // the drag machinery deletes it
  entry->setData(entryFormat, QByteArray::number(row(entries.front())));
  return entry;
}

DropPlace::DropPlace(QWidget* place, std::function<void(int)> drop, std::function<void(bool)> mark)
    : QObject(place), drop_(std::move(drop)), mark_(std::move(mark)) {
  place->setAcceptDrops(true);
  place->installEventFilter(this);
}

bool DropPlace::eventFilter(QObject* /*place*/, QEvent* event) {
  const auto type = event->type();
  if (type == QEvent::DragEnter || type == QEvent::Drop) {
    auto* held = static_cast<QDropEvent*>(event);
    if (!held->mimeData()->hasFormat(entryFormat)) return false;
    held->setDropAction(Qt::CopyAction);  // the state takes the entry from the list
    held->accept();
    mark_(type == QEvent::DragEnter);
    if (type == QEvent::Drop) drop_(held->mimeData()->data(entryFormat).toInt());
    return true;
  }
  if (type == QEvent::DragLeave) mark_(false);
  return false;
}

}  // namespace tarnwick
