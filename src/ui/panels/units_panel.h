// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/panels/panel_widget.h"

class QGridLayout;
class QHBoxLayout;

namespace tarnwick {

/// Panel 0: the unit selection grid, the limits, the summary, verification.
class UnitsPanelWidget : public PanelWidget {
 public:
  explicit UnitsPanelWidget(Session& session);

 private:
  QWidget* NewViewFrame();
  QWidget* NewSummaryFrame();
  QWidget* NewGrid();
  void AddGridHeadings(QWidget* grid, QGridLayout* layout);
  void AddGridLine(int line, QWidget* grid, QGridLayout* layout);
  QWidget* NewLimitsFrame();
};

}  // namespace tarnwick
