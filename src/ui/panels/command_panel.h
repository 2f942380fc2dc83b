// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/panels/panel_widget.h"

class QGridLayout;
class QLabel;

namespace tarnwick {

/// Panel 1: leaders and special cards.
class CommandPanelWidget : public PanelWidget {
 public:
  explicit CommandPanelWidget(Session& session);

  void Refresh() override;

 private:
  QWidget* NewLeaderFrame();
  /// "" for −1.
  std::string NameOf(Int16 leader) const;
  QWidget* NewSpecialFrame();
  void AddCardRow();

  QWidget* cards_ = nullptr;
  QGridLayout* cardRows_ = nullptr;
  QLabel* cardsWarning_ = nullptr;
  QWidget* lastControl_ = nullptr;  ///< of those that are there, in the order of Tab
  int cardRowCount_ = 0;
};

}  // namespace tarnwick
