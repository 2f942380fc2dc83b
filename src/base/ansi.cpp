// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "base/ansi.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

/// Code points of the bytes 0x80 to 0x9F; all other bytes are their own code points. The five
/// bytes that the code page leaves free stand for the control characters of the same number.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr unsigned Byte(char c) {
  return static_cast<unsigned char>(c);
}

char32_t CodePoint(char ansi) {
  const unsigned byte = Byte(ansi);
  return byte >= 0x80 && byte <= 0x9F ? upperControls[byte - 0x80] : static_cast<char32_t>(byte);
}

char AnsiByte(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
    return static_cast<char>(codePoint);
  }
  const auto found = std::find(upperControls.begin(), upperControls.end(), codePoint);
  if (found == upperControls.end()) return '?';
  return static_cast<char>(0x80 + (found - upperControls.begin()));
}

/// Takes one character off the front of a UTF-8 text; a byte that begins none is U+FFFD.
char32_t TakeCodePoint(std::string_view& utf8) {
  constexpr char32_t broken = 0xFFFD;
  const unsigned lead = Byte(utf8.front());
  utf8.remove_prefix(1);
  if (lead < 0x80) return lead;
  constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
  const std::size_t more = lead >= 0xF8 ? 0 : lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0;
  if (more == 0 || utf8.size() < more) return broken;
  char32_t codePoint = lead & (0x3FU >> more);
  for (std::size_t i = 0; i < more; ++i) {
    if ((Byte(utf8[i]) & 0xC0U) != 0x80) return broken;
    codePoint = (codePoint << 6U) | (Byte(utf8[i]) & 0x3FU);
  }
  if (codePoint < smallest[more]) return broken;
  utf8.remove_prefix(more);
  return codePoint;
}

void AppendUtf8(std::string& utf8, char32_t codePoint) {
  const auto append = [&utf8](char32_t byte) { utf8 += static_cast<char>(byte); };
  if (codePoint < 0x80) {
    append(codePoint);
  } else if (codePoint < 0x800) {
    append(0xC0U | (codePoint >> 6U));
    append(0x80U | (codePoint & 0x3FU));
  } else {  // the code page holds nothing above U+FFFF
    append(0xE0U | (codePoint >> 12U));
    append(0x80U | ((codePoint >> 6U) & 0x3FU));
    append(0x80U | (codePoint & 0x3FU));
  }
}

constexpr char LowerCaseOf(unsigned byte) {
  const bool letter =
      (byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7);
  const bool caronOrOe = byte == 0x8A || byte == 0x8C || byte == 0x8E;
  if (letter || caronOrOe) return static_cast<char>(byte + (letter ? 0x20 : 0x10));
  return static_cast<char>(byte == 0x9F ? 0xFF : byte);  // Y with diaeresis
}

constexpr auto lowerCases = [] {
  std::array<char, 256> table{};
  for (unsigned byte = 0; byte < table.size(); ++byte)
    table[byte] = LowerCaseOf(byte);
  return table;
}();

}  // namespace

std::string AnsiFromUtf8(std::string_view utf8) {
  std::string ansi;
  ansi.reserve(utf8.size());
  while (!utf8.empty())
    ansi += AnsiByte(TakeCodePoint(utf8));
  return ansi;
}

std::string Utf8FromAnsi(std::string_view ansi) {
  std::string utf8;
  utf8.reserve(ansi.size());
  for (const char c : ansi)
    AppendUtf8(utf8, CodePoint(c));
  return utf8;
}

std::filesystem::path PathIn(const std::filesystem::path& folder, std::string_view ansiName) {
  std::string utf8 = Utf8FromAnsi(ansiName);
  std::replace(utf8.begin(), utf8.end(), '\\', '/');
  const std::filesystem::path name(std::u8string(utf8.begin(), utf8.end()));
  return folder / name.relative_path();
}

std::string AnsiFromPath(const std::filesystem::path& path) {
  const std::u8string utf8 = path.u8string();
  return AnsiFromUtf8(std::string(utf8.begin(), utf8.end()));
}

char LowerCase(char ansi) {
  return lowerCases[Byte(ansi)];
}

std::string LowerCase(std::string_view ansi) {
  std::string lower(ansi);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return LowerCase(c); });
  return lower;
}

}  // namespace tarnwick
