// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "rules/unit_grid.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "base/ansi.h"
#include "base/numbers.h"
#include "rules/budget.h"
#include "rules/unit_types.h"

namespace tarnwick {
namespace {

constexpr int lines = UnitsPanel::Column<Label>::Last + 1;

bool InView(const ArmyState& state, const Disk& disk, Int16 row) {
  const UnitRec& unit = state.BaseUnits[row];
  const auto& view = state.Units.ViewOption;
  if (view[0].Value) return MountedKind(state, disk, unit.UnitType, row) != mounted;
  if (view[1].Value) return MountedKind(state, disk, unit.UnitType, row) == mounted;
  return unit.Bought > 0;
}

/// What the columns of the catalog show of a unit.
auto CatalogTexts(const UnitRec& unit) {
  using Column = UnitsPanel::Column<Label> UnitsPanel::*;
  return std::to_array<std::pair<Column, std::string>>(
      {{&UnitsPanel::TypeLabel, unit.UnitType},
       {&UnitsPanel::ClassLabel, unit.UnitClass},
       {&UnitsPanel::TQLabel, unit.TQ},
       {&UnitsPanel::SizeLabel, unit.Size},
       {&UnitsPanel::MissileLabel, unit.Missile},
       {&UnitsPanel::CostLabel, NumberText(unit.Cost)},
       {&UnitsPanel::MaxLabel, NumberText(unit.MaxCount)},
       {&UnitsPanel::specLabel, unit.SpecialsKey.empty() ? "" : "(+)"}});
}

void FillLine(ArmyState& state, const Disk& disk, Int16 k, Int16 row) {
  const UnitRec& unit = state.BaseUnits[row];
  UnitsPanel& grid = state.Units;
  ShowGridLine(grid, k, true);
  grid.Buy[k].Tag = NumberText(row);
  for (const auto& [column, text] : CatalogTexts(unit))
    (grid.*column)[k].Caption = text;
  grid.TypeLabel[k].ForeColor =
      MountedKind(state, disk, unit.UnitType, row) == mounted ? Colour::LightBlue : Colour::Black;
  grid.Buy[k].Text = unit.Bought < 1 ? "" : NumberText(unit.Bought);
  grid.UnitTotalLabel[k].Caption = NumberText(unit.Bought * unit.Cost);
  ShowUnitImages(state, k, row);
}

}  // namespace

void ShowSelectUnits(ArmyState& state, const Disk& disk) {
  state.GridFilling = true;
  Int16 n;
  for (Int16 r = 1; r <= state.TotUnits && n < lines; ++r) {
    if (!InView(state, disk, r)) continue;
    FillLine(state, disk, n, r);
    ++n;
  }
  for (; n < lines; ++n)
    ShowGridLine(state.Units, n, false);
  state.GridFilling = false;
  ShowPoints(state);
}

void FindUnitsAgain(ArmyState& state, const Disk& disk) {
  Int16 row;
  for (Int16 k; k < lines && state.Units.Buy[k].Visible; ++k) {
    const auto shown = [&](const auto& text) {
      return (state.Units.*text.first)[k].Caption == text.second;
    };
    do {
      if (++row > state.TotUnits) return;
    } while (!std::ranges::all_of(CatalogTexts(state.BaseUnits[row]), shown));
    const std::string typed = state.Units.Buy[k].Text;
    FillLine(state, disk, k, row);
    state.Units.Buy[k].Text = typed;
  }
}

void ShowUnitImages(ArmyState& state, Int16 line, Int16 row) {
  UnitsPanel& grid = state.Units;
  ListBox& list = grid.ImageName[line];
  list.Clear();
  for (Int16 m = 1; m <= state.Catalog.TotImages; ++m) {
    const ImageRec& image = state.Catalog.Images[m];
    if (!PictureFits(image, grid.TypeLabel[line].Caption, grid.ClassLabel[line].Caption,
                     grid.MissileLabel[line].Caption)) {
      continue;
    }
    list.AddItem(image.Name, m);
    if (m == state.BaseUnits[row].ChosenImageIdx) {
      list.ListIndex = static_cast<int>(list.Entries.size()) - 1;
    }
  }
  if (list.Entries.empty()) return;
  if (list.ListIndex == -1) list.ListIndex = 0;
  state.SetupLoading = true;
  ImageName_Click(state, line);
  state.SetupLoading = false;
}

Int16 PictureOf(const ArmyState& state, Int16 row) {
  const UnitRec& unit = state.BaseUnits[row];
  if (unit.ChosenImageIdx > 0) return unit.ChosenImageIdx;
  for (Int16 m = 1; m <= state.Catalog.TotImages; ++m) {
    const ImageRec& image = state.Catalog.Images[m];
    if (PictureFits(image, unit.UnitType, unit.UnitClass, unit.Missile)) return m;
  }
  return 0;
}

std::vector<std::string> LineNames(const UnitsPanel& grid) {
  std::vector<std::string> texts;
  for (int k = 0; k < lines && grid.Buy[k].Visible; ++k) {
    std::string& text = texts.emplace_back(grid.TypeLabel[k].Caption);
    const auto add = [&text](const char* word, const std::string& caption) {
      if (!caption.empty()) text += word + caption;
    };
    add(" ", grid.ClassLabel[k].Caption);
    add(" TQ ", grid.TQLabel[k].Caption);
    add(" Sz ", grid.SizeLabel[k].Caption);
    add(" ", grid.MissileLabel[k].Caption);
  }
  std::vector<std::string> names = texts;
  for (std::size_t k = 0; k < texts.size(); ++k)
    if (std::ranges::count(texts, texts[k]) > 1) names[k] += ", line " + std::to_string(k + 1);
  return names;
}

void ViewOption_Click(ArmyState& state, const Disk& disk) {
  ShowSelectUnits(state, disk);
}

void ImageName_Click(ArmyState& state, Int16 line) {
  const std::string& tag = state.Units.Buy[line].Tag;
  if (tag.empty()) return;
  UnitRec& unit = state.BaseUnits[StrictInt16(tag)];
  // Filling the list again must not overwrite the player's choice.
  if (state.SetupLoading && !unit.ChosenImage.empty()) return;
  const ListBox& list = state.Units.ImageName[line];
  if (list.Text().empty()) return;
  unit.ChosenImage = list.Selected().Text;
  unit.ChosenImageIdx = list.Selected().ItemData;
}

void ViewBtn_Click(const ArmyState& state, const Disk& disk, Host& host, Int16 line) {
  const ListBox& list = state.Units.ImageName[line];
  if (!list.HasSelection()) return;
  const std::string& picture = state.Catalog.Images[list.Selected().ItemData].Id;
  const auto path = PictureFile(disk, state.BrakkaMode, picture);
  if (FileExists(path)) {
    host.ShowPicture(path);
  } else {
    host.Message("File " + AnsiFromPath(path) + " not found");
  }
}

void specLabel_Click(ArmyState& state, const Disk& disk, Host& host, Int16 line) {
  const std::string& tag = state.Units.Buy[line].Tag;
  if (tag.empty()) FindUnitsAgain(state, disk);
  if (tag.empty()) return;
  state.SpecUnitRow = StrictInt16(tag);
  if (!state.Units.specLabel[line].Caption.empty()) host.ShowSpecForm();
}

}  // namespace tarnwick
