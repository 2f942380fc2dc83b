// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/detail_panel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/parts/qt_text.h"
#include "ui/parts/session.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

DetailPanelWidget::DetailPanelWidget(Session& session)
    : PanelWidget(Panel::Detail, "Detail", session) {
  Body()->addWidget(NewDescriptionFrame(), 1);
  auto* frames = new QHBoxLayout;
  for (QWidget* frame : {NewPeriodFrame(), NewTypeFrame(), NewRulesFrame()}) {
    frames->addWidget(frame, 0, Qt::AlignTop);
  }
  frames->addStretch();
  Body()->addLayout(frames);
  Body()->addStretch(1);
}

QWidget* DetailPanelWidget::NewDescriptionFrame() {
  ArmyHeader& header = session_.Work.Header;
  auto* frame = NewFrame("Frame3", "Army Description ", this);
  auto* layout = new QVBoxLayout(frame);
  auto* description = NewDescriptionBox("ArmyDesc", 1, frame);
  layout->addWidget(description);
  bindings_.Add(description, header.ArmyDesc);
  session_.Connect(description, &QPlainTextEdit::textChanged,
                   [this] { ArmyDesc_Change(session_.Work.Header); });
  return frame;
}

QWidget* DetailPanelWidget::NewPeriodFrame() {
  ArmyHeader& header = session_.Work.Header;
  auto* frame = NewFrame("HistoricTab", "Historical Period", this);
  auto* layout = new QHBoxLayout(frame);
  bindings_.AddVisible(frame, header.HistoricTab.Visible);

  using Validate = bool (*)(ArmyHeader&, Host&);
  using Click = void (*)(ArmyHeader&);
  const auto add = [&](const char* frameName, const char* labelName, const char* caption,
                       const char* boxName, TextBox& box, Validate validate, const char* eraName,
                       Table<OptionButton, 0, 1>& era, Click click) {
    auto* half = Named(new QFrame(frame), frameName);
    auto* row = new QHBoxLayout(half);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(NewLabel(labelName, caption, half));
    auto* year = NewQuantityBox(boxName, half);
    year->setFixedWidth(TextWidth(year, 8));
    row->addWidget(year);
    QButtonGroup* eras = NewOptions(eraName, 2, half);
    for (QAbstractButton* option : eras->buttons())
      row->addWidget(option);
    layout->addWidget(half);

    bindings_.Add(year, box);
    bindings_.Add(eras, era);
    session_.Guard(year,
                   [this, validate] { return validate(session_.Work.Header, session_.User); });
    session_.Connect(eras, &QButtonGroup::idClicked,
                     [this, click] { click(session_.Work.Header); });
  };
  add("Frame9", "Label30", "From:", "FromData", header.FromData, FromData_Validate, "FromACBC",
      header.FromACBC, FromACBC_Click);
  layout->addSpacing(16);
  add("Frame8", "Label29", "To:", "ToData", header.ToData, ToData_Validate, "toACBC", header.toACBC,
      toACBC_Click);
  return frame;
}

QWidget* DetailPanelWidget::NewTypeFrame() {
  ArmyHeader& header = session_.Work.Header;
  auto* frame = NewFrame("Frame6", "Army Type", this);
  auto* layout = new QVBoxLayout(frame);
  const auto add = [&](const char* name, const char* caption, CheckBox& control) {
    auto* box = Named(new QCheckBox(caption, frame), name);
    layout->addWidget(box);
    bindings_.Add(box, control);
  };
  add("TYPE_IsPersonal", "Personal", header.TYPE_IsPersonal);
  add("TYPE_IsFantasy", "Fantasy", header.TYPE_IsFantasy);
  return frame;
}

QWidget* DetailPanelWidget::NewRulesFrame() {
  ArmyHeader& header = session_.Work.Header;
  auto* frame = NewFrame("SpecRuleFrame", " Special Rules ", this);
  auto* layout = new QGridLayout(frame);
  int place = 0;
  const auto add = [&](const char* name, const char* caption, CheckBox& control) {
    auto* box = Named(new QCheckBox(caption, frame), name);
    layout->addWidget(box, place % 3, place / 3);
    ++place;
    bindings_.Add(box, control);
  };
  add("Discipline", "Discipline", header.Discipline);
  add("Ferocity", "Ferocity", header.Ferocity);
  add("TribalCheck", "Tribal Command", header.TribalCheck);
  add("Mobility", "Mobility", header.Mobility);
  add("LongSword", "Long Sword", header.LongSword);
  add("FOW", "FOW", header.FOW);
  return frame;
}

}  // namespace tarnwick
