// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include <QWidget>

#include "rules/army_state.h"
#include "ui/dialogs/guide_window.h"

class QBoxLayout;
class QScrollArea;
class QStackedLayout;
class QVBoxLayout;

namespace tarnwick {

class PanelButton;
class PanelWidget;
class Session;
class SummaryPanel;

/// The main window: the column of panel buttons, the stack of panels, the summary.
class MainForm : public QWidget {
 public:
  /// `guideFolder` holds the text of the guide.
  MainForm(Session& session, std::filesystem::path guideFolder);

  /// Runs the start-up. False when a run-time error ended it.
  [[nodiscard]] bool Start();

  /// Shows the whole state.
  void Refresh();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  /// Sees when the summary, and so the window, is first painted.
  bool eventFilter(QObject* summary, QEvent* event) override;

 private:
  QWidget* NewButtonColumn();
  void AddPanelButton(QVBoxLayout* column, const char* name, const char* caption, Panel panel,
                      std::function<void()> show = nullptr);
  void AddQuickSave(QVBoxLayout* column);
  void AddSteps(QVBoxLayout* column);
  QWidget* NewPanelStack();
  /// Makes those panels that are missing. At first it is the one in front alone: the others would
  /// hold up the start. They come when the window has been painted, or with the first event.
  void MakePanels();
  void MakePanel(std::size_t index);
  /// Shows the panel in front.
  void ShowFront();
  /// What a panel scrolls in, on the stack.
  QScrollArea* NewView(PanelWidget* panel);
  void AddShortcuts();
  void Open(Panel panel);
  void StepBy(int panels);
  /// Opens the guide at the panel in front.
  void ShowGuide();
  /// Asks what to do with an army that is not saved.
  bool MayClose();

  Session& session_;
  std::vector<std::pair<Panel, PanelButton*>> panelButtons_;
  std::vector<PanelWidget*> panels_;
  std::vector<QScrollArea*> views_;  ///< of the panels that were in front
  PanelButton *quickSave_ = nullptr, *undo_ = nullptr, *redo_ = nullptr;
  QStackedLayout* editFrame_ = nullptr;
  QBoxLayout* contents_;  ///< panels and summary
  SummaryPanel* summary_;
  std::filesystem::path guideFolder_;
  std::optional<GuideWindow> guide_;  ///< once it was asked for
};

}  // namespace tarnwick
