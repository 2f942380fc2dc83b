// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include <QWidget>

#include "armyfile/army_summary.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace tarnwick {

/// What comes next: all that the army still lacks, or how to begin or end with it. Choosing a line
/// brings the panel to the front where it is done.
class StepsFrame : public QWidget {
 public:
  StepsFrame(std::function<void(Panel)> open, QWidget* parent);

  void Show(const ArmySummary& summary);
  /// A button with a menu of the lines in place of the list.
  void Fold(bool folded);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Steps {
    QString Heading;
    std::vector<std::pair<QString, Panel>> Lines;
  };
  static Steps StepsOf(const ArmySummary& summary);
  /// Makes the list as high as its lines.
  void FitList();
  void AddMenu();
  void Open(int line);

  std::function<void(Panel)> open_;
  Steps steps_;
  QLabel* heading_;
  QListWidget* list_;
  QPushButton* button_;
};

}  // namespace tarnwick
