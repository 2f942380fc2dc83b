// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QIcon>

#include "ui/panels/panel_widget.h"

namespace tarnwick {

class TerrainTile;

/// Panel 3: the terrain palette, the nine areas, the free points. A piece is dragged onto an area,
/// or picked and put down by clicks or keys.
class TerrainPanelWidget : public PanelWidget {
 public:
  explicit TerrainPanelWidget(Session& session);

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* NewPalette();
  QWidget* NewAreas();
  QWidget* NewPointsFrame();
  void AddPicture(TerrainTile* tile, const PictureBox& control);
  /// "Area 4: Mountain"
  QString AreaText(int area) const;
  /// Makes the battlefield as large as there is room.
  void FitAreas();
  void Pick(std::optional<int> piece);
  void PutDown(int piece, int area);

  std::array<QIcon, 6> pictures_;
  std::vector<TerrainTile*> pieces_, areas_;
  std::optional<int> picked_;
};

}  // namespace tarnwick
