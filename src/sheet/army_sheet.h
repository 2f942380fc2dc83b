// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "armyfile/working_army.h"
#include "catalog/disk.h"
#include "sheet/field_sheet.h"

namespace tarnwick {

/// What stands above the sheet: the army's name, or what else there is to name it by.
std::string SheetTitle(const WorkingArmy& work);

/// The army as it is on the screen, to read and to print: a piece of HTML for SheetPage, in UTF-8.
/// It has all pictures inside and shows every text as it is. What the rules can't work out is left
/// out; what an army that isn't complete still needs is said. Never throws a RuntimeError.
std::string ArmySheet(const WorkingArmy& work, const Disk& disk, const TerrainPictures& terrain);

/// A whole page of HTML with these sheets. Printed, each begins a page of its own. `title` is a
/// text of the state.
std::string SheetPage(const std::string& title, const std::vector<std::string>& sheets);

}  // namespace tarnwick
