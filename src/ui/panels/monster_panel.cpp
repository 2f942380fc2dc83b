// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/monster_panel.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "battlefield/setups.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

MonsterPanelWidget::MonsterPanelWidget(Session& session)
    : PanelWidget(Panel::MonsterLaboratory, "Monster Laboratory", session) {
  auto* back = Named(new QPushButton("&Back to Setup", this), "BackToSetup");
  TitleLine()->addWidget(back);
  TitleLine()->addStretch();
  session_.Connect(back, [this] { ShowSetup_Click(field_, army_); });

  auto* frame = NewFrame("", "Monster", this);
  auto* lists = new QFormLayout(frame);
  lists->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  const auto addList = [&](const char* name, const char* caption, ListBox& control) {
    auto* list = NewDropDown(name, frame);
    list->setMinimumContentsLength(6);
    lists->addRow(caption, bindings_.Add(list, control));
    session_.Connect(
        list, Step(std::string("Monster ") + QString(caption).remove('&').toStdString()), [] {});
  };
  addList("M_Size", "Si&ze", army_.Monster.M_Size);
  addList("M_TQ", "TQ", army_.Monster.M_TQ);
  addList("M_Type", "T&ype", army_.Monster.M_Type);
  Body()->addWidget(frame);

  auto* buttons = new QHBoxLayout;
  const QString tip = "Armies are saved and loaded on the panel Load/Save";
  auto* newMonster = Named(new QPushButton("New &army", this), "NewMonsterBtn");
  buttons->addWidget(newMonster);
  buttons->addWidget(NewIdleButton("Command5", "Load army", tip, this));
  buttons->addWidget(NewIdleButton("Command4", "Save Army", tip, this));
  buttons->addStretch();
  Body()->addLayout(buttons);
  Body()->addStretch();

  session_.Connect(newMonster, Step("New monster"), [this] { NewMonster(army_.Monster); });
}

}  // namespace tarnwick
