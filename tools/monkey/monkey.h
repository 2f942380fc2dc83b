// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace tarnwick {

/// Lets a monkey loose on the editor's window, on the catalogs of `data`, for some seconds: each
/// editor lives in a process of its own, with the seeds `seed`, `seed` + 1 and so on. Prints every
/// fault with the seed and the last steps that led to it, and a line on the whole at the end.
/// Returns the number of faults.
int RunMonkey(const std::filesystem::path& data, int seconds, unsigned seed);

}  // namespace tarnwick
