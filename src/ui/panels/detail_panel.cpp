// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/panels/detail_panel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "armyfile/warnings.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {

DetailPanelWidget::DetailPanelWidget(Session& session)
    : PanelWidget(Panel::Detail, "Detail", session) {
  Body()->addWidget(NewDescriptionFrame(), 1);
  auto* frames = new QHBoxLayout;
  for (QWidget* frame : {NewPeriodFrame(), NewTypeFrame(), NewRulesFrame()}) {
    frames->addWidget(frame);
  }
  frames->addStretch();
  Body()->addLayout(frames);
  Body()->addStretch(1);
}

QWidget* DetailPanelWidget::NewDescriptionFrame() {
  auto* frame = NewFrame("Frame3", "&Army Description ", this);
  auto* layout = new QVBoxLayout(frame);
  auto* description = bindings_.Add(NewDescriptionBox("ArmyDesc", 1, frame), header_.ArmyDesc);
  description->setAccessibleName("Army Description");
  auto* length = NewWarning("ArmyDescWarning", frame);
  length->setAlignment(Qt::AlignRight);
  layout->addWidget(length);
  layout->addWidget(description);
  bindings_.Add([this, length] { ShowWarning(length, LengthWarning(header_.ArmyDesc.Text, 1)); });
  session_.Connect(description, Step("Army description"), [this] { ArmyDesc_Change(header_); });
  return frame;
}

QWidget* DetailPanelWidget::NewPeriodFrame() {
  auto* frame = NewFrame("HistoricTab", "Historical Period", this);
  auto* layout = new QVBoxLayout(frame);
  bindings_.AddVisible(frame, header_.HistoricTab.Visible);

  const StepName step = Step("Historical period");
  using Validate = bool (*)(ArmyHeader&, Host&);
  using Click = void (*)(ArmyHeader&);
  const auto add = [&](const char* frameName, const char* labelName, const QString& spoken,
                       const char* caption, const char* boxName, TextBox& box, Validate validate,
                       const char* eraName, Table<OptionButton, 0, 1>& era, Click click) {
    auto* half = Named(new QFrame(frame), frameName);
    auto* row = new QHBoxLayout(half);
    row->setContentsMargins(0, 0, 0, 0);
    auto* label = NewLabel(labelName, caption, half);
    label->setMinimumWidth(TextWidth(label, 7));
    row->addWidget(label);
    auto* year = bindings_.Add(NewQuantityBox(boxName, half), box);
    label->setBuddy(year);
    ShowSpokenName(year, spoken + " year");
    year->setFixedWidth(TextWidth(year, 8));
    row->addWidget(year);
    auto* eras = bindings_.Add(NewOptions(eraName, 2, row, half), era);
    bindings_.Add([eras, spoken] {
      for (QAbstractButton* option : eras->buttons())
        ShowSpokenName(option, spoken + " " + option->text());
    });
    layout->addWidget(half);
    const auto refused = [this, validate] { return validate(header_, user_); };
    session_.Guard(year, step, refused, &header_.ArmyPeriod);
    session_.Connect(year, step, [] {});
    session_.Connect(eras, step, [this, click] { click(header_); });
  };
  add("Frame9", "Label30", "From", "&From:", "FromData", header_.FromData, FromData_Validate,
      "FromACBC", header_.FromACBC, FromACBC_Click);
  add("Frame8", "Label29", "To", "T&o:", "ToData", header_.ToData, ToData_Validate, "toACBC",
      header_.toACBC, toACBC_Click);
  return frame;
}

QWidget* DetailPanelWidget::NewTypeFrame() {
  auto* frame = NewFrame("Frame6", "Army Type", this);
  auto* layout = new QVBoxLayout(frame);
  const auto add = [&](const char* name, const char* caption, CheckBox& control) {
    layout->addWidget(NewCheckBox(name, caption, control, frame));
  };
  add("TYPE_IsPersonal", "&Personal", header_.TYPE_IsPersonal);
  add("TYPE_IsFantasy", "Fa&ntasy", header_.TYPE_IsFantasy);
  return frame;
}

QCheckBox* DetailPanelWidget::NewCheckBox(const char* name, const QString& caption,
                                          CheckBox& control, QWidget* parent) {
  auto* box = bindings_.Add(Named(new QCheckBox(caption, parent), name), control);
  session_.Connect(box, Step(FromQt(QString(caption).remove('&'))), [] {});
  return box;
}

QWidget* DetailPanelWidget::NewRulesFrame() {
  auto* frame = NewFrame("SpecRuleFrame", " Special Rules ", this);
  auto* layout = new QGridLayout(frame);
  int place = 0;
  const auto add = [&](const char* name, const char* caption, CheckBox& control) {
    layout->addWidget(NewCheckBox(name, caption, control, frame), place % 3, place / 3);
    ++place;
  };
  add("Discipline", "Discipl&ine", header_.Discipline);
  add("Ferocity", "Fe&rocity", header_.Ferocity);
  add("TribalCheck", "Tri&bal Command", header_.TribalCheck);
  add("Mobility", "&Mobility", header_.Mobility);
  add("LongSword", "Lon&g Sword", header_.LongSword);
  add("FOW", "FO&W", header_.FOW);
  return frame;
}

}  // namespace tarnwick
