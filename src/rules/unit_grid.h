// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "base/host.h"
#include "base/int16.h"
#include "rules/army_state.h"

namespace tarnwick {

/// Fills the grid with the rows of `BaseUnits` that the view choice selects, the first 23 of them,
/// and refreshes the counters. Moves no points.
void ShowSelectUnits(ArmyState& state, const Disk& disk);

/// After a reset the lines don't name their units any more. Fills the lines again that can be seen,
/// whatever the view selects, each with the unit that it showed before: the first row with the same
/// texts behind that of the line above. What is typed in their boxes stays.
void FindUnitsAgain(ArmyState& state, const Disk& disk);

/// Fills `ImageName(line)` with the pictures that fit what the line shows and selects the one
/// chosen for `row`, else the first; that one then becomes the row's choice.
void ShowUnitImages(ArmyState& state, Int16 line, Int16 row);

/// The picture of the row of `BaseUnits`, by its row in the image catalog: the one chosen, else the
/// first that fits; 0 when none does.
Int16 PictureOf(const ArmyState& state, Int16 row);

/// What tells each visible line from the others when it is heard, not seen: "HI Vet TQ 7 Sz 4".
/// Lines that are alike all the same have their number, from 1, in it.
std::vector<std::string> LineNames(const UnitsPanel& grid);

/// Another view was chosen.
void ViewOption_Click(ArmyState& state, const Disk& disk);

/// A picture was selected in `ImageName(line)`, by the user or by code.
void ImageName_Click(ArmyState& state, Int16 line);

/// Shows the line's picture; without a selected picture nothing happens.
void ViewBtn_Click(const ArmyState& state, const Disk& disk, Host& host, Int16 line);

/// Opens the special abilities of the line's unit when it has any.
void specLabel_Click(ArmyState& state, const Disk& disk, Host& host, Int16 line);

}  // namespace tarnwick
