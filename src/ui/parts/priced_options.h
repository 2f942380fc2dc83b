// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QButtonGroup>
#include <QObject>

class QKeyEvent;

namespace tarnwick {

/// The keys of options whose choice costs something: the arrow keys only move the focus, Space and
/// Enter tick. Tab goes to the ticked option or the first one, and out of the group again.
class PricedOptions : public QObject {
 public:
  explicit PricedOptions(QButtonGroup* group);

 protected:
  bool eventFilter(QObject* option, QEvent* event) override;

 private:
  QAbstractButton* Entrance() const;
  bool TakesKey(QAbstractButton* option, const QKeyEvent& key);
  void Move(QAbstractButton* from, int step);

  QButtonGroup* group_;
};

}  // namespace tarnwick
