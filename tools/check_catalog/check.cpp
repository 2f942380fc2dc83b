// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/check.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "base/ansi.h"
#include "base/numbers.h"
#include "catalog/profile_text.h"

namespace tarnwick {
namespace {

/// Whether the text holds one of the five bytes that Windows-1252 leaves free, or is UTF-8.
bool OutsideCodePage(std::string_view text) {
  if (text.find_first_of("\x81\x8D\x8F\x90\x9D") != std::string_view::npos) return true;
  const bool ascii = std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
  return !ascii && Utf8FromAnsi(AnsiFromUtf8(text)) == text;
}

}  // namespace

bool FileCheck::CheckText() const {
  std::ifstream in(path_, std::ios::binary);
  if (!in) {
    Report("", "", "The file is missing.");
    return false;
  }
  const std::string bytes{std::istreambuf_iterator<char>(in), {}};
  const ProfileText text{std::string_view(bytes)};
  for (const auto& [number, isHeader, section, key, value, lost] : text.Lines()) {
    if (isHeader || section.data() == nullptr) continue;
    if (lost) Report(section, key, "The key stands here a second time and is never read.");
    if (value.size() > longestValue) {
      Report(section, key, "The value is longer than 254 bytes; the rest is never read.");
    }
    if (OutsideCodePage(section) || OutsideCodePage(key) || OutsideCodePage(value)) {
      Report(section, key, "The line holds characters that are not Windows-1252.");
    }
  }
  return true;
}

int FileCheck::CheckCount(std::string_view section, std::string_view key, int most) const {
  const std::string text = Read(section, key);
  if (text.empty()) {
    Report(section, key, "The count is missing.");
    return 0;
  }
  const auto count = NumberIn(text);
  if (!count || *count != Int(*count) || *count < 0 || *count > most) {
    Report(section, key,
           "The count \"" + text + "\" is no whole number from 0 to " + std::to_string(most) + ".");
    return 0;
  }
  return static_cast<int>(*count);
}

std::vector<std::string> FileCheck::CheckRows(std::string_view section, std::string_view word,
                                              int count) const {
  std::vector<std::string> rows;
  for (int i = 1; i <= count; ++i) {
    rows.push_back(Read(section, RowKey(word, i)));
    if (rows.back().empty()) Report(section, RowKey(word, i), "The row is missing.");
  }
  if (!Read(section, RowKey(word, count + 1)).empty()) {
    Report(section, RowKey(word, count + 1), "The row is beyond the count and is never read.");
  }
  return rows;
}

bool FileCheck::CheckWhole(std::string_view section, std::string_view key, std::string_view field,
                           const std::string& text, int least, int most) const {
  const auto number = NumberIn(text);
  if (number && *number == Int(*number) && *number >= least && *number <= most) return true;
  Report(section, key,
         "The " + std::string(field) + " \"" + text + "\" is no whole number from " +
             std::to_string(least) + " to " + std::to_string(most) + ".");
  return false;
}

int FieldCount(std::string_view row) {
  return static_cast<int>(std::count(row.begin(), row.end(), ',')) + 1;
}

}  // namespace tarnwick
