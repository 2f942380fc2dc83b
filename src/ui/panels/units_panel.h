// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "ui/panels/panel_widget.h"

class QGridLayout;
class QLabel;

namespace tarnwick {

/// Panel 0: the unit selection grid, verification, reset.
class UnitsPanelWidget : public PanelWidget {
 public:
  explicit UnitsPanelWidget(Session& session);

  void Refresh() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* NewViewFrame();
  QWidget* NewGrid();
  void AddHeadings();
  void AddTexts(int line);
  void AddQuantity(int line);
  void AddPictures(int line);
  void AddAbilities(int line);
  /// Type and class of what a line shows.
  std::string UnitName(int line) const;
  /// For when another view has taken the line away that had the focus.
  void FocusLastQuantity();
  /// Says of which line each control of it is.
  void ShowSpokenNames();
  /// Lets the rows share the height there is, within what looks well.
  void FitRows();

  /// The controls of a line.
  struct Line {
    QWidget *Quantity, *Pictures, *View, *Abilities;
  };

  QGridLayout* grid_ = nullptr;
  QLabel* warning_ = nullptr;
  std::vector<Line> lines_;
};

}  // namespace tarnwick
