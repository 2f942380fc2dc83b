// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "sheet/html.h"

#include <cstddef>

#include "base/ansi.h"

namespace tarnwick {
namespace {

std::string Base64(std::string_view bytes) {
  constexpr std::string_view digits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    unsigned three = 0;
    for (std::size_t k = i; k < i + 3; ++k)
      three = three << 8U | (k < bytes.size() ? static_cast<unsigned char>(bytes[k]) : 0U);
    for (std::size_t digit = 0; digit < 4; ++digit)
      text += i + digit <= bytes.size() ? digits[three >> (18 - 6 * digit) & 63U] : '=';
  }
  return text;
}

/// What stands for a character that HTML would take as its own, or can't have; "" for all others.
std::string_view Escape(char utf8) {
  switch (utf8) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\n':
      return "<br>";
    default:
      return utf8 == 0x7F || (utf8 >= 0 && utf8 < ' ') ? " " : "";
  }
}

}  // namespace

std::string HtmlText(std::string_view ansi) {
  std::string html;
  for (const char c : Utf8FromAnsi(ansi)) {
    const std::string_view escape = Escape(c);
    if (escape.empty()) {
      html += c;
    } else {
      html += escape;
    }
  }
  return html;
}

std::string Element(std::string_view tag, std::string_view contents) {
  const std::string_view name = tag.substr(0, tag.find(' '));
  return std::string("<").append(tag).append(">").append(contents).append("</").append(name).append(
      ">\n");
}

std::string PictureElement(std::string_view type, std::string_view bytes, int side) {
  const std::string size = "='" + std::to_string(side) + "' ";
  return "<img alt='' width" + size + "height" + size + "src='data:image/" + std::string(type) +
         ";base64," + Base64(bytes) + "'>";
}

std::string TwoInARow(const std::vector<std::string>& parts) {
  std::string rows;
  for (std::size_t i = 0; i < parts.size(); i += 2) {
    std::string cells;
    for (std::size_t k = i; k < i + 2; ++k)
      cells += Element("td class='half' width='50%'", k < parts.size() ? parts[k] : "");
    rows += Element("table class='below' width='100%'", Element("tr", cells));
  }
  return rows;
}

}  // namespace tarnwick
