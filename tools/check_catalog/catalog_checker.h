// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace tarnwick {

/// What is wrong at one place of a catalog. Section and key are "" where the file as a whole, or
/// the section, is meant.
struct CatalogProblem {
  std::string File;  ///< relative to the program folder
  std::string Section;
  std::string Key;
  std::string Sentence;
};

/// "file: [section] key: sentence"
std::string ProblemText(const CatalogProblem& problem);

/// Everything that is wrong with the catalogs of a program folder, both modules. `canShow` says
/// whether a picture file can be read as a picture.
std::vector<CatalogProblem> CheckCatalogs(
    const std::filesystem::path& programFolder,
    const std::function<bool(const std::filesystem::path& picture)>& canShow);

}  // namespace tarnwick
