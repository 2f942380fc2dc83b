// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/limits_frame.h"

#include <QGridLayout>

#include "base/numbers.h"
#include "ui/parts/colours.h"
#include "ui/parts/gauges.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

constexpr int lineCount = 7;
constexpr int foldedLines = 3;   ///< beside each other
constexpr int limitColumns = 6;  ///< of the grid, with the one between two limits

/// The columns of a limit.
enum Column { met, type, have, slash, least };

}  // namespace

std::array<QWidget*, 5> LimitsFrame::Line::Widgets() const {
  return {Met, Type, Have, Slash, Least};
}

LimitsFrame::LimitsFrame(const UnitsPanel& units, QWidget* parent)
    : QWidget(parent), grid_(new QGridLayout(this)) {
  setObjectName("Frame2");
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setVerticalSpacing(2);
  title_ = NewHeading("", "Limits", this);
  grid_->addWidget(title_, 0, 0, 1, limitColumns);
  headings_ = {NewHint("Label2", "Type", this), NewHint("", "Have", this),
               NewHint("Label3", "Min", this)};
  grid_->addWidget(headings_[0], 1, type);
  grid_->addWidget(headings_[1], 1, have, Qt::AlignRight);
  grid_->addWidget(headings_[2], 1, least, Qt::AlignRight);
  for (int j = 0; j < lineCount; ++j)
    AddLine(j, units);
}

void LimitsFrame::AddLine(int j, const UnitsPanel& units) {
  const Line line = {new Mark(this), NewLabel(ElementName("TypeLimit", j), "", this),
                     NewNumberLabel(ElementName("HaveLimit", j), this), NewLabel("", "/", this),
                     NewNumberLabel(ElementName("MinLimit", j), this)};
  bindings_.Add(line.Type, units.TypeLimit[j]);
  bindings_.Add(line.Least, units.MinLimit[j]);
  for (QWidget* other : {static_cast<QWidget*>(line.Met), static_cast<QWidget*>(line.Have),
                         static_cast<QWidget*>(line.Slash)})
    bindings_.AddVisible(other, units.TypeLimit[j].Visible);
  lines_.push_back(line);
}

void LimitsFrame::Fold(bool folded) {
  for (QLabel* heading : headings_)
    heading->setVisible(!folded);
  for (int j = 0; j < lineCount; ++j) {
    const int row = 2 + (folded ? j / foldedLines : j);
    int column = folded ? j % foldedLines * limitColumns : 0;
    for (QWidget* widget : lines_[static_cast<std::size_t>(j)].Widgets())
      grid_->addWidget(widget, row, column++);
  }
  grid_->setColumnStretch(type, folded ? 0 : 1);
  for (int j = 1; j < foldedLines; ++j)
    grid_->setColumnMinimumWidth(j * limitColumns - 1, folded ? 16 : 0);
  grid_->setColumnStretch(foldedLines * limitColumns, folded ? 1 : 0);
}

void LimitsFrame::Show(const ArmySummary& summary) {
  bindings_.Refresh();
  ShowTextColour(title_, summary.Begun ? TextColour() : HintColour());
  for (std::size_t j = 0; j < lines_.size(); ++j) {
    const Line& line = lines_[j];
    const LimitSummary* limit = j < summary.Limits.size() ? &summary.Limits[j] : nullptr;
    const bool lacking = limit != nullptr && !limit->Met;
    line.Met->Show(limit != nullptr ? std::optional(limit->Met) : std::nullopt);
    line.Have->setText(limit != nullptr ? ToQt(NumberText(limit->Have)) : "");
    for (QWidget* widget : line.Widgets())
      widget->setToolTip(limit != nullptr ? ToQt(limit->Counts) : "");
    for (QWidget* text : {line.Type, line.Have}) {
      ShowBold(text, lacking);
      ShowTextColour(text, lacking ? WarningColour() : TextColour());
    }
  }
}

}  // namespace tarnwick
