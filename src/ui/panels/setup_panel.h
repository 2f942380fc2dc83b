// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/panels/panel_widget.h"

namespace tarnwick {

/// Panel 6: the army's setups, and the deployment of the one that is chosen.
class SetupPanelWidget : public PanelWidget {
 public:
  explicit SetupPanelWidget(Session& session);

 private:
  QWidget* NewSetupList();
  QWidget* NewSetupFrame();
  QWidget* NewZone(int index, const char* caption, int firstPlace, int lastPlace, QWidget* parent);
};

}  // namespace tarnwick
