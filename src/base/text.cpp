// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "base/text.h"

namespace tarnwick {

std::string GetField(std::string_view text, Int16 n, std::string_view separator) {
  if (n < 1) return "";
  if (separator.empty()) separator = ",";
  for (Int16 i = 1; i < n; ++i) {
    const std::size_t end = text.find(separator);
    if (end == std::string_view::npos) return "";
    text.remove_prefix(end + separator.size());
  }
  return std::string(text.substr(0, text.find(separator)));
}

std::string ReplaceText(std::string_view find, std::string_view replacement,
                        std::string_view text) {
  if (find.empty()) return std::string(text);
  std::string result;
  for (std::size_t match = text.find(find); match != std::string_view::npos;
       match = text.find(find)) {
    result += text.substr(0, match);
    result += replacement;
    text.remove_prefix(match + find.size());
  }
  result += text;
  return result;
}

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace tarnwick
