// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include <QWidget>

#include "armyfile/army_summary.h"
#include "ui/parts/bindings.h"
#include "ui/parts/session.h"

class QBoxLayout;

namespace tarnwick {

class LimitsFrame;
class ShareBar;
class StepsFrame;

/// The army at a glance, whatever panel is in front: what is spent, what the limits ask for, what
/// is still missing. A column beside the panels, or a strip below them.
class SummaryPanel : public QWidget {
 public:
  /// `open` brings a panel to the front.
  SummaryPanel(Session& session, const std::function<void(Panel)>& open, QWidget* parent);

  /// Shows the state.
  void Refresh();
  /// Makes it the strip, or the column again.
  void Fold(bool folded);

 private:
  /// Points of one kind: how many are spent, as a figure and as a bar.
  struct BudgetView {
    QLabel* Spent;
    ShareBar* Bar;
    void Show(const std::optional<Budget>& budget) const;
  };

  void AddNames();
  BudgetView AddBudget(QLabel* left);
  QWidget* NewArmyLines();

  WorkingArmy& work_;
  Bindings bindings_;
  QBoxLayout *rows_, *upper_, *lower_, *ending_;
  QLabel *name_, *base_, *inShort_, *commandLeft_;  ///< in short: what only the strip says
  BudgetView armyPoints_, commandPoints_;
  LimitsFrame* limits_;
  QLabel *leader_, *cards_, *deck_;
  StepsFrame* steps_;
  std::vector<QLabel*> headings_;
  std::vector<QWidget*> columnOnly_;  ///< what the strip has no room for
};

}  // namespace tarnwick
