// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "desk.h"

#include "armyfile/army_header.h"
#include "armyfile/loading.h"
#include "armyfile/saving.h"
#include "battlefield/setups.h"
#include "rules/base_army_selection.h"

namespace tarnwick {

Desk::Desk(const std::filesystem::path& folder, bool brakka) : Store(folder) {
  Form_Load(Work, Store);
  TickOption(Work.Army.Management.modOption, brakka ? 1 : 0);
  modOption_Click(Work, Store);
}

bool Desk::Load(const std::string& army) {
  choice_ = army;
  return LoadBtn_Click(Work, Store, *this);
}

void Desk::Start(const std::string& base) {
  choice_ = base;
  NewArmyBtn_Click(Work, Store, *this);
}

bool Desk::Save(const std::string& name) {
  Work.Army.Management.ArmyFileName.Text = name;
  return SaveArmy(Work, Store, *this);
}

void Desk::Delete(const std::string& army) {
  ArmyListForm form;
  FillArmyList(Work.Army, Store, form);
  form.ArmyList.Select(army);
  ShowArmyDetail(Work.Army, Store, form);
  DelArmy_Click(Work.Army, Store, *this, form);
}

void Desk::Change(bool second) {
  Work.Header.ArmyDesc.Text = std::string(second ? 200 : 20, second ? 'b' : 'a');
  ArmyDesc_Change(Work.Header);
  Work.Field.AreaTerrain[4] = second ? "WOOD" : "CLEAR";
  ChangeSetup(second);
}

void Desk::ChangeSetup(bool second) {
  Work.Field.CurrentSetup = 1;
  Work.Field.Setup.description.Text = std::string(second ? 200 : 20, second ? 'b' : 'a');
  description_Change(Work.Field, Work.Army, Store);
}

void Desk::Message(const std::string& text) {
  Told = text;
  ++Tellings;
}

void Desk::ShowArmyListForm() {
  ArmyListForm form;
  FillArmyList(Work.Army, Store, form);
  form.ArmyList.Select(choice_);
  ShowArmyDetail(Work.Army, Store, form);
  if (!SelectArmy(Work, Store, *this, form)) return;  // he closes the window
}

void Desk::ShowArmySelectionForm() {
  ArmySelectionForm form;
  FillArmySelection(Work.Army, Store, form);
  form.ArmyList.Select(choice_);
  if (!ConfirmArmySelection(Work.Army, *this, form)) return;  // he closes the window
}

}  // namespace tarnwick
