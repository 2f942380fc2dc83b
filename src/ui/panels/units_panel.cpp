// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/units_panel.h"

#include <array>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "armyfile/resetting.h"
#include "rules/unit_grid.h"
#include "rules/unit_purchase.h"
#include "rules/verification.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

/// The grid's columns from left to right, the last two without a heading of their own in the rules.
enum Column { type, unitClass, tq, unitSize, missile, cost, most, total, buy, image, view, spec };

struct Heading {
  const char* Name;
  const char* Caption;
  int Characters;  ///< the column's width in digits; 0 takes what is left
  bool Number;
};

constexpr std::array<Heading, 12> headings = {{{"Label9", "Type", 5, false},
                                               {"Label10", "Cls", 5, false},
                                               {"Label11", "TQ", 5, true},
                                               {"Label12", "Sz", 4, true},
                                               {"Label13", "Mis", 5, false},
                                               {"Label14", "$$", 5, true},
                                               {"Label15", "Max", 5, true},
                                               {"Label16", "Total", 7, true},
                                               {"Label17", "Buy", 7, true},
                                               {"Label1", "Image", 0, false},
                                               {"ViewBtn", "", 7, false},
                                               {"SpecialTitle", "Special", 7, false}}};

constexpr int gridLines = 23;
constexpr int limitLines = 7;

}  // namespace

UnitsPanelWidget::UnitsPanelWidget(Session& session) : PanelWidget(Panel::Units, "Units", session) {
  auto* top = new QHBoxLayout;
  top->addWidget(NewViewFrame());
  top->addWidget(NewSummaryFrame(), 1);
  Body()->addLayout(top);

  auto* middle = new QHBoxLayout;
  middle->addWidget(NewGrid(), 1);
  auto* side = new QVBoxLayout;
  side->addWidget(NewLimitsFrame());
  auto* verify = Named(new QPushButton("Verify army", this), "VerifyBtn");
  auto* reset = Named(new QPushButton("Reset army", this), "ResetArmy");
  side->addWidget(verify);
  side->addWidget(reset);
  side->addStretch();
  middle->addLayout(side);
  Body()->addLayout(middle, 1);

  session_.Connect(verify, [this] { VerifyBtn_Click(army_, user_); });
  session_.Connect(reset, [this] { ResetArmy_Click(work_, disk_); });
}

QWidget* UnitsPanelWidget::NewViewFrame() {
  auto* frame = NewFrame("Frame4", "View ", this);
  auto* layout = new QHBoxLayout(frame);
  auto* views = NewOptions("ViewOption", 3, layout, frame);
  bindings_.Add(views, army_.Units.ViewOption);
  session_.Connect(views, [this] { ViewOption_Click(army_, disk_); });
  return frame;
}

QWidget* UnitsPanelWidget::NewSummaryFrame() {
  auto* frame = NewFrame("Frame1", "Summary", this);
  auto* layout = new QHBoxLayout(frame);
  layout->addWidget(bindings_.Add(NewLabel("TotalCost", "", frame), army_.Units.TotalCost));
  layout->addStretch();
  layout->addWidget(bindings_.Add(NewLabel("TQinfo", "", frame), army_.Units.TQinfo));
  return frame;
}

QWidget* UnitsPanelWidget::NewGrid() {
  auto* grid = new QWidget(this);
  auto* layout = new QGridLayout(grid);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setVerticalSpacing(1);
  layout->setHorizontalSpacing(12);
  AddGridHeadings(grid, layout);
  for (int line = 0; line < gridLines; ++line)
    AddGridLine(line, grid, layout);
  layout->setRowStretch(gridLines + 1, 1);
  return grid;
}

void UnitsPanelWidget::AddGridHeadings(QWidget* grid, QGridLayout* layout) {
  for (int column = 0; column < static_cast<int>(headings.size()); ++column) {
    const Heading& heading = headings.at(static_cast<std::size_t>(column));
    if (column != view) {
      auto* label = NewLabel(heading.Name, heading.Caption, grid);
      label->setForegroundRole(QPalette::PlaceholderText);
      if (heading.Number) label->setAlignment(Qt::AlignRight);
      layout->addWidget(label, 0, column);
    }
    layout->setColumnMinimumWidth(column, TextWidth(grid, heading.Characters));
  }
  layout->setColumnStretch(image, 3);
  layout->setColumnStretch(static_cast<int>(headings.size()), 1);
}

void UnitsPanelWidget::AddGridLine(int line, QWidget* grid, QGridLayout* layout) {
  UnitsPanel& units = army_.Units;
  const auto put = [&](auto* widget, Column column, auto& control) {
    layout->addWidget(bindings_.Add(widget, control), line + 1, column);
  };
  const auto putLabel = [&](const char* name, Column column, const Label& control) {
    const bool number = headings.at(column).Number;
    auto* label = number ? NewNumberLabel(ElementName(name, line), grid)
                         : NewLabel(ElementName(name, line), "", grid);
    // A catalog's odd long text is cut; it must not push the other columns about.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    put(label, column, control);
  };
  putLabel("TypeLabel", type, units.TypeLabel[line]);
  putLabel("ClassLabel", unitClass, units.ClassLabel[line]);
  putLabel("TQLabel", tq, units.TQLabel[line]);
  putLabel("SizeLabel", unitSize, units.SizeLabel[line]);
  putLabel("MissileLabel", missile, units.MissileLabel[line]);
  putLabel("CostLabel", cost, units.CostLabel[line]);
  putLabel("MaxLabel", most, units.MaxLabel[line]);
  putLabel("UnitTotalLabel", total, units.UnitTotalLabel[line]);

  auto* quantity = NewQuantityBox(ElementName("Buy", line), grid);
  quantity->setFixedWidth(TextWidth(grid, headings[buy].Characters));
  put(quantity, buy, units.Buy[line]);
  session_.Guard(quantity, [this, line] { return Buy_Validate(army_, disk_, user_, line); });

  auto* pictures = Named(new QComboBox(grid), ElementName("ImageName", line));
  // Its width is the column's; a policy that measures entries would cost at the start.
  pictures->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  pictures->setMinimumWidth(TextWidth(pictures, 18));
  pictures->setMaximumWidth(TextWidth(pictures, 40));
  pictures->setFocusPolicy(Qt::StrongFocus);
  put(pictures, image, units.ImageName[line]);
  session_.Connect(pictures, [this, line] { ImageName_Click(army_, line); });

  auto* show = Named(new QPushButton("View", grid), ElementName("ViewBtn", line));
  show->setFixedHeight(quantity->sizeHint().height());
  layout->addWidget(show, line + 1, view);
  bindings_.AddVisible(show, units.ViewBtn[line].Visible);
  session_.Connect(show, [this, line] { ViewBtn_Click(army_, disk_, user_, line); });

  auto* abilities = Named(new QToolButton(grid), ElementName("specLabel", line));
  abilities->setAutoRaise(true);
  abilities->setFocusPolicy(Qt::StrongFocus);
  abilities->setFixedHeight(quantity->sizeHint().height());
  abilities->setToolTip("Special abilities");
  put(abilities, spec, units.specLabel[line]);
  bindings_.Add([abilities, &label = units.specLabel[line]] {
    abilities->setEnabled(!label.Caption.empty());
  });
  session_.Connect(abilities, [this, line] { specLabel_Click(army_, disk_, user_, line); });
}

QWidget* UnitsPanelWidget::NewLimitsFrame() {
  auto* frame = NewFrame("Frame2", "Limits", this);
  auto* layout = new QGridLayout(frame);
  auto* type = NewLabel("Label2", "Type", frame);
  auto* minimum = NewLabel("Label3", "Min", frame);
  for (QLabel* heading : {type, minimum})
    heading->setForegroundRole(QPalette::PlaceholderText);
  layout->addWidget(type, 0, 0);
  layout->addWidget(minimum, 0, 1, Qt::AlignRight);
  for (int line = 0; line < limitLines; ++line) {
    auto* limit = NewLabel(ElementName("TypeLimit", line), "", frame);
    auto* least = NewNumberLabel(ElementName("MinLimit", line), frame);
    layout->addWidget(bindings_.Add(limit, army_.Units.TypeLimit[line]), line + 1, 0);
    layout->addWidget(bindings_.Add(least, army_.Units.MinLimit[line]), line + 1, 1);
  }
  layout->setColumnMinimumWidth(0, TextWidth(frame, 12));
  return frame;
}

}  // namespace tarnwick
