// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "catalog/base_army.h"

namespace tarnwick {

/// The fewest army points that meet all limits within the rows' maxima, counted as verification
/// counts; nothing when the limits are too many together to say. Each must be within the maxima.
std::optional<int> CheapestLegalArmy(const std::vector<UnitRec>& units,
                                     const std::vector<LimitRec>& limits);

}  // namespace tarnwick
