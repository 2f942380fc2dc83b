// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalog/profile_text.h"
#include "check_catalog/finding.h"

namespace tarnwick {

/// Whether the editor finds its sections in `bytes`, the whole of `file`. False for UTF-16 and
/// the like, which is reported.
bool CheckEncoding(const std::string& file, std::string_view bytes, Findings& findings);

/// What the lines of any profile file may have wrong: they can't be found, are too long, or hold
/// what is not in the code page.
void CheckLines(const std::string& file, const std::vector<ProfileText::Line>& lines,
                Findings& findings);

}  // namespace tarnwick
