// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "check_catalog/catalog_problem.h"

namespace tarnwick {

/// Everything that is wrong with the catalogs of a program folder, both modules. `canShow` says
/// whether a picture file can be read as a picture.
std::vector<CatalogProblem> CheckCatalogs(
    const std::filesystem::path& programFolder,
    const std::function<bool(const std::filesystem::path& picture)>& canShow);

}  // namespace tarnwick
