// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/catalog_text.h"

#include <cstddef>

#include "catalog/profile_files.h"

namespace tarnwick {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr const char* saveAs = " Save the file as Windows-1252, which some editors call ANSI.";

/// Whether the text has accented letters or the like, and all of them as UTF-8.
bool IsUtf8(std::string_view text) {
  bool accented = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto lead = static_cast<unsigned char>(text[i]);
    if (lead < 0x80) continue;
    if (lead < 0xC2 || lead > 0xF4) return false;
    for (int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1; more > 0; --more) {
      if (++i == text.size() || (text[i] & 0xC0) != 0x80) return false;
    }
    accented = true;
  }
  return accented;
}

/// A line's own text, of which the header's has been seen.
std::string TextOf(const ProfileText::Line& line) {
  if (line.IsHeader) return std::string(line.Section);
  return std::string(line.Key).append("=").append(line.Value);
}

/// What keeps a line from being found; "" for one that is found.
std::string WhyLost(const ProfileText::Line& line, bool hasHeader, bool inLostSection) {
  if (!line.Lost) return "";
  if (!hasHeader) return "No [section] stands above the key, so it is never read. Move it below.";
  if (line.IsHeader) {
    return "The section stands here a second time; only the first is read. Move its lines there.";
  }
  if (inLostSection) return "";  // said once, of the header
  return "The key stands here a second time and is never read. Delete one, or rename it.";
}

void CheckUtf8(const std::string& file, const std::vector<ProfileText::Line>& lines,
               Findings& findings) {
  int first = 0;
  int count = 0;
  for (const ProfileText::Line& line : lines) {
    if (IsUtf8(TextOf(line)) && ++count == 1) first = line.Number;
  }
  if (count == 0) return;
  findings.push_back({file, first, Severity::Warning, "", "",
                      std::string("Accented letters stand in UTF-8 here") +
                          (count > 1 ? " and further down" : "") +
                          ", and each shows as two or three wrong ones." + saveAs});
}

}  // namespace

bool CheckEncoding(const std::string& file, std::string_view bytes, Findings& findings) {
  if (bytes.find('\0') != std::string_view::npos || bytes.starts_with("\xFF\xFE") ||
      bytes.starts_with("\xFE\xFF")) {
    findings.push_back(
        {file, 0, Severity::Error, "", "",
         std::string("The file is UTF-16 or no text, so nothing in it is found.") + saveAs});
    return false;
  }
  if (!bytes.starts_with(byteOrderMark)) return true;
  const bool hidesSection = bytes.substr(byteOrderMark.size()).starts_with('[');
  findings.push_back({file, 1, hidesSection ? Severity::Error : Severity::Warning, "", "",
                      std::string("A UTF-8 byte-order mark begins the file and hides its first ") +
                          (hidesSection ? "section." : "line.") + saveAs});
  return !hidesSection;
}

void CheckLines(const std::string& file, const std::vector<ProfileText::Line>& lines,
                Findings& findings) {
  bool hasHeader = false;
  bool inLostSection = false;
  for (const ProfileText::Line& line : lines) {
    const auto warn = [&](const std::string& sentence) {
      findings.push_back({file, line.Number, Severity::Warning, std::string(line.Section),
                          std::string(line.Key), sentence});
    };
    hasHeader |= line.IsHeader;
    if (line.IsHeader) inLostSection = line.Lost;
    const std::string lost = WhyLost(line, hasHeader, inLostSection);
    if (!lost.empty()) warn(lost);
    if (line.Lost) continue;
    if (line.Value.size() > longestValue) {
      warn("The value has " + std::to_string(line.Value.size()) +
           " bytes, of which 254 are read. Shorten it.");
    }
    const std::string text = TextOf(line);
    if (!IsUtf8(text) && text.find_first_of("\x81\x8D\x8F\x90\x9D") != std::string::npos) {
      warn("The line holds a character that is none of Windows-1252. Write it anew.");
    }
  }
  CheckUtf8(file, lines, findings);
}

}  // namespace tarnwick
