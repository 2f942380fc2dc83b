// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace tarnwick {

/// What a fault does to the player: the editor refuses, loses or ends over it; it does not do what
/// the author meant; it is no more than worth knowing.
enum class Severity { Error, Warning, Note };

/// What was found at one place of a catalog.
struct Finding {
  std::string File;  ///< relative to the program folder
  int Line = 0;      ///< from 1; 0 where the file as a whole is meant
  Severity Weight = Severity::Error;
  std::string Section;   ///< "" where none is meant
  std::string Key;       ///< "" where none is meant
  std::string Sentence;  ///< what stands there, what is expected, how to mend it
};

using Findings = std::vector<Finding>;

/// "file:line: error: [section] key: sentence"
std::string FindingText(const Finding& finding);

/// "2 errors, 1 warning.", or "No problems."
std::string SummaryText(const Findings& findings);

bool HasErrors(const Findings& findings);

}  // namespace tarnwick
