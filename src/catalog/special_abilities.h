// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "catalog/disk.h"

namespace tarnwick {

/// How many codes of a group are looked at.
inline constexpr int mostCodes = 10;

/// The catalog of special abilities, which both modules share.
class SpecialAbilities {
 public:
  explicit SpecialAbilities(const Disk& disk)
      : files_(disk.Files), file_(disk.ProgramFolder / "specials.dat") {}

  /// Whether the group `group`, a unit row's specials field, holds `code`, case and all. Ten codes
  /// are looked at; an empty one ends the list.
  bool Has(std::string_view group, std::string_view code) const;

  /// The group's first ten codes, up to an empty one.
  std::vector<std::string> Codes(std::string_view group) const;

  /// What `code` means; "" when nothing explains it.
  std::string Meaning(std::string_view code) const;

  /// A paragraph "*code=explanation" for each of the group's first ten codes, up to the first one
  /// that nothing explains. Every paragraph begins with a line break and an empty line.
  std::string Explain(std::string_view group) const;

 private:
  const ProfileFiles& files_;
  std::filesystem::path file_;
};

}  // namespace tarnwick
