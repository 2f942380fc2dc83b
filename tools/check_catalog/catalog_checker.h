// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "check_catalog/finding.h"
#include "check_catalog/picture_check.h"

namespace tarnwick {

/// What is wrong with the catalogs of a program folder, or worth knowing of them, both modules, by
/// file and line.
Findings CheckCatalogs(const std::filesystem::path& programFolder, const PictureFault& fault);

}  // namespace tarnwick
