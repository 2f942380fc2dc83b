// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "handling.h"

#include <algorithm>
#include <cstdio>

namespace tarnwick {

void Handling::Count(std::string_view what, int times) {
  auto found = std::find_if(counts_.begin(), counts_.end(),
                            [what](const auto& count) { return count.first == what; });
  if (found == counts_.end()) found = counts_.insert(found, {std::string(what), 0});
  found->second += times;
}

void Handling::Fault(const std::string& what, unsigned seed) {
  ++faults_;
  std::printf("FAULT: %s\n  again: %s %u\n", what.c_str(), again_.c_str(), seed);
}

std::string Handling::Line() const {
  std::vector<std::string> parts;
  for (const auto& [what, times] : counts_)
    parts.push_back(std::to_string(times) + " " + what);
  parts.insert(parts.end(), notes_.begin(), notes_.end());
  parts.push_back(std::to_string(faults_) + " faults");
  std::string line;
  for (const std::string& part : parts)
    line += (line.empty() ? "" : ", ") + part;
  return line;
}

}  // namespace tarnwick
