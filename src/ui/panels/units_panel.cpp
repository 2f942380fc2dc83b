// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/units_panel.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "armyfile/resetting.h"
#include "armyfile/warnings.h"
#include "base/numbers.h"
#include "base/text.h"
#include "rules/unit_grid.h"
#include "rules/unit_purchase.h"
#include "rules/verification.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/unit_pictures.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

/// The grid's columns from left to right.
enum Column {
  picture,
  type,
  unitClass,
  tq,
  unitSize,
  missile,
  cost,
  most,
  total,
  buy,
  image,
  view,
  spec
};

struct Heading {
  const char* Name;
  const char* Caption;
  int Characters;  ///< the column's width in digits; 0 takes what is left
  bool Number;
  const char* Tip;
};

constexpr std::array<Heading, 13> headings = {
    {{"", "", 3, false, ""},
     {"Label9", "Type", 5, false, "Type of the unit"},
     {"Label10", "Cls", 4, false, "Class within the type"},
     {"Label11", "TQ", 3, true, "Troop quality"},
     {"Label12", "Sz", 3, true, "Size"},
     {"Label13", "Mis", 4, false, "Missile ability"},
     {"Label14", "$$", 3, true, "Army points for one unit"},
     {"Label15", "Max", 4, true, "Most units that can be bought"},
     {"Label16", "Total", 5, true, "Army points for the units bought"},
     {"Label17", "Buy", 6, true, "How many units to buy"},
     {"Label1", "Image", 0, false, "The picture that the game shows"},
     {"ViewBtn", "", 6, false, ""},
     {"SpecialTitle", "Special", 7, false, "Special abilities"}}};

/// The type codes that go by a word.
constexpr std::pair<const char*, const char*> typeWords[] = {
    {"SK", "Skirmishers"}, {"PH", "Phalanx"}, {"EL", "Elephants"},
    {"CH", "Chariots"},    {"SM", "Monster"}, {"LM", "Monster"}};

constexpr int gridLines = 23;

QString TypeWord(const std::string& code) {
  const auto* word =
      std::ranges::find(typeWords, code, [](const auto& known) { return known.first; });
  return word != std::end(typeWords) ? word->second : "";
}

}  // namespace

UnitsPanelWidget::UnitsPanelWidget(Session& session) : PanelWidget(Panel::Units, "Units", session) {
  TitleLine()->addWidget(NewViewFrame());
  TitleLine()->addStretch();
  auto* verify = Named(new QPushButton("&Verify army", this), "VerifyBtn");
  auto* reset = Named(new QPushButton("&Reset army", this), "ResetArmy");
  TitleLine()->addWidget(verify);
  TitleLine()->addWidget(reset);
  warning_ = NewWarning("UnitsWarning", this);
  bindings_.Add([this] { ShowWarning(warning_, UnitsWarning(army_, disk_)); });
  Body()->addWidget(NewGrid());
  Body()->addWidget(warning_);
  Body()->addStretch();
  session_.Connect(verify, [this] { VerifyBtn_Click(army_, user_); });
  session_.Connect(reset, Step("Reset army"), [this] { ResetArmy_Click(work_, disk_); });
}

QWidget* UnitsPanelWidget::NewViewFrame() {
  auto* frame = NewLineFrame("Frame4", "View ", this);
  auto* views = NewOptions("ViewOption", 3, frame->layout(), frame, "IMB");
  bindings_.Add(views, army_.Units.ViewOption);
  session_.Connect(views, [this] { ViewOption_Click(army_, disk_); });
  return frame;
}

QWidget* UnitsPanelWidget::NewGrid() {
  auto* grid = new QFrame(this);
  grid->setFrameStyle(QFrame::StyledPanel);
  grid->setAutoFillBackground(true);
  grid->setBackgroundRole(QPalette::Base);
  grid_ = new QGridLayout(grid);
  grid_->setContentsMargins(8, 4, 8, 4);
  grid_->setVerticalSpacing(0);
  grid_->setHorizontalSpacing(8);
  AddHeadings();
  for (int line = 0; line < gridLines; ++line) {
    lines_.emplace_back();
    AddTexts(line);
    AddQuantity(line);
    AddPictures(line);
    AddAbilities(line);
  }
  return grid;
}

void UnitsPanelWidget::AddHeadings() {
  QWidget* grid = grid_->parentWidget();
  for (int column = 0; column < static_cast<int>(headings.size()); ++column) {
    const Heading& heading = headings.at(static_cast<std::size_t>(column));
    grid_->setColumnMinimumWidth(column, TextWidth(grid, heading.Characters));
    if (*heading.Caption == 0) continue;
    auto* label = NewHint(heading.Name, heading.Caption, grid);
    label->setToolTip(heading.Tip);
    if (heading.Number) label->setAlignment(Qt::AlignRight);
    grid_->addWidget(label, 0, column);
  }
  grid_->setColumnStretch(image, 3);
  grid_->setColumnStretch(spec, 1);
}

void UnitsPanelWidget::AddTexts(int line) {
  UnitsPanel& units = army_.Units;
  QWidget* grid = grid_->parentWidget();
  const auto put = [&](const char* name, Column column, const Label& control) {
    const bool number = headings.at(column).Number;
    auto* label = number ? NewNumberLabel(ElementName(name, line), grid)
                         : NewLabel(ElementName(name, line), "", grid);
    // A catalog's odd long text is cut; it must not push the other columns about.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid_->addWidget(bindings_.Add(label, control), line + 1, column);
    return label;
  };
  auto* typeLabel = put("TypeLabel", type, units.TypeLabel[line]);
  put("ClassLabel", unitClass, units.ClassLabel[line]);
  put("TQLabel", tq, units.TQLabel[line]);
  put("SizeLabel", unitSize, units.SizeLabel[line]);
  put("MissileLabel", missile, units.MissileLabel[line]);
  put("CostLabel", cost, units.CostLabel[line]);
  put("MaxLabel", most, units.MaxLabel[line]);
  auto* totalLabel = put("UnitTotalLabel", total, units.UnitTotalLabel[line]);
  auto* horseshoe = new Horseshoe(grid);
  grid_->addWidget(horseshoe, line + 1, type, Qt::AlignRight | Qt::AlignVCenter);
  bindings_.Add([&units, line, typeLabel, totalLabel, horseshoe] {
    const Label& code = units.TypeLabel[line];
    horseshoe->setVisible(code.Visible && code.ForeColor == Colour::LightBlue);
    typeLabel->setToolTip(TypeWord(code.Caption));
    ShowBold(totalLabel, LenientNumber(units.UnitTotalLabel[line].Caption) != 0);
  });
}

void UnitsPanelWidget::AddQuantity(int line) {
  auto* quantity = NewQuantityBox(ElementName("Buy", line), grid_->parentWidget());
  quantity->setFixedWidth(TextWidth(quantity, headings[buy].Characters));
  lines_.back().Quantity = quantity;
  grid_->addWidget(bindings_.Add(quantity, army_.Units.Buy[line]), line + 1, buy);
  connect(quantity, &QLineEdit::textEdited, this,
          [this] { ShowWarning(warning_, UnitsWarning(army_, disk_)); });
  session_.Guard(
      quantity,
      [this, line] {
        return NumberText(LenientNumber(army_.Units.Buy[line].Text)) + " " + UnitName(line);
      },
      [this, line] { return Buy_Validate(army_, disk_, user_, line); });
}

std::string UnitsPanelWidget::UnitName(int line) const {
  return std::string(
      Trim(army_.Units.TypeLabel[line].Caption + " " + army_.Units.ClassLabel[line].Caption));
}

void UnitsPanelWidget::AddPictures(int line) {
  UnitsPanel& units = army_.Units;
  QWidget* grid = grid_->parentWidget();
  auto* pictures = NewDropDown(ElementName("ImageName", line), grid);
  // Its width is the column's; a policy that measures entries would cost at the start.
  pictures->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  pictures->setMinimumWidth(TextWidth(pictures, 12));
  pictures->setMaximumWidth(TextWidth(pictures, 36));
  lines_.back().Pictures = pictures;
  grid_->addWidget(bindings_.Add(pictures, units.ImageName[line]), line + 1, image);
  session_.Connect(
      pictures, [this, line] { return "Picture of " + UnitName(line); },
      [this, line] { ImageName_Click(army_, line); });

  auto* thumbnail = new Thumbnail(grid);
  grid_->addWidget(thumbnail, line + 1, picture);
  bindings_.Add([this, pictures, thumbnail, &list = units.ImageName[line]] {
    ShowPictures(pictures, list, army_, disk_);
    thumbnail->setVisible(list.Visible);
    thumbnail->Show(army_, disk_, list.HasSelection() ? list.Selected().ItemData : Int16(0));
  });

  auto* show = Named(new QPushButton("View", grid), ElementName("ViewBtn", line));
  show->setFixedSize(TextWidth(show, 8), pictures->sizeHint().height());
  grid_->addWidget(show, line + 1, view);
  lines_.back().View = show;
  bindings_.AddVisible(show, units.ViewBtn[line].Visible);
  session_.Connect(show, [this, line] { ViewBtn_Click(army_, disk_, user_, line); });
}

void UnitsPanelWidget::AddAbilities(int line) {
  Label& label = army_.Units.specLabel[line];
  auto* abilities = Named(new QToolButton(grid_->parentWidget()), ElementName("specLabel", line));
  lines_.back().Abilities = abilities;
  abilities->setAutoRaise(true);
  abilities->setFocusPolicy(Qt::StrongFocus);
  abilities->setToolTip("Special abilities");
  grid_->addWidget(bindings_.Add(abilities, label), line + 1, spec, Qt::AlignLeft);
  bindings_.Add([abilities, &label] { abilities->setEnabled(!label.Caption.empty()); });
  session_.Connect(abilities, [this, line] { specLabel_Click(army_, disk_, user_, line); });
}

void UnitsPanelWidget::Refresh() {
  const QWidget* focus = window()->focusWidget();
  PanelWidget::Refresh();
  ShowSpokenNames();
  FitRows();
  if (focus != nullptr && focus->isHidden() && isAncestorOf(focus)) FocusLastQuantity();
}

void UnitsPanelWidget::FocusLastQuantity() {
  int line = gridLines - 1;
  while (line > 0 && !army_.Units.Buy[line].Visible)
    --line;
  findChild<QWidget*>(ElementName("Buy", line))->setFocus();
}

void UnitsPanelWidget::ShowSpokenNames() {
  const auto names = LineNames(army_.Units);
  for (std::size_t i = 0; i < names.size(); ++i) {
    const int k = static_cast<int>(i);
    const QString name = ToQt(names[i]);
    const Line& line = lines_.at(i);
    ShowSpokenName(line.Quantity,
                   "Buy " + name + ", at most " + ToQt(army_.Units.MaxLabel[k].Caption));
    ShowSpokenName(line.Pictures, "Picture of " + name);
    ShowSpokenName(line.View, "View " + name);
    ShowSpokenName(line.Abilities, "Special abilities of " + name);
  }
}

void UnitsPanelWidget::resizeEvent(QResizeEvent* event) {
  FitRows();
  PanelWidget::resizeEvent(event);
}

void UnitsPanelWidget::FitRows() {
  const auto& boxes = army_.Units.Buy;
  const auto rows = static_cast<int>(
      std::ranges::count_if(boxes, [](const TextBox& box) { return box.Visible; }));
  const int heading = TitleLine()->sizeHint().height() + 4 * fontMetrics().height();
  const int space = parentWidget()->height() - heading;
  const int least = fontMetrics().height() + 11;
  const int height = std::clamp(space / std::max(rows, 1), least, least * 3 / 2);
  for (int line = 0; line < gridLines; ++line) {
    const int wanted = line < rows ? height : 0;
    if (grid_->rowMinimumHeight(line + 1) != wanted) grid_->setRowMinimumHeight(line + 1, wanted);
  }
}

}  // namespace tarnwick
