// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/main_form.h"

#include <array>
#include <iterator>
#include <utility>

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedLayout>
#include <QVBoxLayout>

#include "battlefield/setups.h"
#include "battlefield/terrain.h"
#include "ui/panels/command_panel.h"
#include "ui/panels/detail_panel.h"
#include "ui/panels/management_panel.h"
#include "ui/panels/monster_panel.h"
#include "ui/panels/setup_panel.h"
#include "ui/panels/summary_panel.h"
#include "ui/panels/terrain_panel.h"
#include "ui/panels/units_panel.h"
#include "ui/parts/application_style.h"
#include "ui/parts/entry_guard.h"
#include "ui/parts/message_box.h"
#include "ui/parts/panel_button.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/session.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

namespace {

/// A narrower window has the summary in a strip below the panels.
constexpr int narrow = 1200;

constexpr QSize usualSize(1280, 800);

/// Keys, and the buttons that they press one after the other.
constexpr std::pair<const char*, std::array<const char*, 2>> shortcuts[] = {
    {"Ctrl+1", {"ShowUnitsBtn"}},
    {"Ctrl+2", {"ShowCommandBtn"}},
    {"Ctrl+3", {"ShowDetailBtn"}},
    {"Ctrl+4", {"ShowTerrainBtn"}},
    {"Ctrl+5", {"ShowSetup"}},
    {"Ctrl+6", {"ShowSaveFrame"}},
    {"Ctrl+N", {"ShowSaveFrame", "NewArmyBtn"}},
    {"Ctrl+O", {"ShowSaveFrame", "LoadBtn"}},
    {"Ctrl+P", {"SheetBtn"}}};

/// Of the guide, in the order of Panel.
constexpr std::array sections = {"units.md",  "leaders.md", "description.md", "terrain.md",
                                 "saving.md", "brakka.md",  "setups.md"};
static_assert(sections.size() == static_cast<std::size_t>(Panel::Setup) + 1);

template <typename Widget>
PanelWidget* New(Session& session) {
  return new Widget(session);
}

/// What makes the panels, in the same order.
constexpr std::array<PanelWidget* (*)(Session&), sections.size()> makers = {
    New<UnitsPanelWidget>,   New<CommandPanelWidget>,    New<DetailPanelWidget>,
    New<TerrainPanelWidget>, New<ManagementPanelWidget>, New<MonsterPanelWidget>,
    New<SetupPanelWidget>};

/// The button takes back, or does again, the step of that name, if there is one.
void ShowStep(QPushButton* button, const char* does, const std::string& step) {
  const QString name = ToQt(step);
  const QString tip = name.isEmpty() ? does : QString("%1: %2").arg(does, name);
  if (button->toolTip() == tip) return;
  button->setToolTip(tip);
  button->setEnabled(!name.isEmpty());
}

}  // namespace

MainForm::MainForm(Session& session, std::filesystem::path guideFolder)
    : session_(session), guideFolder_(std::move(guideFolder)) {
  setObjectName("MainForm");
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(NewButtonColumn());
  contents_ = new QBoxLayout(QBoxLayout::LeftToRight);
  contents_->addWidget(NewPanelStack(), 1);
  summary_ = new SummaryPanel(
      session_, [this](Panel panel) { Open(panel); }, this);
  contents_->addWidget(summary_);
  summary_->installEventFilter(this);
  layout->addLayout(contents_, 1);
  AddShortcuts();
  // Left to itself a window takes two thirds of the screen at most.
  resize(usualSize.boundedTo(screen()->availableSize()));
  session_.OnChange(this, [this] { Refresh(); });
}

bool MainForm::Start() {
  if (!session_.Run([this] { Form_Load(session_.Work, session_.Store); })) return false;
  panels_.at(static_cast<std::size_t>(session_.Work.Army.EditFrame.Front))->FocusFirst();
  return true;
}

void MainForm::Refresh() {
  const ArmyState& army = session_.Work.Army;
  const QString title = ToQt(army.Title);
  if (windowTitle() != title) setWindowTitle(title);
  MakePanels();
  for (PanelWidget* panel : panels_)
    if (panel != nullptr) panel->Refresh();
  summary_->Refresh();
  ShowFront();
  for (const auto& [panel, button] : panelButtons_)
    button->setChecked(panel == army.EditFrame.Front);
  const bool unsaved = session_.Steps().Unsaved();
  quickSave_->Mark(unsaved);
  quickSave_->setAccessibleDescription(unsaved ? "There is something to save" : "");
  ShowStep(undo_, "Undo", session_.Steps().UndoName());
  ShowStep(redo_, "Redo", session_.Steps().RedoName());
}

void MainForm::MakePanels() {
  if (panels_.empty()) {
    panels_.resize(makers.size());
    MakePanel(static_cast<std::size_t>(session_.Work.Army.EditFrame.Front));
  } else {
    for (std::size_t i = 0; i < makers.size(); ++i)
      if (panels_[i] == nullptr) MakePanel(i);
  }
}

void MainForm::MakePanel(std::size_t index) {
  PanelWidget* panel = makers.at(index)(session_);
  panels_[index] = panel;
  panel->setParent(editFrame_->parentWidget());
  panel->hide();  // it is laid out when it first comes to the front
  // The summary was made before; Tab comes there after the panel all the same.
  QWidget* last = previousInFocusChain();
  while (!(last->focusPolicy() & Qt::TabFocus))
    last = last->previousInFocusChain();
  for (auto* control : summary_->findChildren<QWidget*>()) {
    if (!(control->focusPolicy() & Qt::TabFocus)) continue;
    setTabOrder(last, control);
    last = control;
  }
}

bool MainForm::eventFilter(QObject* summary, QEvent* event) {
  if (event->type() == QEvent::Paint) {
    summary->removeEventFilter(this);
    const auto showAll = [this] {
      session_.Run([] {});
      ShowIcon();
    };
    QMetaObject::invokeMethod(this, showAll, Qt::QueuedConnection);
  }
  return false;
}

void MainForm::ShowFront() {
  const auto front = static_cast<std::size_t>(session_.Work.Army.EditFrame.Front);
  PanelWidget* panel = panels_.at(front);
  QScrollArea*& view = views_[front];
  if (view == nullptr) view = NewView(panel);
  if (editFrame_->currentWidget() == view) return;
  // Before the panel is shown, which would give the focus back to the box that had it last, to be
  // checked when it is left again.
  panel->FocusFirst();
  editFrame_->setCurrentWidget(view);
}

QScrollArea* MainForm::NewView(PanelWidget* panel) {
  auto* view = new QScrollArea(this);
  view->setFrameShape(QFrame::NoFrame);
  view->setFocusPolicy(Qt::NoFocus);
  view->setWidgetResizable(true);
  view->setWidget(panel);
  panel->show();
  editFrame_->addWidget(view);
  return view;
}

void MainForm::keyPressEvent(QKeyEvent* event) {
  auto* button = qobject_cast<QAbstractButton*>(focusWidget());
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && button != nullptr) {
    button->click();
  } else if (event->matches(QKeySequence::HelpContents)) {
    ShowGuide();  // no shortcut, which would have the box checked that has the focus
  } else {
    QWidget::keyPressEvent(event);
  }
}

void MainForm::resizeEvent(QResizeEvent* event) {
  const bool folded = width() < narrow;
  const auto direction = folded ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
  if (contents_->direction() != direction) {
    contents_->setDirection(direction);
    summary_->Fold(folded);
  }
  QWidget::resizeEvent(event);
}

void MainForm::AddShortcuts() {
  const auto add = [this](const QKeySequence& key, const std::function<void()>& act) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, act);
  };
  for (const auto& [key, buttons] : shortcuts) {
    add(QKeySequence(key), [this, &buttons = buttons] {
      for (const char* name : buttons)
        if (name != nullptr) findChild<QAbstractButton*>(name)->click();
    });
  }
  add(QKeySequence("Ctrl+PgUp"), [this] { StepBy(-1); });
  add(QKeySequence("Ctrl+PgDown"), [this] { StepBy(1); });
  add(QKeySequence("Ctrl+Q"), [this] { close(); });
  add(undoKey, [this] { session_.Undo(); });
  for (const QKeyCombination key : redoKeys)
    add(key, [this] { session_.Redo(); });
}

void MainForm::closeEvent(QCloseEvent* event) {
  event->setAccepted(!session_.HasChanges() || MayClose());
}

bool MainForm::MayClose() {
  constexpr auto buttons = QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
  const auto answer = ShowBox(QMessageBox::Question, "Save the changes to this army?", buttons);
  if (answer == QMessageBox::Save) return session_.Leave(this) && session_.Save();
  return answer == QMessageBox::Discard;
}

void MainForm::Open(Panel panel) {
  for (const auto& [shown, button] : panelButtons_)
    if (shown == panel) button->click();
}

void MainForm::StepBy(int panels) {
  const auto front = std::ranges::find(panelButtons_, session_.Work.Army.EditFrame.Front,
                                       &decltype(panelButtons_)::value_type::first);
  const auto next = (front - panelButtons_.begin()) + panels;
  if (next >= 0 && next < std::ssize(panelButtons_)) {
    panelButtons_[static_cast<std::size_t>(next)].second->click();
  }
}

void MainForm::ShowGuide() {
  if (!guide_) guide_.emplace(guideFolder_);
  const ArmyState& army = session_.Work.Army;
  const Panel front = army.EditFrame.Front;
  const bool beginner = front == Panel::Management && army.TotUnits == 0;
  guide_->Open(beginner ? "first-army.md" : sections.at(static_cast<std::size_t>(front)));
}

QWidget* MainForm::NewButtonColumn() {
  auto* column = new QWidget(this);
  column->setAutoFillBackground(true);
  column->setBackgroundRole(QPalette::Button);
  auto* layout = new QVBoxLayout(column);
  layout->setSpacing(2);
  AddPanelButton(layout, "ShowUnitsBtn", "&Units", Panel::Units);
  AddPanelButton(layout, "ShowCommandBtn", "&Command", Panel::Command);
  AddPanelButton(layout, "ShowDetailBtn", "&Detail", Panel::Detail);
  AddPanelButton(layout, "ShowTerrainBtn", "&Terrain", Panel::Terrain,
                 [this] { ShowTerrainBtn_Click(session_.Work.Field, session_.Work.Army); });
  AddPanelButton(layout, "ShowSetup", "&Setup", Panel::Setup,
                 [this] { ShowSetup_Click(session_.Work.Field, session_.Work.Army); });
  AddPanelButton(layout, "ShowSaveFrame", "&Load/Save", Panel::Management);
  layout->addSpacing(16);
  AddQuickSave(layout);
  AddSteps(layout);
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
  quickSave_ = new PanelButton("QuickSave", "&QuickSave", this);
  column->addWidget(quickSave_);
  auto* entry = Named(new QAction("QuickSave", this), "mQuickSave");
  entry->setShortcut(QKeySequence::Save);
  addAction(entry);
  const auto save = [this] { session_.Save(); };
  connect(quickSave_, &QPushButton::clicked, this, save);
  connect(entry, &QAction::triggered, this, save);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  quickSave_->setToolTip("Save the army (" + entry->shortcut().toString(QKeySequence::NativeText) +
                         ")");
}

void MainForm::AddSteps(QVBoxLayout* column) {
  auto* row = new QHBoxLayout;
  const auto add = [&](const char* name, const char* spoken, const std::function<void()>& act) {
    auto* button = new PanelButton(name, "", this);
    button->setAccessibleName(spoken);
    button->setFocusPolicy(Qt::NoFocus);  // the box that has it is not left
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, act);
    return button;
  };
  undo_ = add("UndoBtn", "Undo", [this] { session_.Undo(); });
  redo_ = add("RedoBtn", "Redo", [this] { session_.Redo(); });
  undo_->setIcon(TurnIcon(true));
  redo_->setIcon(TurnIcon(false));
  for (PanelButton* button : {undo_, redo_})
    button->setEnabled(false);
  auto* guide = add("GuideBtn", "Guide", [this] { ShowGuide(); });
  guide->setText("?");
  guide->setToolTip("Guide (F1)");
  column->addLayout(row);
}

QWidget* MainForm::NewPanelStack() {
  auto* stack = new QWidget(this);
  editFrame_ = new QStackedLayout(stack);
  views_.resize(makers.size());
  return stack;
}

}  // namespace tarnwick
