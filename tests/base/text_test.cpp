// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <map>

#include "base/ansi.h"
#include "support/testing.h"

namespace tarnwick {

TEST(Text, FieldsArePickedAsTheyStand) {
  const struct {
    const char* Text;
    int N;
    const char* Separator;
    const char* Field;
  } cases[] = {{"HI,,6", 1, ",", "HI"},   {"HI,,6", 2, ",", ""},       {"HI,,6", 3, ",", "6"},
               {"HI,,6", 4, ",", ""},     {"HI,", 2, ",", ""},         {"", 1, ",", ""},
               {"a b , c", 2, ",", " c"}, {"a b , c", 1, ",", "a b "}, {"HI", 1, "+", "HI"},
               {"a,b", 2, "", "b"},       {"a,b+c", 1, "+", "a,b"},    {"a,b", 0, ",", ""},
               {"a,b", -1, ",", ""},      {"a,b", 32767, ",", ""}};
  for (const auto& [text, n, separator, field] : cases)
    EXPECT_EQ(GetField(text, n, separator), field) << text << " field " << n;
}

TEST(Text, ReplacementsGoFromLeftToRightOnce) {
  EXPECT_EQ(ReplaceText(CrLf, "@", "a\r\n\r\nb\n\rc\r\n"), "a@@b\n\rc@");
  EXPECT_EQ(ReplaceText("aa", "a", "aaaaa"), "aaa");
  EXPECT_EQ(ReplaceText("a", "aa", "aba"), "aabaa");
  EXPECT_EQ(ReplaceText("", "y", "abc"), "abc");
  EXPECT_EQ(Joined(Trim("  a b\t "), Trim("   ")), "a b\t|");  // spaces only
}

TEST(Ansi, KnowsTheLettersOfTheCodePage) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string ansi(1, static_cast<char>(byte));
    EXPECT_EQ(AnsiFromUtf8(Utf8FromAnsi(ansi)), ansi) << byte;
  }
  EXPECT_EQ(Utf8FromAnsi("\x80 \x9F \xE9 \xFF~"), "€ Ÿ é ÿ~");
  EXPECT_EQ(AnsiFromUtf8("“Škoda” Ž…"), "\x93\x8Akoda\x94 \x8E\x85");
  EXPECT_EQ(LowerCase("RALLY 2 [@`{"), "rally 2 [@`{");
  EXPECT_EQ(LowerCase("\xC0\xC4\xDE \x8A\x8C\x8E\x9F"), "\xE0\xE4\xFE \x9A\x9C\x9E\xFF");
  // Sharp s, the signs for multiplication and division, and what is small already.
  EXPECT_EQ(LowerCase("\xDF\xD7\xF7\xE4\x9A\xFF\xA0\x83"), "\xDF\xD7\xF7\xE4\x9A\xFF\xA0\x83");
}

TEST(Ansi, WhatIsOutsideTheCodePageIsAQuestionMark) {
  const std::map<std::string, std::string> cases = {
      {"Ω-ࠀ-𐀀!", "?-?-?!"},          // two, three and four bytes, one character each
      {"\xC2\x80", "?"},             // a control character whose number is that of a letter
      {"a\x80z", "a?z"},             // continuation without a start
      {"\xC3(", "?("},               // start without its continuation
      {"\xE2\x82", "??"},            // cut off
      {"\xF8\x90\x80\x80", "????"},  // never a byte of UTF-8
      {"\xC1\xA1", "??"}};           // spelled longer than it may be
  for (const auto& [utf8, ansi] : cases)
    EXPECT_EQ(AnsiFromUtf8(utf8), ansi);
}

TEST(Paths, NamesStayBelowTheFolder) {
  EXPECT_EQ(PathIn("/games", "/Gaul.army"), "/games/Gaul.army");
  EXPECT_EQ(PathIn("/games", "pictures\\old/a.svg"), "/games/pictures/old/a.svg");
  EXPECT_EQ(PathIn("/games", "Z\xFCrich"), std::filesystem::path(u8"/games/Zürich"));
  EXPECT_EQ(AnsiFromPath(std::filesystem::path(u8"/Zürich/Ω")), "/Z\xFCrich/?");
}

}  // namespace tarnwick
