// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <system_error>

#include "base/errors.h"

namespace tarnwick {
namespace {

std::string_view SkipBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return text;
}

/// Moves over the digits at `at` and says how many there were.
std::size_t SkipDigits(std::string_view text, std::size_t& at) {
  const std::size_t start = at;
  while (at < text.size() && text[at] >= '0' && text[at] <= '9')
    ++at;
  return at - start;
}

bool IsSign(std::string_view text, std::size_t at) {
  return at < text.size() && (text[at] == '+' || text[at] == '-');
}

/// How many characters of `text` its leading number takes; 0 when there is none.
std::size_t NumberLength(std::string_view text) {
  std::size_t at = IsSign(text, 0) ? 1 : 0;
  std::size_t digits = SkipDigits(text, at);
  if (at < text.size() && text[at] == '.') {
    ++at;
    digits += SkipDigits(text, at);
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    std::size_t exponent = IsSign(text, at + 1) ? at + 2 : at + 1;
    if (SkipDigits(text, exponent) > 0) at = exponent;
  }
  return at;
}

/// Takes the leading number off `text`.
std::optional<double> TakeNumber(std::string_view& text) {
  const std::size_t length = NumberLength(text);
  if (length == 0) return std::nullopt;
  std::string_view number = text.substr(0, length);
  text.remove_prefix(length);
  if (number.front() == '+') number.remove_prefix(1);
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    // from_chars reports a number too small for a double in the same way; that one is 0.
    const auto exponent = number.find_first_of("eE");
    if (exponent != std::string_view::npos && number[exponent + 1] == '-') return 0.0;
    throw OverflowError();
  }
  return value;
}

}  // namespace

double LenientNumber(std::string_view text) {
  text = SkipBlanks(text);
  return TakeNumber(text).value_or(0);
}

Int16 LenientInt16(std::string_view text) {
  return RoundToInt16(LenientNumber(text));
}

double StrictNumber(std::string_view text) {
  text = SkipBlanks(text);
  const auto value = TakeNumber(text);
  if (!value || !SkipBlanks(text).empty()) throw TypeMismatchError();
  return *value;
}

std::optional<double> NumberIn(std::string_view text) {
  try {
    return StrictNumber(text);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

Int16 StrictInt16(std::string_view text) {
  return RoundToInt16(StrictNumber(text));
}

Int16 RoundToInt16(double value) {
  const double rounded = std::nearbyint(value);  // the default mode rounds halves to even
  if (!(rounded >= -32768 && rounded <= 32767)) throw OverflowError();
  return static_cast<int>(rounded);
}

double Int(double value) {
  return std::floor(value);
}

double RoundToCents(double value) {
  return std::nearbyint(value * 100) / 100;
}

std::string NumberText(Int16 value) {
  return std::to_string(value.Value());
}

std::string NumberText(double value) {
  constexpr int significantDigits = 15;
  if (value == 0) return "0";  // a negative zero too
  std::array<char, 32> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::general, significantDigits);
  std::string text(buffer.data(), result.ptr);
  std::replace(text.begin(), text.end(), 'e', 'E');
  return text;
}

}  // namespace tarnwick
