// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>

#include "monkey/journal.h"

namespace tarnwick {

struct Life {
  std::filesystem::path Data;    ///< the folder of the shipped catalogs
  std::filesystem::path Folder;  ///< of this life alone
  unsigned Seed;
  std::chrono::steady_clock::time_point Until;
};

/// Lives the life of an editor under the hands of a monkey, until that ends or closes it, some
/// hundred steps are done or the time is over. The army is saved and loaded after every step that
/// changed it.
void Live(const Life& life, Journal& journal);

}  // namespace tarnwick
