// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/panels/panel_widget.h"

namespace tarnwick {

/// Panel 5: the monster laboratory.
class MonsterPanelWidget : public PanelWidget {
 public:
  explicit MonsterPanelWidget(Session& session);
};

}  // namespace tarnwick
