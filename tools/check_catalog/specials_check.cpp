// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/specials_check.h"

#include <algorithm>
#include <map>
#include <set>

#include "base/ansi.h"
#include "base/text.h"
#include "catalog/special_abilities.h"

namespace tarnwick {
namespace {

/// The first group that has a code, and how many have it.
struct Use {
  std::string Group;
  int Groups = 0;
};

void CheckCode(CatalogFile& specials, const std::string& code, const Use& use) {
  const auto warn = [&](const std::string& sentence) {
    const std::string others = use.Groups > 1 ? " Other groups have it, too." : "";
    specials.Report(Severity::Warning, use.Group, "special", sentence + others);
  };
  if (code.empty()) {
    warn("An empty code ends the group. Write a single \"+\" between two codes, none at the ends.");
  } else if (code != "MOUNTED" && LowerCase(Trim(code)) == "mounted") {
    specials.Read("SPECIALS", "MOUNTED");
    warn("The code \"" + code +
         R"(" mounts nobody. Write "MOUNTED", in capitals and without blanks.)");
  } else if (specials.Read("SPECIALS", code).empty()) {
    warn("Nothing explains the code \"" + code + "\", which ends the list that (+) shows. Write " +
         code + "=... in [SPECIALS].");
  }
}

void CheckGroup(CatalogFile& specials, const std::string& group,
                std::map<std::string, Use>& codes) {
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
    if (seen.insert(code).second) ++codes.try_emplace(code, Use{group}).first->second.Groups;
  }
}

}  // namespace

void CheckSpecials(CatalogFile& specials) {
  std::map<std::string, Use> codes;
  for (const std::string& section : specials.Sections())
    if (LowerCase(section) != "specials") CheckGroup(specials, section, codes);
  for (const auto& [code, use] : codes)
    CheckCode(specials, code, use);
  specials.CheckUnreadKeys(Severity::Note,
                           "Nothing asks for the key. Check its spelling, or take it away.");
}

}  // namespace tarnwick
