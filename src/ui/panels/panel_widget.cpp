// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/panel_widget.h"

#include <QVBoxLayout>

#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

PanelWidget::PanelWidget(Panel panel, const QString& caption, Session& session)
    : session_(session), body_(new QVBoxLayout(this)) {
  body_->setContentsMargins(18, 12, 18, 12);
  setObjectName(ElementName("EditFrame", static_cast<int>(panel)));
  auto* title = NewLabel("", caption, this);
  QFont font = title->font();
  font.setPointSizeF(font.pointSizeF() * 1.4);
  font.setBold(true);
  title->setFont(font);
  body_->addWidget(title);
}

}  // namespace tarnwick
