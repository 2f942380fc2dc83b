// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/panels/panel_widget.h"

namespace tarnwick {

/// Panel 4: the module, the army's name and file, new, load and save.
class ManagementPanelWidget : public PanelWidget {
 public:
  explicit ManagementPanelWidget(Session& session);

 private:
  QWidget* NewModuleFrame();
  QWidget* NewNameFrame();
  /// Shows where the module's army files are.
  void OpenFolder();
  QWidget* NewButtons();
};

}  // namespace tarnwick
