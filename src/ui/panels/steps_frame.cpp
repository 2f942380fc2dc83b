// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/steps_frame.h"

#include <utility>

#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/parts/colours.h"
#include "ui/parts/entry_list.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

StepsFrame::StepsFrame(std::function<void(Panel)> open, QWidget* parent)
    : QWidget(parent),
      open_(std::move(open)),
      heading_(NewHeading("", "", this)),
      list_(new EntryList("StillMissing", this)),
      button_(Named(new QPushButton(this), "StillMissingMenu")) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(heading_);
  layout->addWidget(list_);
  layout->addWidget(button_, 0, Qt::AlignRight);
  layout->addStretch();
  list_->setAccessibleName("Still missing");
  list_->setWordWrap(true);
  // A bar that comes while the list still has its old height would wrap more than stays wrapped.
  list_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setResizeMode(QListView::Adjust);
  list_->setSpacing(3);
  const auto choose = [this](const QListWidgetItem* item) { Open(list_->row(item)); };
  connect(list_, &QListWidget::itemClicked, this, choose);
  connect(list_, &QListWidget::itemActivated, this, choose);
}

void StepsFrame::AddMenu() {
  auto* menu = new QMenu(button_);
  button_->setMenu(menu);
  connect(menu, &QMenu::aboutToShow, this, [this, menu] {
    menu->clear();
    for (int line = 0; line < list_->count(); ++line)
      menu->addAction(list_->item(line)->text(), this, [this, line] { Open(line); });
  });
}

void StepsFrame::Fold(bool folded) {
  if (folded && button_->menu() == nullptr) AddMenu();
  heading_->setVisible(!folded);
  list_->setVisible(!folded);
  button_->setVisible(folded);
}

StepsFrame::Steps StepsFrame::StepsOf(const ArmySummary& summary) {
  if (!summary.Begun) {
    return {"First", {{"New army", Panel::Management}, {"Load army", Panel::Management}}};
  }
  if (!summary.Missing) return {"Still missing", {}};
  if (summary.Missing->empty()) {
    return {"Nothing is missing", {{"Save Army", Panel::Management}}};
  }
  Steps steps{QString("Still missing: %1").arg(summary.Missing->size()), {}};
  for (const Shortfall& shortfall : *summary.Missing)
    steps.Lines.emplace_back(ToQt(shortfall.Message), shortfall.Where);
  return steps;
}

void StepsFrame::Show(const ArmySummary& summary) {
  Steps steps = StepsOf(summary);
  heading_->setText(steps.Heading);
  button_->setText(steps.Heading);
  if (steps_.Lines == steps.Lines) return;
  steps_ = std::move(steps);
  list_->clear();
  for (const auto& [text, panel] : steps_.Lines) {
    list_->addItem(text);
    list_->item(list_->count() - 1)->setForeground(AccentColour());
  }
  if (QListWidgetItem* next = list_->item(0)) {
    QFont font = list_->font();
    font.setBold(true);
    next->setFont(font);
  }
  FitList();
}

void StepsFrame::FitList() {
  list_->doItemsLayout();
  const QListWidgetItem* last = list_->item(list_->count() - 1);
  const int end = last != nullptr ? list_->visualItemRect(last).bottom() : fontMetrics().height();
  list_->setFixedHeight(end + 2 * (list_->spacing() + list_->frameWidth()));
}

void StepsFrame::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitList();
}

void StepsFrame::Open(int line) {
  open_(steps_.Lines.at(static_cast<std::size_t>(line)).second);
}

}  // namespace tarnwick
