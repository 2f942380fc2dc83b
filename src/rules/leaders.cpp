// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/leaders.h"

#include "base/numbers.h"
#include "rules/budget.h"

namespace tarnwick {

Int16 LeaderCost(Int16 initiative, Int16 command) {
  if (initiative == 7) return command == 1 ? 120 : 150;
  if (command != 1) return 0;
  return initiative == 6 ? 100 : initiative == 5 ? 70 : initiative == 4 ? 40 : 0;
}

std::string LeaderText(const LeaderRec& leader) {
  return leader.Name + " " + NumberText(leader.Cost) + " [ " + leader.Initiative + " / " +
         NumberText(leader.Command) + " ] ";
}

void ShowLeader(ArmyState& state, Int16 index) {
  OptionButton& button = state.Command.LeaderName[index];
  button.Visible = true;
  button.Caption = LeaderText(state.Leaders[index]);
}

void LeaderName_Click(ArmyState& state, Host& host, Int16 index) {
  const Int16 cost = state.Leaders[index].Cost;
  const Int16 price =
      state.SelectedLeader == -1 ? cost : cost - state.Leaders[state.SelectedLeader].Cost;
  if (price <= state.CommandPts) {
    state.SelectedLeader = index;
    state.CommandPts -= price;
    ShowPoints(state);
    return;
  }
  host.Message("Insufficient points left");
  TickOption(state.Command.LeaderName, state.SelectedLeader);
}

LeaderMgmtForm::LeaderMgmtForm() {
  for (const char* initiative : {"4", "5", "6", "7"})
    InitiativeBox.AddItem(initiative);
  for (const char* command : {"1", "2"})
    CommandBox.AddItem(command);
  leaderCost.Caption = "0";
}

void UpdateLeaderCost(LeaderMgmtForm& form) {
  if (!form.InitiativeBox.HasSelection() || !form.CommandBox.HasSelection()) return;
  form.leaderCost.Caption = NumberText(
      LeaderCost(LenientInt16(form.InitiativeBox.Text()), LenientInt16(form.CommandBox.Text())));
}

bool CommandBox_Validate(LeaderMgmtForm& form, Host& host) {
  if (form.CommandBox.Text() == "2" && form.InitiativeBox.Text() != "7") {
    host.Message("Only leaders with initiative = 7 can have 2 command points");
    return true;
  }
  UpdateLeaderCost(form);
  return false;
}

bool DefineLeader(ArmyState& state, Host& host, const LeaderMgmtForm& form) {
  if (form.LeaderName.Text.empty()) {
    host.Message("Please insert the leader's name");
    return false;
  }
  ++state.LeaderCount;
  const Int16 index = state.LeaderCount - 1;
  state.Leaders[index] = {form.LeaderName.Text, form.InitiativeBox.Text(),
                          LenientInt16(form.CommandBox.Text()),
                          LenientInt16(form.leaderCost.Caption)};
  ShowLeader(state, index);
  return true;
}

}  // namespace tarnwick
