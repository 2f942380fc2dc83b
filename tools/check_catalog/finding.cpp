// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/finding.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

constexpr std::array<const char*, 3> words = {"error", "warning", "note"};

auto CountOf(const Findings& findings, Severity weight) {
  return std::ranges::count(findings, weight, &Finding::Weight);
}

}  // namespace

std::string FindingText(const Finding& finding) {
  std::string text = finding.File + ":";
  if (finding.Line > 0) text += std::to_string(finding.Line) + ":";
  text.append(" ").append(words.at(static_cast<std::size_t>(finding.Weight))).append(": ");
  if (!finding.Section.empty()) text += "[" + finding.Section + "] ";
  if (!finding.Key.empty()) text += finding.Key + ": ";
  return text + finding.Sentence;
}

std::string SummaryText(const Findings& findings) {
  std::string text;
  for (const Severity weight : {Severity::Error, Severity::Warning, Severity::Note}) {
    const auto count = CountOf(findings, weight);
    if (count == 0) continue;
    text.append(text.empty() ? "" : ", ").append(std::to_string(count)).append(" ");
    text.append(words.at(static_cast<std::size_t>(weight))).append(count == 1 ? "" : "s");
  }
  return text.empty() ? "No problems." : text + ".";
}

bool HasErrors(const Findings& findings) {
  return CountOf(findings, Severity::Error) > 0;
}

}  // namespace tarnwick
