// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include "check_catalog/catalog_file.h"

namespace tarnwick {

/// Checks the groups of special abilities and what explains their codes.
void CheckSpecials(CatalogFile& specials);

}  // namespace tarnwick
