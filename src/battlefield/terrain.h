// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

#include "base/host.h"
#include "base/int16.h"
#include "battlefield/battlefield.h"
#include "catalog/pending_files.h"
#include "rules/army_state.h"

namespace tarnwick {

/// Takes all terrain off the areas. Gives no points back and changes no picture.
void ClearAreas(Battlefield& field);

/// Clears the areas and fills the table of kinds.
void InitTerrainKinds(Battlefield& field);

/// The index of the kind of that name, case and all. Throws SubscriptError for another name.
Int16 TerrainIndex(const Battlefield& field, std::string_view name);

/// What the terrain on the areas costs, in command points. Throws SubscriptError when an area holds
/// what is no kind.
Int16 TerrainCommandPoints(const Battlefield& field);

/// Writes the section TERRAIN of an army file, all nine areas.
void SaveTerrain(const Battlefield& field, PendingFiles& files, const std::filesystem::path& army);

/// Reads the nine areas of an army file and charges their prices, even below 0. A missing area is
/// clear; a name that is no kind throws SubscriptError after it was stored.
void LoadTerrain(Battlefield& field, ArmyState& state, const ProfileFiles& files,
                 const std::filesystem::path& army);

/// Shows the free points on the terrain panel.
void ShowTerrainPoints(Battlefield& field, const ArmyState& state);

/// Shows the free points and what lies on the areas. An area that was cleared keeps its picture
/// until a piece is dropped on it: pictures come with pieces, and clearing brings none.
void ShowTerrain(Battlefield& field, const ArmyState& state);

/// Whether both prices of a kind are free.
[[nodiscard]] bool CanPlaceTerrain(const Battlefield& field, const ArmyState& state, Int16 kind);

/// The palette's piece `piece` is dropped on `Area(area)`: refunds what lies there and charges the
/// piece, whose whole price must be free before the refund. Throws OverflowError.
void DropTerrain(Battlefield& field, ArmyState& state, Host& host, Int16 piece, Int16 area);

/// Shows the terrain panel with its points and areas up to date.
void ShowTerrainBtn_Click(Battlefield& field, ArmyState& state);

}  // namespace tarnwick
