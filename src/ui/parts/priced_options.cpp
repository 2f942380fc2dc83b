// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/priced_options.h"

#include <QAbstractButton>
#include <QKeyEvent>

namespace tarnwick {

PricedOptions::PricedOptions(QButtonGroup* group) : QObject(group), group_(group) {
  for (QAbstractButton* option : group->buttons())
    option->installEventFilter(this);
}

bool PricedOptions::eventFilter(QObject* object, QEvent* event) {
  auto* option = static_cast<QAbstractButton*>(object);
  if (event->type() == QEvent::KeyPress) return TakesKey(option, *static_cast<QKeyEvent*>(event));
  const bool in = event->type() == QEvent::FocusIn;
  if (!in && event->type() != QEvent::FocusOut) return false;
  const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
  const bool byTab = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
  if (in && byTab && option != Entrance()) {
    Entrance()->setFocus(Qt::OtherFocusReason);
    return true;
  }
  if (!in && reason != Qt::ActiveWindowFocusReason) {
    // The toolkit lets Tab in where the focus was last; that option may be hidden by then.
    for (QAbstractButton* each : group_->buttons())
      each->setFocusPolicy(Qt::StrongFocus);
  }
  return false;
}

QAbstractButton* PricedOptions::Entrance() const {
  QAbstractButton* first = nullptr;
  for (QAbstractButton* option : group_->buttons()) {
    if (option->isVisible() && (option->isChecked() || first == nullptr)) first = option;
  }
  return first;
}

bool PricedOptions::TakesKey(QAbstractButton* option, const QKeyEvent& key) {
  switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      Move(option, -1);
      return true;
    case Qt::Key_Down:
    case Qt::Key_Right:
      Move(option, 1);
      return true;
    default:
      return false;
  }
}

void PricedOptions::Move(QAbstractButton* from, int step) {
  int id = group_->id(from) + step;
  while (group_->button(id) != nullptr && !group_->button(id)->isVisible())
    id += step;
  if (group_->button(id) != nullptr) group_->button(id)->setFocus(Qt::OtherFocusReason);
}

}  // namespace tarnwick
