// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/special_abilities.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace tarnwick {

bool SpecialAbilities::Has(std::string_view group, std::string_view code) const {
  return std::ranges::count(Codes(group), code) > 0;
}

std::vector<std::string> SpecialAbilities::Codes(std::string_view group) const {
  const std::string list = files_.ReadIniString(group, "special", file_);
  std::vector<std::string> codes;
  for (int i = 1; i <= mostCodes; ++i) {
    std::string code = GetField(list, i, "+");
    if (code.empty()) break;
    codes.push_back(std::move(code));
  }
  return codes;
}

std::string SpecialAbilities::Meaning(std::string_view code) const {
  return files_.ReadIniString("SPECIALS", code, file_);
}

std::string SpecialAbilities::Explain(std::string_view group) const {
  const std::string list = files_.ReadIniString(group, "special", file_);
  std::string text;
  for (int i = 1; i <= mostCodes; ++i) {
    const std::string code = GetField(list, i, "+");
    const std::string explanation = Meaning(code);
    if (explanation.empty()) break;
    text.append(CrLf).append(CrLf).append("*").append(code).append("=").append(explanation);
  }
  return text;
}

}  // namespace tarnwick
