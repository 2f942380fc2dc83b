// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/special_dialog.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "rules/unit_types.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

SpecialDialog::SpecialDialog(Session& session, QWidget* parent)
    : Dialog("specForm", "Special Abilities", session, parent) {
  const std::string text = SpecialAbilitiesText(session.Work.Army, session.Store);
  auto* label = NewLabel("specText", ToQt(text), this);
  label->setWordWrap(true);
  label->setMinimumWidth(TextWidth(label, 60));
  auto* close = Named(new QPushButton("&Close", this), "Command1");
  close->setDefault(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label, 1);
  layout->addWidget(close, 0, Qt::AlignRight);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
}

}  // namespace tarnwick
