// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

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
inline std::string ProblemText(const CatalogProblem& problem) {
  std::string text = problem.File + ": ";
  if (!problem.Section.empty()) text += "[" + problem.Section + "] ";
  if (!problem.Key.empty()) text += problem.Key + ": ";
  return text + problem.Sentence;
}

}  // namespace tarnwick
