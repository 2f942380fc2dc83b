// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/controls.h"
#include "base/host.h"
#include "base/table.h"
#include "catalog/profile_files.h"

namespace tarnwick {

/// What an army file says of the army as a whole, and the controls that edit it.
struct ArmyHeader {
  ArmyHeader();

  std::string ArmyFile;  ///< the name of the file that was loaded, without folder and ending
  std::string ArmyAuthor;
  std::string ArmyDescription;  ///< its line breaks are "@"
  std::string ArmyPeriod;       ///< "from,to" in years, BC negative
  std::string ArmyImages;       ///< the further image catalog
  std::string ArmyTypeText;     ///< as the file has it, letters without a check box included; the
                                ///< boxes are what is saved

  TextBox ArmyDesc;
  Frame HistoricTab;
  Table<OptionButton, 0, 1> FromACBC, toACBC;  ///< BC, AC
  TextBox FromData, ToData;
  CheckBox TYPE_IsPersonal, TYPE_IsFantasy;
  CheckBox TribalCheck, Ferocity, Mobility, LongSword, FOW, Discipline;
  bool operator==(const ArmyHeader&) const = default;
};

/// The description box changed.
void ArmyDesc_Change(ArmyHeader& header);

// The focus leaves a period box: every failed check is reported, and the period takes the numbers
// all the same. Returns true (cancel: the focus stays) when a check failed.

[[nodiscard]] bool FromData_Validate(ArmyHeader& header, Host& host);
[[nodiscard]] bool ToData_Validate(ArmyHeader& header, Host& host);

// One of the era buttons was clicked: a period that begins AC also ends AC.

void FromACBC_Click(ArmyHeader& header);
void toACBC_Click(ArmyHeader& header);

/// Rebuilds `ArmyPeriod` from the boxes and era buttons.
void BuildPeriod(ArmyHeader& header);

/// Shows `ArmyPeriod` in the boxes and era buttons; an empty one leaves them. Throws
/// TypeMismatchError or OverflowError, with nothing changed, when it is not two years.
void ShowPeriod(ArmyHeader& header);

/// Ticks the army types that the type text `code` holds and unticks the others.
void TakeArmyType(ArmyHeader& header, std::string_view code);

/// Ticks the special rules that an army file lists. Only the first three in the order of the file
/// are unticked when it does not list them; the others stay: the button that loads
/// has cleared all six before.
void LoadSpecialRules(ArmyHeader& header, const ProfileFiles& files,
                      const std::filesystem::path& army);

/// "", "F" (fantasy), "P" (personal) or "FP".
std::string ArmyTypeCode(const ArmyHeader& header);

/// The ticked special rules as a comma list, in the order of the army file.
std::string SpecialRulesText(const ArmyHeader& header);

/// Unticks all special rules.
void ClearSpecialRules(ArmyHeader& header);

}  // namespace tarnwick
