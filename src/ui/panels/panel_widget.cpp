// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/panel_widget.h"

#include <QButtonGroup>
#include <QHBoxLayout>

#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

PanelWidget::PanelWidget(Panel panel, const QString& caption, Session& session)
    : session_(session), body_(new QVBoxLayout(this)), titleLine_(new QHBoxLayout) {
  body_->setContentsMargins(16, 12, 16, 12);
  setObjectName(ElementName("EditFrame", static_cast<int>(panel)));
  titleLine_->setSpacing(16);
  titleLine_->addWidget(NewTitle(caption, this));
  body_->addLayout(titleLine_);
}

void PanelWidget::FocusFirst() {
  for (QWidget* next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
    const bool takes = (next->focusPolicy() & Qt::TabFocus) && next->isEnabled();
    if (!takes || !isAncestorOf(next) || !next->isVisibleTo(this)) continue;
    const auto* option = qobject_cast<const QAbstractButton*>(next);
    QButtonGroup* group = option != nullptr ? option->group() : nullptr;
    QWidget* ticked = group != nullptr ? group->checkedButton() : nullptr;
    (ticked != nullptr ? ticked : next)->setFocus();
    return;
  }
}

}  // namespace tarnwick
