// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/command_panel.h"

#include <QGridLayout>
#include <QPainter>
#include <QVBoxLayout>

#include "armyfile/warnings.h"
#include "base/numbers.h"
#include "rules/leaders.h"
#include "rules/special_cards.h"
#include "ui/parts/colours.h"
#include "ui/parts/priced_options.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

/// A general's standard.
QIcon StandardIcon() {
  constexpr int side = 64;
  QPixmap pixmap(side, side);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(10, 4, 6, 58, Qt::darkGray);
  painter.setBrush(AccentColour());
  painter.setPen(Qt::NoPen);
  painter.drawPolygon(QPolygon({{16, 8}, {56, 8}, {46, 21}, {56, 34}, {16, 34}}));
  return pixmap;
}

}  // namespace

CommandPanelWidget::CommandPanelWidget(Session& session)
    : PanelWidget(Panel::Command, "Command", session) {
  auto* frames = new QHBoxLayout;
  frames->addWidget(NewLeaderFrame(), 3);
  frames->addWidget(NewSpecialFrame(), 2);
  Body()->addLayout(frames);
  Body()->addStretch(1);  // the frames are equally high, and no higher than they must
}

void CommandPanelWidget::Refresh() {
  while (cardRowCount_ < army_.Command.SpecBuy.Count())
    AddCardRow();
  PanelWidget::Refresh();
}

QWidget* CommandPanelWidget::NewLeaderFrame() {
  auto* frame = NewFrame("LeaderFrame", "", this);
  auto* layout = new QVBoxLayout(frame);
  layout->addWidget(NewHint("Label4", "Name: $$  initiative/command", frame));
  auto* leaders =
      bindings_.Add(NewOptions("LeaderName", 7, layout, frame), army_.Command.LeaderName);
  for (QAbstractButton* leader : leaders->buttons())
    leader->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  new PricedOptions(leaders);
  bindings_.Add([leaders] {
    for (QAbstractButton* leader : leaders->buttons()) {
      const bool cut = leader->sizeHint().width() > leader->width();
      leader->setToolTip(cut ? leader->text().replace("&&", "&") : "");
    }
  });
  auto* define = Named(new QPushButton(StandardIcon(), "&Add a new Leader", frame), "LeaderBtn");
  define->setToolTip("Add New Leader");
  lastControl_ = define;
  layout->addSpacing(8);
  layout->addWidget(define, 0, Qt::AlignLeft);
  auto* warning = NewWarning("LeaderWarning", frame);
  layout->addWidget(warning);
  layout->addStretch();

  bindings_.Add([frame, &caption = army_.Command.LeaderFrame.Caption] {
    if (frame->title() != ButtonText(caption)) frame->setTitle(ButtonText(caption));
  });
  bindings_.Add([this, warning] { ShowWarning(warning, LeaderWarning(army_)); });
  session_.Connect(
      leaders, [this] { return "Leader " + NameOf(army_.SelectedLeader); },
      [this, leaders] { LeaderName_Click(army_, user_, leaders->checkedId()); });
  session_.Connect(
      define, [this] { return "New leader " + NameOf(army_.LeaderCount - 1); },
      [this] { user_.ShowLeaderMgmtForm(); });
  return frame;
}

std::string CommandPanelWidget::NameOf(Int16 leader) const {
  return leader >= 0 ? army_.Leaders[leader].Name : "";
}

QWidget* CommandPanelWidget::NewSpecialFrame() {
  cards_ = NewFrame("SpecialFrame", "Special cards ", this);
  auto* layout = new QVBoxLayout(cards_);
  cardRows_ = new QGridLayout;
  layout->addLayout(cardRows_);
  cardsWarning_ = NewWarning("CardsWarning", cards_);
  layout->addWidget(cardsWarning_);
  bindings_.Add([this] { ShowWarning(cardsWarning_, CardsWarning(army_)); });
  layout->addStretch();
  const char* const captions[] = {"Card", "$$", "Max", "Buy"};
  for (int column = 0; column < 4; ++column) {
    auto* heading = NewHint(QString("Label%1").arg(5 + column), captions[column], cards_);
    if (column > 0) heading->setAlignment(Qt::AlignRight);
    cardRows_->addWidget(heading, 0, column);
  }
  cardRows_->setColumnStretch(0, 1);
  cardRows_->setHorizontalSpacing(18);
  return cards_;
}

void CommandPanelWidget::AddCardRow() {
  CommandPanel& command = army_.Command;
  const int j = cardRowCount_++;
  auto* name = NewLabel(ElementName("SpecNameLabel", j), "", cards_);
  auto* cost = NewNumberLabel(ElementName("SpecCostLabel", j), cards_);
  auto* most = NewNumberLabel(ElementName("SpecMaxLabel", j), cards_);
  auto* quantity = NewQuantityBox(ElementName("SpecBuy", j), cards_);
  quantity->setFixedWidth(TextWidth(quantity, 7));
  // The summary was made before; Tab comes there after the cards all the same.
  setTabOrder(lastControl_, quantity);
  lastControl_ = quantity;
  cardRows_->addWidget(bindings_.Add(name, command.SpecNameLabel[j]), j + 1, 0);
  cardRows_->addWidget(bindings_.Add(cost, command.SpecCostLabel[j]), j + 1, 1);
  cardRows_->addWidget(bindings_.Add(most, command.SpecMaxLabel[j]), j + 1, 2);
  cardRows_->addWidget(bindings_.Add(quantity, command.SpecBuy[j]), j + 1, 3);
  bindings_.Add([quantity, &card = command.SpecNameLabel[j], &limit = command.SpecMaxLabel[j]] {
    ShowSpokenName(quantity, ToQt("Buy " + card.Caption + ", at most " + limit.Caption));
  });
  connect(quantity, &QLineEdit::textEdited, this,
          [this] { ShowWarning(cardsWarning_, CardsWarning(army_)); });
  session_.Guard(
      quantity,
      [&command, j] {
        return NumberText(LenientNumber(command.SpecBuy[j].Text)) + " " +
               command.SpecNameLabel[j].Caption;
      },
      [this, j] { return SpecBuy_Validate(army_, user_, j); });
}

}  // namespace tarnwick
