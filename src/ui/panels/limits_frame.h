// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <vector>

#include "armyfile/army_summary.h"
#include "ui/parts/bindings.h"

class QGridLayout;

namespace tarnwick {

class Mark;

/// The limits of the base army: what the army has and what it needs.
class LimitsFrame : public QWidget {
 public:
  LimitsFrame(const UnitsPanel& units, QWidget* parent);

  void Show(const ArmySummary& summary);
  /// Several limits on a line, without headings over them.
  void Fold(bool folded);

 private:
  struct Line {
    Mark* Met;
    QLabel *Type, *Have, *Slash, *Least;
    std::array<QWidget*, 5> Widgets() const;
  };

  void AddLine(int j, const UnitsPanel& units);

  Bindings bindings_;
  QGridLayout* grid_;
  QLabel* title_;
  std::vector<QLabel*> headings_;
  std::vector<Line> lines_;
};

}  // namespace tarnwick
