// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/monster_panel.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/widgets.h"

namespace tarnwick {

MonsterPanelWidget::MonsterPanelWidget(Session& session)
    : PanelWidget(Panel::MonsterLaboratory, "Monster Laboratory", session) {
  auto* lists = new QFormLayout;
  lists->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  lists->addRow("Size", Named(new QComboBox(this), "M_Size"));
  lists->addRow("TQ", Named(new QComboBox(this), "M_TQ"));
  lists->addRow("Type", Named(new QComboBox(this), "M_Type"));
  Body()->addLayout(lists);

  auto* buttons = new QHBoxLayout;
  const QString tip = "Armies are saved and loaded on the panel Load/Save";
  buttons->addWidget(NewIdleButton("NewMonsterBtn", "New army", "", this));
  buttons->addWidget(NewIdleButton("Command5", "Load army", tip, this));
  buttons->addWidget(NewIdleButton("Command4", "Save Army", tip, this));
  buttons->addStretch();
  Body()->addLayout(buttons);
  Body()->addStretch();
}

}  // namespace tarnwick
