// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/special_abilities.h"

#include "base/text.h"

namespace tarnwick {

bool SpecialAbilities::Has(std::string_view group, std::string_view code) const {
  const std::string list = files_.ReadIniString(group, "special", file_);
  for (int i = 1; i <= mostCodes; ++i) {
    const std::string item = GetField(list, i, "+");
    if (item.empty()) return false;
    if (item == code) return true;
  }
  return false;
}

std::string SpecialAbilities::Explain(std::string_view group) const {
  const std::string list = files_.ReadIniString(group, "special", file_);
  std::string text;
  for (int i = 1; i <= mostCodes; ++i) {
    const std::string code = GetField(list, i, "+");
    const std::string explanation = files_.ReadIniString("SPECIALS", code, file_);
    if (explanation.empty()) break;
    text.append(CrLf).append(CrLf).append("*").append(code).append("=").append(explanation);
  }
  return text;
}

}  // namespace tarnwick
