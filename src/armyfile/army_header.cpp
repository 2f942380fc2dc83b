// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/army_header.h"

#include <array>
#include <string_view>

#include "base/numbers.h"
#include "base/text.h"
#include "rules/army_state.h"

namespace tarnwick {
namespace {

constexpr int bc = 0, ac = 1;

struct SpecialRule {
  CheckBox ArmyHeader::*Box;
  std::string_view Word;
};

/// In the order in which army files list them.
constexpr std::array<SpecialRule, 6> specialRules = {{{&ArmyHeader::TribalCheck, "TRIBAL"},
                                                      {&ArmyHeader::Ferocity, "FEROCITY"},
                                                      {&ArmyHeader::Mobility, "MOBILITY"},
                                                      {&ArmyHeader::LongSword, "LONGSWORD"},
                                                      {&ArmyHeader::FOW, "FOW"},
                                                      {&ArmyHeader::Discipline, "DISCIPLINE"}}};

/// The checks that both boxes of the period share. `orderMessage` is what a wrong order is told
/// with.
bool CheckPeriod(const ArmyHeader& header, Host& host, const std::string& left,
                 const std::string& orderMessage) {
  bool refused = false;
  const auto refuse = [&](const std::string& message) {
    host.Message(message);
    refused = true;
  };
  const std::string rangeMessage = "Please insert a numeric value between 3500 and 0";
  if (!NumberIn(left)) refuse(rangeMessage);
  const double year = LenientNumber(left);
  if (year > 3500 || year < 0) refuse(rangeMessage);
  const double from = LenientNumber(header.FromData.Text);
  const double to = LenientNumber(header.ToData.Text);
  if (header.FromACBC[bc].Value && header.toACBC[bc].Value && from < to) refuse(orderMessage);
  if (header.FromACBC[ac].Value && header.toACBC[ac].Value && from > to) refuse(orderMessage);
  return refused;
}

void EraClicked(ArmyHeader& header) {
  if (header.FromACBC[ac].Value) TickOption(header.toACBC, ac);
  BuildPeriod(header);
}

}  // namespace

ArmyHeader::ArmyHeader() {
  for (auto* era : {&FromACBC, &toACBC}) {
    (*era)[bc].Caption = "BC";
    (*era)[ac].Caption = "AC";
    TickOption(*era, bc);
  }
}

void ArmyDesc_Change(ArmyHeader& header) {
  header.ArmyDescription = ReplaceText(CrLf, "@", header.ArmyDesc.Text);
}

bool FromData_Validate(ArmyHeader& header, Host& host) {
  const bool refused = CheckPeriod(header, host, header.FromData.Text,
                                   "the date must be precedent to " + header.ToData.Text);
  BuildPeriod(header);
  return refused;
}

bool ToData_Validate(ArmyHeader& header, Host& host) {
  const bool refused = CheckPeriod(header, host, header.ToData.Text,
                                   "the date must be successive to " + header.FromData.Text);
  BuildPeriod(header);
  return refused;
}

void FromACBC_Click(ArmyHeader& header) {
  EraClicked(header);
}

void toACBC_Click(ArmyHeader& header) {
  EraClicked(header);
}

void BuildPeriod(ArmyHeader& header) {
  const auto year = [](const TextBox& box, const Table<OptionButton, 0, 1>& era) {
    const double typed = LenientNumber(box.Text);
    return NumberText(era[bc].Value ? -typed : typed);
  };
  header.ArmyPeriod =
      year(header.FromData, header.FromACBC) + "," + year(header.ToData, header.toACBC);
}

void ShowPeriod(ArmyHeader& header) {
  if (header.ArmyPeriod.empty()) return;
  const Int16 from = StrictInt16(GetField(header.ArmyPeriod, 1));
  const Int16 to = StrictInt16(GetField(header.ArmyPeriod, 2));
  const auto yearText = [](Int16 year) { return NumberText(year >= 0 ? year : -year); };
  const std::string fromText = yearText(from);
  const std::string toText = yearText(to);
  header.FromData.Text = fromText;
  TickOption(header.FromACBC, from >= 0 ? ac : bc);
  header.ToData.Text = toText;
  TickOption(header.toACBC, to >= 0 ? ac : bc);
}

void TakeArmyType(ArmyHeader& header, std::string_view code) {
  header.TYPE_IsFantasy.Value = code.find('F') != std::string_view::npos;
  header.TYPE_IsPersonal.Value = code.find('P') != std::string_view::npos;
}

void LoadSpecialRules(ArmyHeader& header, const ProfileFiles& files,
                      const std::filesystem::path& army) {
  for (CheckBox* box : {&header.TribalCheck, &header.Ferocity, &header.Mobility}) {
    box->Value = false;
  }
  const std::string rules = files.ReadIniString("ARMY", "special_rules", army);
  for (Int16 k = 1; !GetField(rules, k).empty(); ++k) {
    for (const auto& [box, word] : specialRules) {
      if (GetField(rules, k) == word) (header.*box).Value = true;
    }
  }
}

std::string ArmyTypeCode(const ArmyHeader& header) {
  return std::string(header.TYPE_IsFantasy.Value ? "F" : "") +
         (header.TYPE_IsPersonal.Value ? "P" : "");
}

std::string SpecialRulesText(const ArmyHeader& header) {
  std::string text;
  for (const auto& [box, word] : specialRules) {
    if (!(header.*box).Value) continue;
    if (!text.empty()) text += ",";
    text += word;
  }
  return text;
}

void ClearSpecialRules(ArmyHeader& header) {
  for (const auto& rule : specialRules)
    (header.*rule.Box).Value = false;
}

}  // namespace tarnwick
