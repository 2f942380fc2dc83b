// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "sheet/field_sheet.h"

#include <cstddef>

#include "base/ansi.h"
#include "base/numbers.h"
#include "base/text.h"
#include "battlefield/setups.h"
#include "sheet/html.h"

namespace tarnwick {
namespace {

constexpr int areaSide = 32;

std::string AreaCell(const Battlefield& field, const TerrainPictures& pictures, int area) {
  const std::string& name = field.AreaTerrain[area];
  std::string picture;
  for (int kind = 0; const TerrainKindRec& terrain : field.TerrainKinds) {
    if (terrain.Name == name)
      picture = PictureElement("svg+xml", pictures[kind], areaSide) + "<br>";
    ++kind;
  }
  return Element("td width='80'", picture + HtmlText(LowerCase(name)));
}

/// "HI Vet TQ 7 Sz 4 J"
std::string DeployedText(const std::string& unit) {
  if (unit.empty()) return "";
  const UnitRec row = ParseIdentity(unit);
  std::string text = row.UnitType;
  const auto add = [&text](const char* word, const std::string& field) {
    if (!field.empty()) text += word + field;
  };
  add(" ", row.UnitClass);
  add(" TQ ", row.TQ);
  add(" Sz ", row.Size);
  add(" ", row.Missile);
  return text;
}

/// The places from `first` to `last`, from 0, below each other.
std::string ZoneCell(const StoredSetup& setup, std::size_t first, std::size_t last) {
  std::string places;
  for (std::size_t place = first; place <= last; ++place) {
    places += (place == first ? "" : "<br>") + std::to_string(place + 1) + "&nbsp; " +
              HtmlText(DeployedText(setup.Units.at(place)));
  }
  return Element("td valign='top'", places);
}

std::string SetupPlan(const StoredSetup& setup) {
  return Element("p",
                 Element("b", "Setup " + NumberText(setup.Number)) + HtmlText(setup.Description)) +
         Element("table class='plan' width='100%' cellpadding='1'",
                 "<tr><th>Left</th><th>Centre</th><th>Right</th></tr>" +
                     Element("tr", ZoneCell(setup, 0, 1) + ZoneCell(setup, 2, 6) +
                                       ZoneCell(setup, 7, 8)));
}

}  // namespace

std::string TerrainMap(const Battlefield& field, const TerrainPictures& pictures) {
  std::string rows;
  for (int row = 0; row < 3; ++row) {
    std::string cells;
    for (int column = 0; column < 3; ++column)
      cells += AreaCell(field, pictures, 3 * row + column);
    rows += Element("tr", cells);
  }
  return Element("table class='field' cellpadding='1'", rows);
}

std::vector<std::string> SetupPlans(const WorkingArmy& work, const Disk& disk) {
  std::vector<std::string> plans;
  for (const ListEntry& entry : work.Field.Setup.setupList.Entries)
    plans.push_back(SetupPlan(ReadSetup(disk, LenientInt16(entry.Text))));
  return plans;
}

}  // namespace tarnwick
