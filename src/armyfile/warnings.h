// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "armyfile/army_browser.h"
#include "armyfile/working_army.h"

namespace tarnwick {

// What the next click would end or lose, told before it is done: a line for the window to show
// while it applies, "" otherwise. Nothing is changed and no error is thrown.

/// All options for leaders are taken; defining one more ends the editor.
std::string LeaderWarning(const ArmyState& state);

/// What deleting the selected army does in the second module: the file goes from the program
/// folder. Looks for that file.
std::string DeleteWarning(const ArmyState& state, const Disk& disk, const ArmyListForm& form);

/// Whose setups those of the panel are when they aren't those of the army in the box "File".
std::string SetupWarning(const WorkingArmy& work);

/// Where the second module's terrain goes.
std::string TerrainWarning(const ArmyState& state);

/// The army would be saved without a base army that can be loaded: the choice of a new army was
/// cancelled, or the module was changed. Looks into the catalog.
std::string BaseArmyWarning(const ArmyState& state, const Disk& disk);

/// The army would be saved under no name, in a folder that isn't there, or in one that the list of
/// armies doesn't show. Looks for the folder.
std::string FolderWarning(const ArmyState& state, const Disk& disk);

// The points leave 16 bits with the negative quantity that was typed into a box and not entered
// yet.

std::string UnitsWarning(const ArmyState& state, const Disk& disk);
std::string CardsWarning(const ArmyState& state);

/// How full the line of the file is that takes a description, from 200 bytes on. Each line break of
/// `text` takes `lineBreakSize` bytes there.
std::string LengthWarning(std::string_view text, std::size_t lineBreakSize);

}  // namespace tarnwick
