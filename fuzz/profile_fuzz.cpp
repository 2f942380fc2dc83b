// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
// Reads and writes a profile file made of the input. The first three lines of the input are a
// section, a key and a value; the rest is the file.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "catalog/profile_text.h"

namespace {

std::string_view TakeLine(std::string_view& rest) {
  const std::string_view line = rest.substr(0, rest.find('\n'));
  rest.remove_prefix(line.size() < rest.size() ? line.size() + 1 : line.size());
  return line;
}

void Require(bool condition) {
  if (!condition) std::abort();
}

/// A name that finds itself again once it stands in a file.
bool IsPlainName(std::string_view name) {
  return name.find_first_of("=;[]\r\n\t\v\f \"'") == std::string_view::npos;
}

/// What of `before` is not in `after` any more, without the line end behind it.
std::string_view Replaced(std::string_view before, std::string_view after) {
  const auto start = std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first;
  before.remove_prefix(static_cast<std::size_t>(start - before.begin()));
  const auto tail = after.substr(after.size() - std::min(before.size(), after.size()));
  const auto end = std::mismatch(before.rbegin(), before.rend(), tail.rbegin(), tail.rend()).first;
  before.remove_suffix(static_cast<std::size_t>(end - before.rbegin()));
  return before.substr(0, before.find_last_not_of("\r\n") + 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using tarnwick::ProfileText;
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  const std::string_view section = TakeLine(rest);
  const std::string_view key = TakeLine(rest);
  const std::string_view value = TakeLine(rest);

  ProfileText before(rest);
  before.Find(section, key);
  if (!IsPlainName(section) || !IsPlainName(key) || !IsPlainName(value)) return 0;

  const std::string written = before.With(section, key, value);
  ProfileText after{std::string_view(written)};
  Require(after.Find(section, key) == value);
  Require(after.With(section, key, value) == written);
  Require(Replaced(rest, written).find_first_of("\r\n") == std::string_view::npos);
  return 0;
}
