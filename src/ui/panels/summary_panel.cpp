// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/summary_panel.h"

#include <QFormLayout>
#include <QGridLayout>

#include "ui/panels/limits_frame.h"
#include "ui/panels/steps_frame.h"
#include "ui/parts/colours.h"
#include "ui/parts/gauges.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

/// "120 of 250"
QString OfWhole(const std::optional<Budget>& budget) {
  if (!budget) return "";
  return QString("%1 of %2").arg(budget->Left.Value()).arg(budget->Whole());
}

/// The text, or what stands for none.
QString TextOr(const char* none, const std::string& text) {
  return text.empty() ? none : ToQt(text);
}

}  // namespace

SummaryPanel::SummaryPanel(Session& session, const std::function<void(Panel)>& open,
                           QWidget* parent)
    : QWidget(parent), work_(session.Work) {
  setObjectName("Frame1");
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  rows_ = new QBoxLayout(QBoxLayout::TopToBottom, this);
  upper_ = new QBoxLayout(QBoxLayout::TopToBottom);
  lower_ = new QBoxLayout(QBoxLayout::TopToBottom);
  rows_->addLayout(upper_);
  rows_->addLayout(lower_, 1);

  AddNames();
  const UnitsPanel& units = work_.Army.Units;
  armyPoints_ = AddBudget(bindings_.Add(NewHeading("TotalCost", "", this), units.TotalCost));
  commandLeft_ = NewHeading("CommandLeft", "", this);
  commandPoints_ = AddBudget(commandLeft_);
  limits_ = new LimitsFrame(units, this);
  lower_->addWidget(limits_);
  // Below each other in the strip, too: beside each other they are wider than a small screen.
  ending_ = new QVBoxLayout;
  ending_->addWidget(NewArmyLines());
  steps_ = new StepsFrame(open, this);
  ending_->addWidget(steps_, 1);
  lower_->addLayout(ending_, 1);
  Fold(false);
}

void SummaryPanel::AddNames() {
  auto* title = NewTitle("Summary", this);
  name_ = NewHeading("SummaryName", "", this);
  base_ = NewHint("SummaryBase", "", this);
  auto* names = new QVBoxLayout;
  names->setSpacing(0);
  inShort_ = NewHint("SummaryInShort", "", this);
  for (QLabel* label : {name_, base_, inShort_}) {
    // Long names are cut; they must not make the column wider.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    names->addWidget(label);
  }
  upper_->addWidget(title);
  upper_->addLayout(names, 1);
  columnOnly_ = {title, base_};
  headings_.push_back(title);
}

SummaryPanel::BudgetView SummaryPanel::AddBudget(QLabel* left) {
  const BudgetView view = {NewHint("", "", this), new ShareBar(this)};
  view.Spent->setAlignment(Qt::AlignRight);
  headings_.push_back(left);
  columnOnly_.push_back(view.Spent);
  auto* layout = new QGridLayout;
  layout->setVerticalSpacing(4);
  layout->addWidget(left, 0, 0);
  layout->addWidget(view.Spent, 0, 1);
  layout->addWidget(view.Bar, 1, 0, 1, 2);
  upper_->addLayout(layout, 1);
  return view;
}

void SummaryPanel::BudgetView::Show(const std::optional<Budget>& budget) const {
  Spent->setText(budget ? QString("%1 spent").arg(budget->Spent.Value()) : "");
  const int whole = budget ? budget->Whole() : 0;
  Bar->Show(whole > 0 ? double{1} * budget->Spent.Value() / whole : 0);
}

QWidget* SummaryPanel::NewArmyLines() {
  auto* lines = new QWidget(this);
  auto* layout = new QFormLayout(lines);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setVerticalSpacing(2);
  layout->setHorizontalSpacing(16);
  const auto add = [&](const char* name, const char* caption) {
    auto* hint = NewHint("", caption, lines);
    auto* value = NewLabel(name, "", lines);
    value->setWordWrap(true);
    layout->addRow(hint, value);
    columnOnly_.insert(columnOnly_.end(), {hint, value});
    return value;
  };
  auto* heading = NewHeading("", "Army", lines);
  columnOnly_.push_back(heading);
  headings_.push_back(heading);
  layout->addRow(heading);
  leader_ = add("SummaryLeader", "Leader");
  cards_ = add("SummaryCards", "Cards");
  deck_ = add("SummaryDeck", "Deck");
  layout->addRow(bindings_.Add(NewLabel("TQinfo", "", lines), work_.Army.Units.TQinfo));
  return lines;
}

void SummaryPanel::Fold(bool folded) {
  for (QBoxLayout* row : {upper_, lower_}) {
    row->setDirection(folded ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    row->setSpacing(16);
  }
  for (QWidget* widget : columnOnly_)
    widget->setVisible(!folded);
  inShort_->setVisible(folded);
  limits_->Fold(folded);
  steps_->Fold(folded);
  rows_->setContentsMargins(16, folded ? 8 : 12, 16, folded ? 8 : 16);
  for (QBoxLayout* column : {rows_, ending_})
    column->setSpacing(folded ? 4 : 16);
  const int columnWidth = TextWidth(this, 40);
  setMinimumWidth(folded ? 0 : columnWidth);
  setMaximumWidth(folded ? QWIDGETSIZE_MAX : columnWidth);
}

void SummaryPanel::Refresh() {
  bindings_.Refresh();
  const ArmyState& army = work_.Army;
  const ArmySummary summary = Summarize(work_);
  const bool begun = summary.Begun;
  name_->setText(begun ? ToQt(army.Management.ArmyName.Text) : "No army yet");
  base_->setText(begun ? ToQt(army.BaseArmyName) : "Choose a base army or load a saved one.");
  armyPoints_.Show(summary.Army);
  commandPoints_.Show(summary.Command);
  commandLeft_->setText("Command left: " + OfWhole(summary.Command));
  leader_->setText(TextOr("no leader", summary.Leader));
  const bool leaderless = begun && summary.Leader.empty();
  ShowTextColour(leader_, leaderless ? WarningColour() : TextColour());
  for (QLabel* heading : headings_)
    ShowTextColour(heading, begun ? TextColour() : HintColour());
  cards_->setText(TextOr("none", summary.Cards));
  deck_->setText(TextOr("none", summary.Deck));
  inShort_->setText(QStringList{leader_->text(), cards_->text(), deck_->text()}.join(", "));
  inShort_->setToolTip(base_->text() + "\n" + inShort_->text());
  limits_->Show(summary);
  steps_->Show(summary);
}

}  // namespace tarnwick
