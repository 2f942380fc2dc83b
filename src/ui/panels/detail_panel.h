// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/panels/panel_widget.h"

namespace tarnwick {

/// Panel 2: the army's description, period, type and special rules.
class DetailPanelWidget : public PanelWidget {
 public:
  explicit DetailPanelWidget(Session& session);

 private:
  QWidget* NewDescriptionFrame();
  QWidget* NewPeriodFrame();
  QWidget* NewTypeFrame();
  QWidget* NewRulesFrame();
  QCheckBox* NewCheckBox(const char* name, const QString& caption, CheckBox& control,
                         QWidget* parent);
};

}  // namespace tarnwick
