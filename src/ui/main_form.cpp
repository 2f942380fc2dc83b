// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/main_form.h"

#include <QAction>
#include <QHBoxLayout>
#include <QStackedLayout>
#include <QVBoxLayout>

#include "armyfile/saving.h"
#include "battlefield/setups.h"
#include "battlefield/terrain.h"
#include "ui/panels/command_panel.h"
#include "ui/panels/detail_panel.h"
#include "ui/panels/management_panel.h"
#include "ui/panels/monster_panel.h"
#include "ui/panels/setup_panel.h"
#include "ui/panels/terrain_panel.h"
#include "ui/panels/units_panel.h"
#include "ui/parts/panel_button.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/session.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

MainForm::MainForm(Session& session) : session_(session) {
  setObjectName("MainForm");
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(NewButtonColumn());
  layout->addWidget(NewPanelStack(), 1);
  session_.OnChange(this, [this] { Refresh(); });
}

bool MainForm::Start() {
  if (!session_.Run([this] { Form_Load(session_.Work, session_.Store); })) return false;
  editFrame_->currentWidget()->setFocus();
  return true;
}

void MainForm::Refresh() {
  const ArmyState& army = session_.Work.Army;
  const QString title = ToQt(army.Title);
  if (windowTitle() != title) setWindowTitle(title);
  for (PanelWidget* panel : panels_)
    panel->Refresh();
  const int front = static_cast<int>(army.EditFrame.Front);
  if (editFrame_->currentIndex() != front) editFrame_->setCurrentIndex(front);
  for (const auto& [panel, button] : panelButtons_)
    button->setChecked(panel == army.EditFrame.Front);
}

QWidget* MainForm::NewButtonColumn() {
  auto* column = new QWidget(this);
  column->setAutoFillBackground(true);
  column->setBackgroundRole(QPalette::Button);
  auto* layout = new QVBoxLayout(column);
  layout->setSpacing(2);
  AddPanelButton(layout, "ShowUnitsBtn", "Units", Panel::Units);
  AddPanelButton(layout, "ShowCommandBtn", "Command", Panel::Command);
  AddPanelButton(layout, "ShowDetailBtn", "Detail", Panel::Detail);
  AddPanelButton(layout, "ShowTerrainBtn", "Terrain", Panel::Terrain,
                 [this] { ShowTerrainBtn_Click(session_.Work.Field, session_.Work.Army); });
  AddPanelButton(layout, "ShowSetup", "Setup", Panel::Setup,
                 [this] { ShowSetup_Click(session_.Work.Field, session_.Work.Army); });
  AddPanelButton(layout, "ShowSaveFrame", "Load/Save", Panel::Management);
  layout->addSpacing(16);
  AddQuickSave(layout);
  layout->addStretch();
  const QString tip = "Edited on the panel Detail";
  layout->addWidget(NewIdleButton("HistoricalPeriod", "Define Historical Period", tip, this));
  layout->addWidget(NewIdleButton("SpecRulesBtn", "Special Rules", tip, this));
  layout->addWidget(NewIdleButton("DescriptionBtn", "Army description", tip, this));
  return column;
}

void MainForm::AddPanelButton(QVBoxLayout* column, const char* name, const char* caption,
                              Panel panel, std::function<void()> show) {
  auto* button = new PanelButton(name, caption, this);
  button->setCheckable(true);
  column->addWidget(button);
  panelButtons_.emplace_back(panel, button);
  if (!show) show = [this, panel] { ShowPanel(session_.Work.Army, panel); };
  session_.Connect(button, show);
}

void MainForm::AddQuickSave(QVBoxLayout* column) {
  auto* button = new PanelButton("QuickSave", "QuickSave", this);
  column->addWidget(button);
  auto* entry = Named(new QAction("QuickSave", this), "mQuickSave");
  entry->setShortcut(QKeySequence::Save);
  addAction(entry);
  const auto save = [this] { SaveArmy(session_.Work, session_.Store, session_.User); };
  session_.Connect(button, save);
  session_.Connect(entry, &QAction::triggered, save);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  button->setToolTip("Save the army (" + entry->shortcut().toString(QKeySequence::NativeText) +
                     ")");
}

QWidget* MainForm::NewPanelStack() {
  auto* stack = new QWidget(this);
  editFrame_ = new QStackedLayout(stack);
  // In the order of Panel.
  panels_ = {new UnitsPanelWidget(session_),      new CommandPanelWidget(session_),
             new DetailPanelWidget(session_),     new TerrainPanelWidget(session_),
             new ManagementPanelWidget(session_), new MonsterPanelWidget(session_),
             new SetupPanelWidget(session_)};
  for (PanelWidget* panel : panels_)
    editFrame_->addWidget(panel);
  return stack;
}

}  // namespace tarnwick
