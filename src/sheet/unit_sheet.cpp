// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "sheet/unit_sheet.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string_view>
#include <system_error>

#include "base/ansi.h"
#include "base/numbers.h"
#include "catalog/special_abilities.h"
#include "rules/unit_grid.h"
#include "sheet/html.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr int pictureSide = 22;

/// Codes with their meanings.
using Abilities = std::map<std::string, std::string>;

/// The unit's special abilities as a list; adds them to those to be explained.
std::string TakeAbilities(const UnitRec& unit, const SpecialAbilities& catalog,
                          Abilities& abilities) {
  std::string list;
  for (const std::string& code : catalog.Codes(unit.SpecialsKey)) {
    abilities.emplace(code, catalog.Meaning(code));
    list += (list.empty() ? "" : ", ") + code;
  }
  return list;
}

std::string UnitName(const ArmyState& army, const UnitRec& unit, Int16 image) {
  std::string name = Element("b", HtmlText(unit.UnitType + " " + unit.UnitClass));
  if (image > 0) name += HtmlText(army.Catalog.Images[image].Name);
  return name;
}

std::string Footnotes(const Abilities& abilities) {
  std::string notes;
  for (const auto& [code, meaning] : abilities) {
    if (meaning.empty()) continue;
    notes += Element("p class='small'", Element("b", HtmlText(code)) + HtmlText(meaning));
  }
  return notes;
}

/// A plain file, no larger than pictures are, that is in the folder or below it, links followed.
bool LiesInside(const fs::path& file, const fs::path& folder) {
  constexpr std::uintmax_t largest = 4'000'000;
  std::error_code error;
  const fs::path way = fs::relative(file, folder, error);
  return !way.empty() && *way.begin() != ".." && FileExists(file) &&
         fs::file_size(file, error) <= largest;
}

/// Whether an SVG names another file, which those who draw it would read; or can't be told.
bool LooksElsewhere(std::string_view svg) {
  constexpr std::string_view link = "href";
  if (!svg.starts_with('<') || svg.find('\0') != std::string_view::npos) return true;
  for (auto at = svg.find(link); at != std::string_view::npos; at = svg.find(link, at + 1)) {
    const std::size_t quote = std::min(svg.find_first_of("\"'", at), svg.size() - 1);
    const std::string_view target = svg.substr(quote + 1);
    if (!target.starts_with('#') && !target.starts_with("data:")) return true;
  }
  return false;
}

}  // namespace

std::string UnitSheet(const ArmyState& army, const Disk& disk) {
  const SpecialAbilities catalog(disk);
  Abilities abilities;
  std::string rows;
  int units = 0;
  for (Int16 r = 1; r <= army.TotUnits; ++r) {
    const UnitRec& unit = army.BaseUnits[r];
    if (unit.Bought == 0) continue;
    units += unit.Bought.Value();
    const Int16 image = PictureOf(army, r);
    const std::string cells[] = {NumberText(unit.Bought),
                                 UnitPicture(army, disk, image, pictureSide),
                                 UnitName(army, unit, image),
                                 HtmlText(unit.TQ),
                                 HtmlText(unit.Size),
                                 HtmlText(unit.Missile),
                                 HtmlText(TakeAbilities(unit, catalog, abilities)),
                                 std::to_string(unit.Bought.Value() * unit.Cost.Value())};
    std::string row;
    for (const std::string& cell : cells)
      row += Element("td", cell);
    rows += Element("tr", row);
  }
  if (rows.empty()) return Element("p", "No units yet.");
  return Element("h2", std::to_string(units) + (units == 1 ? " unit" : " units")) +
         Element("table class='rows' width='100%' cellpadding='1'",
                 Element("thead",
                         "<tr><th></th><th></th><th>Unit</th><th>TQ</th><th>Size</th>"
                         "<th>Missile</th><th>Special abilities</th><th>Points</th></tr>") +
                     Element("tbody", rows)) +
         Footnotes(abilities);
}

std::string UnitPicture(const ArmyState& army, const Disk& disk, Int16 image, int side) {
  if (image < 1 || image > army.Catalog.TotImages) return "";
  const fs::path file = PictureFile(disk, army.BrakkaMode, army.Catalog.Images[image].Id);
  const std::string type = LowerCase(file.extension().string());
  if ((type != ".svg" && type != ".png") || !LiesInside(file, disk.ProgramFolder)) return "";
  std::ifstream in(file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  if (bytes.empty() || (type == ".svg" && LooksElsewhere(bytes))) return "";
  return PictureElement(type == ".svg" ? "svg+xml" : "png", bytes, side);
}

}  // namespace tarnwick
