// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/panels/panel_widget.h"

class QGridLayout;
class QKeyEvent;
class QLayout;

namespace tarnwick {

class EntryList;

/// Panel 6: the army's setups, and the deployment of the one that is chosen.
class SetupPanelWidget : public PanelWidget {
 public:
  explicit SetupPanelWidget(Session& session);

 private:
  QWidget* NewSetupList();
  QWidget* NewSetupFrame();
  QLayout* NewUnitList(QWidget* parent);
  QWidget* NewZone(int index, const char* caption, int firstPlace, int lastPlace, QWidget* parent);
  void AddPlace(int place, QGridLayout* layout, int row, QWidget* zone);
  bool DeployByKey(const QKeyEvent& key);
  /// Deploys the unit of a row to a place; −1 is none.
  void Deploy(int row, int place);

  EntryList* units_ = nullptr;
};

}  // namespace tarnwick
