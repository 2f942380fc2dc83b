// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "check_catalog/catalog_file.h"
#include "check_catalog/unit_check.h"

namespace tarnwick {

/// Checks the limits of an army, and whether its units and `points` can meet them; `points` is 0
/// when it is not known.
void CheckLimits(CatalogSection& army, const std::vector<UnitRow>& rows, int points);

}  // namespace tarnwick
