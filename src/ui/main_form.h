// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include <QWidget>

#include "rules/army_state.h"

class QStackedLayout;
class QVBoxLayout;

namespace tarnwick {

class PanelButton;
class PanelWidget;
class Session;

/// The main window: the column of panel buttons and the stack of panels.
class MainForm : public QWidget {
 public:
  explicit MainForm(Session& session);

  /// Runs the start-up. False when a run-time error ended it.
  [[nodiscard]] bool Start();

  /// Shows the whole state.
  void Refresh();

 private:
  QWidget* NewButtonColumn();
  void AddPanelButton(QVBoxLayout* column, const char* name, const char* caption, Panel panel,
                      std::function<void()> show = nullptr);
  void AddQuickSave(QVBoxLayout* column);
  QWidget* NewPanelStack();

  Session& session_;
  std::vector<std::pair<Panel, PanelButton*>> panelButtons_;
  std::vector<PanelWidget*> panels_;
  QStackedLayout* editFrame_ = nullptr;
};

}  // namespace tarnwick
