// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include <QListWidget>

namespace tarnwick {

/// A list that can be without a selection. The first arrow key then selects the entry that has the
/// cursor, which a list that has just got the focus does not have, or the first one. Its entries
/// may be dragged onto a DropPlace.
class EntryList : public QListWidget {
 public:
  EntryList(const QString& name, QWidget* parent);

  /// Shows or hides a row; the keys pass a hidden one by.
  void ShowRow(int row, bool shown);
  /// The row that the next arrow key selects when none is selected; −1 in a list without any.
  int NextRow() const;
  /// `act` gets every key first and says whether it has done with it.
  void OnKey(std::function<bool(const QKeyEvent& key)> act) { act_ = std::move(act); }

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QList<QListWidgetItem*>& entries) const override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

 private:
  int ShownRow(int from, int step) const;

  std::function<bool(const QKeyEvent&)> act_;
};

/// Takes the entries of an EntryList that are dropped on `place`.
class DropPlace : public QObject {
 public:
  /// `drop` takes the row; `mark` shows whether an entry is held over the place.
  DropPlace(QWidget* place, std::function<void(int row)> drop, std::function<void(bool)> mark);

 protected:
  bool eventFilter(QObject* place, QEvent* event) override;

 private:
  std::function<void(int)> drop_;
  std::function<void(bool)> mark_;
};

}  // namespace tarnwick
