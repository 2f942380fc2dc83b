// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/specials_check.h"

#include <algorithm>
#include <set>

#include "base/ansi.h"
#include "base/text.h"
#include "catalog/special_abilities.h"

namespace tarnwick {
namespace {

void CheckCode(CatalogFile& specials, const std::string& group, const std::string& code) {
  const auto warn = [&](const std::string& sentence) {
    specials.Report(Severity::Warning, group, "special", sentence);
  };
  if (code.empty()) {
    warn("An empty code ends the group. Write a single \"+\" between two codes, none at the ends.");
  } else if (code != "MOUNTED" && LowerCase(Trim(code)) == "mounted") {
    warn("The code \"" + code +
         R"(" mounts nobody. Write "MOUNTED", in capitals and without blanks.)");
  } else if (specials.Read("SPECIALS", code).empty()) {
    warn("Nothing explains the code \"" + code + "\", which ends the list that (+) shows. Write " +
         code + "=... in [SPECIALS].");
  }
}

void CheckGroup(CatalogFile& specials, const std::string& group) {
  const std::string list = specials.Read(group, "special");
  if (list.empty()) {
    specials.Report(Severity::Warning, group, "special",
                    "The group has no abilities. Write special= and their codes.");
    return;
  }
  const auto count = std::ranges::count(list, '+') + 1;
  if (count > mostCodes) {
    specials.Report(Severity::Warning, group, "special",
                    "The group has " + std::to_string(count) +
                        " codes, of which ten are looked at. Take the others away.");
  }
  std::set<std::string> seen;
  for (int i = 1; i <= std::min<long>(count, mostCodes); ++i) {
    const std::string code = GetField(list, i, "+");
    if (seen.insert(code).second) CheckCode(specials, group, code);
  }
}

}  // namespace

void CheckSpecials(CatalogFile& specials) {
  for (const std::string& section : specials.Sections())
    if (LowerCase(section) != "specials") CheckGroup(specials, section);
  specials.CheckUnreadKeys(Severity::Note,
                           "Nothing asks for the key. Check its spelling, or take it away.");
}

}  // namespace tarnwick
