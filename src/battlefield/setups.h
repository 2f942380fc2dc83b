// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/host.h"
#include "base/int16.h"
#include "battlefield/battlefield.h"
#include "catalog/pending_files.h"
#include "rules/army_state.h"

namespace tarnwick {

// The army's setups live in the scratch file "working.setup" of the scratch folder, one section a
// setup, and every edit goes there at once. Loading and saving an army copies setups 1 to 20.

/// Rebuilds scratch file and setup list from the army file `army`. Throws FileError when the old
/// scratch file can't be deleted.
void LoadSetupsFromArmy(Battlefield& field, Disk& disk, const std::filesystem::path& army);

/// Copies the setups that have a description into the army file `army`; without any it is left
/// alone.
void CopySetupsToArmy(const Disk& disk, PendingFiles& files, const std::filesystem::path& army);

/// The scratch file as it is; nothing when there is none.
std::optional<std::string> StoredScratch(const Disk& disk);

/// Puts the scratch file back as it was. A failed write is silent.
void RestoreScratch(const Disk& disk, const std::optional<std::string>& bytes);

/// A setup as the scratch file has it.
struct StoredSetup {
  Int16 Number;
  std::string Description;
  std::array<std::string, 9> Units;  ///< by place, as IdentityText has them; "" for none
};

StoredSetup ReadSetup(const Disk& disk, Int16 number);

/// Shows setup `number` as the scratch file has it. Nothing is written.
void LoadSetup(Battlefield& field, const ArmyState& state, const Disk& disk, Int16 number);

/// Writes what the panel shows to the section of the current setup, unless `SetupLoading` is set.
/// A failed write is silent.
void SaveSetup(const Battlefield& field, const ArmyState& state, Disk& disk);

/// Lists the units that no place holds: rows 1 to `NumUnits` of `BaseUnits`, each once.
void FillDeployList(Battlefield& field, const ArmyState& state);

/// An entry of the setup list was chosen.
void setupList_Click(Battlefield& field, const ArmyState& state, const Disk& disk);

/// The description was changed.
void description_Change(const Battlefield& field, const ArmyState& state, Disk& disk);

/// "New Setup": the next number, first written with the places of the setup shown before it; the
/// emptied places reach the file with the next edit.
void Command6_Click(Battlefield& field, const ArmyState& state, Disk& disk);

/// "Delete Setup": deletes nothing but shows the monster laboratory.
void Command3_Click(ArmyState& state);

/// The first place that no unit holds, −1 when there is none.
int FirstFreePlace(const SetupPanel& panel);

/// "<->" of place `place`: deploys the selected unit there, exchanging it for the one that holds
/// the place, or without a selection withdraws that one.
void assignBtn_Click(Battlefield& field, const ArmyState& state, Disk& disk, Host& host,
                     Int16 place);

/// Shows the setup panel, with no setup on it until one is chosen.
void ShowSetup_Click(Battlefield& field, ArmyState& state);

}  // namespace tarnwick
