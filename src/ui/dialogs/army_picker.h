// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "ui/parts/bindings.h"

namespace tarnwick {

class EntryList;

/// A list of armies below a box that narrows it as one types. Entries that are narrowed away stay
/// in the state, but not selected.
class ArmyPicker : public QWidget {
 public:
  /// Ties the list to `armies`.
  ArmyPicker(ListBox& armies, Bindings& bindings, QWidget* parent);

  EntryList* List() const { return list_; }

 protected:
  bool eventFilter(QObject* search, QEvent* event) override;

 private:
  void Narrow();

  QLineEdit* search_;
  EntryList* list_;
  QLabel* count_;  ///< says how many are left
};

}  // namespace tarnwick
