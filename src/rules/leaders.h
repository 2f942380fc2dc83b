// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/controls.h"
#include "base/host.h"
#include "base/int16.h"
#include "rules/army_state.h"

namespace tarnwick {

/// The price of a leader in command points. Only initiative 7 has one for a command other than 1;
/// a pair without a price costs 0.
Int16 LeaderCost(Int16 initiative, Int16 command);

/// The text of a leader's option button.
std::string LeaderText(const LeaderRec& leader);

/// Shows `Leaders(index)` on its option button. Throws SubscriptError for a leader without one:
/// the window has seven.
void ShowLeader(ArmyState& state, Int16 index);

/// The user clicked `LeaderName(index)`: pays the difference to the leader chosen so far, or says
/// that the command points don't suffice and goes back to that one. Throws OverflowError.
void LeaderName_Click(ArmyState& state, Host& host, Int16 index);

/// What the dialog that defines a leader holds.
struct LeaderMgmtForm {
  LeaderMgmtForm();

  TextBox LeaderName;
  ListBox InitiativeBox, CommandBox;
  Label leaderCost;
};

/// Shows the cost of what is selected; without a selection in both lists the cost stays.
void UpdateLeaderCost(LeaderMgmtForm& form);

/// The focus leaves the command list. Returns true (cancel: the focus stays) when the command was
/// refused with a message.
[[nodiscard]] bool CommandBox_Validate(LeaderMgmtForm& form, Host& host);

/// Appends the leader and shows its button; it is not chosen and nothing is paid. Returns whether
/// the dialog closes. Throws SubscriptError for an eighth leader.
[[nodiscard]] bool DefineLeader(ArmyState& state, Host& host, const LeaderMgmtForm& form);

}  // namespace tarnwick
