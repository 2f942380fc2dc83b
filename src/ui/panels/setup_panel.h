// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "ui/panels/panel_widget.h"

class QGridLayout;
class QKeyEvent;
class QLayout;
class QPushButton;

namespace tarnwick {

class EntryList;
class Thumbnail;

/// Panel 6: the army's setups, and the deployment of the one that is chosen.
class SetupPanelWidget : public PanelWidget {
 public:
  explicit SetupPanelWidget(Session& session);

  void Refresh() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* NewSetupList();
  QWidget* NewSetupFrame();
  QLayout* NewUnitList(QWidget* parent);
  QWidget* NewZone(int index, const char* caption, int firstPlace, int lastPlace, QWidget* parent);
  void AddPlace(int place, const QString& spoken, QGridLayout* layout, int row, QWidget* zone);
  /// Says what holds the place, and what its button does next.
  void ShowPlace(const QString& spoken, QLabel* unit, QPushButton* assign) const;
  bool DeployByKey(const QKeyEvent& key);
  /// Shows the pictures of the units.
  void ShowThumbnails();
  /// Deploys the unit of a row to a place; −1 is none.
  void Deploy(int row, int place);

  EntryList *setups_ = nullptr, *units_ = nullptr;
  std::vector<Thumbnail*> thumbnails_;  ///< by place
};

}  // namespace tarnwick
