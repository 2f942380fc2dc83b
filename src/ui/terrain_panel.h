// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/panel_widget.h"

namespace tarnwick {

/// Panel 3: the terrain palette, the nine areas, the free points.
class TerrainPanelWidget : public PanelWidget {
 public:
  explicit TerrainPanelWidget(Session& session);

 private:
  QWidget* NewPalette();
  QWidget* NewAreas();
  QWidget* NewPointsFrame();
};

}  // namespace tarnwick
