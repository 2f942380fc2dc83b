// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/profile_text.h"

#include "support/testing.h"

namespace tarnwick {

using namespace std::string_view_literals;

TEST(ProfileText, IsReadAsThePlatformReadsIt) {
  const struct {
    std::string_view File, Section;
    const char* Found;  ///< "key=value", or "key" alone of one that is not there; "|" between them
  } cases[] = {
      // Blanks around names and values don't count. Of what is asked for, only spaces don't.
      {" \t[ my s\v]\n\f a\t=\t\v x  y \f\n", "my s", "a=x  y| a =x  y|\ta|a\t"},
      {"[my s]\nmy key=1\n", " my s  ", "my key=1|my  key|mykey"},
      {"[my s]\nk=1\n", "my  s", "k"},
      {"[s]\na=\xA0v\xA0\nb\xA0=v\nc= \t\n", "s", "a=\xA0v\xA0|b|c="},
      // The first "=" splits, the first key counts, and notes and words are none.
      {"[s]\n=0\na=1=2\nb==2\nc\nc=3\n=4", "s", "=0|a=1=2|b==2|c=3"},
      {"[s]\n;a=1\n \t;a=2\na=3 ;4\n#b=5\nc;=6\n", "s", "a=3 ;4|;a|#b=5|c;=6"},
      {"[s]\na=\nA=1\nB=2\nb=3\n", "s", "a=|b=2"},
      // The first section of a name counts.
      {"k=0\n[s]\na=1\n[t]\nb=2\n[S]\nc=3\na=4\n", "s", "k|a=1|b|c"},
      {"[s]\nx=[t]\n y= [t]\nz[t]\na=1\n", "s", "x=[t]|y=[t]|a=1"},
      // A section's name ends at the first bracket, or with the line; it may be none.
      {"[s] k=0\nk=1\n", "s", "k=1"},
      {"[s\nk=1\n", "s", "k=1"},
      {" [s ;\nk=1\n", "s ;", "k=1"},
      {";[s]\nk=0\n[s]\n;[s]\n ;[s]\nk=1\n", "s", "k=1"},
      {"[a[b]\nk=1\n", "a[b", "k=1"},
      {"k=0\n[]\nk=1\n", " ", "k=1"},
      // A byte-order mark spoils the first line.
      {"\xEF\xBB\xBF[s]\nk=1\n[s]\nk=2\n", "s", "k=2"},
      // Line ends of every kind.
      {"[s]\r\na=1\r\nb=2\r\n", "s", "a=1|b=2"},
      {"[s]\ra=1\rb=2\r[t]\rc=3", "s", "a=1|b=2|c"},
      {"\r\n\n\r[s]\r\r\n\n\ra=1\n\r\nb=2", "s", "a=1|b=2"},
      // Names match without case, also above ASCII; no sign is a small one for another.
      {"[\xC4rger]\nTOT_units=7\n\xD6l=1\n\x8A\x9F=2\n", "\xE4RGER",
       "tot_UNITS=7|\xF6L=1|\x9A\xFF=2"},
      {"[s]\n\xD7=3\nk[=4\n", "s", "\xF7|k{"},
      // One pair of equal outer quotes goes.
      {"[s]\na= \"v\" \nb='v'\nc=\"  v \"\nd=\"\"\n", "s", "a=v|b=v|c=  v |d="},
      {"[s]\na=\"v'\nb=\"v\nc=v\"\nd=\"\n\"e\"=v", "s", "a=\"v'|b=\"v|c=v\"|d=\"|e"},
      {"[s]\na=\"\"v\"\"\nb='\"v\"'\nc='x','y'\nd='x' y\n", "s", "a=\"v\"|b=\"v\"|c=x','y|d='x' y"},
  };
  for (const auto& [file, section, all] : cases) {
    ProfileText text(file);
    std::istringstream rest(all);
    for (std::string wanted; std::getline(rest, wanted, '|');) {
      std::string found = wanted.substr(0, wanted.find('='));
      if (const auto value = text.Find(section, found)) found.append("=").append(*value);
      EXPECT_EQ(found, wanted) << file;
    }
  }
}

TEST(ProfileText, ChangesOneLineAndLeavesEveryOtherByte) {
  const struct {
    std::string_view Before, After;  ///< key "k" of section "s" is set to "9"
  } cases[] = {
      // A key that is there keeps its spelling and its place.
      {"[S]\r\na=1\r\n K = old \r\nb=2\r\n", "[S]\r\na=1\r\nK=9\r\nb=2\r\n"},
      {"[s]\rk=1\rb=2\r", "[s]\rk=9\r\nb=2\r"},
      {"[s]\r\nk=1", "[s]\r\nk=9\r\n"},
      {"[s]\nk=1\nk=2\n[s]\nk=3\n", "[s]\nk=9\r\nk=2\n[s]\nk=3\n"},
      // A new key goes behind the last key line, before what ends the section.
      {"[s]\na=1\n; end\n\n[t]\nk=1\n", "[s]\na=1\nk=9\r\n; end\n\n[t]\nk=1\n"},
      {"[s]\n;k=1\nk\n[t]\n", "[s]\nk=9\r\n;k=1\nk\n[t]\n"},
      {"[s]\na=1\n[s]\nk=2\n", "[s]\na=1\nk=9\r\n[s]\nk=2\n"},
      {"k=1\n[s]\r\na=1", "k=1\n[s]\r\na=1\r\nk=9\r\n"},
      {"[s\ra=1\r", "[s\ra=1\rk=9\r\n"},
      {"[s]", "[s]\r\nk=9\r\n"},
      // A new section goes to the end, without an empty line.
      {"[a]\nk=1\n\n; end\n\n", "[a]\nk=1\n\n; end\n\n[s]\r\nk=9\r\n"},
      {"[a]\r\nk=1", "[a]\r\nk=1\r\n[s]\r\nk=9\r\n"},
      {"\xEF\xBB\xBF[s]\nk=1\n", "\xEF\xBB\xBF[s]\nk=1\n[s]\r\nk=9\r\n"},
      {"", "[s]\r\nk=9\r\n"},
      // Bytes of every kind stay.
      {"\x01\xFF\0[\r\n[s] x\n\v=\r\xA0\0k\nk=1\r[ ]\xFE"sv,
       "\x01\xFF\0[\r\n[s] x\n\v=\r\xA0\0k\nk=9\r\n[ ]\xFE"sv},
  };
  for (const auto& [before, after] : cases)
    EXPECT_EQ(ProfileText(before).With("s", "k", "9"), after);

  // Spaces around new names are dropped, values are written as they are.
  EXPECT_EQ(ProfileText("[a]\n"sv).With(" S 1 ", " New K ", "  v "),
            "[a]\n[S 1]\r\nNew K=  v \r\n");
  EXPECT_EQ(ProfileText("[\xC4]\n\xD6=1\n"sv).With(" \xE4 ", " \xF6 ", "'v'"),
            "[\xC4]\n\xD6='v'\r\n");
  const ProfileText text("[s]\na=1\n\n[t]\nb=2"sv);
  EXPECT_EQ(text.With({{"t", "c", "3"}, {"S", "A", "4"}, {"u", "d", "5"}, {"t", "C", "6"}}),
            "[s]\na=4\r\n\n[t]\nb=2\r\nc=6\r\n[u]\r\nd=5\r\n");
}

TEST(ProfileText, ListsItsLinesAndTellsTheLostOnes) {
  const ProfileText text("a=1\r\n[s]\r;b=1\nc= '2' \nd\n\nC=3\n [T]\nc=4\n[S]\ne=5\n[t]"sv);
  std::ostringstream lines;
  for (const auto& [number, isHeader, section, key, value, lost] : text.Lines()) {
    lines << number << (lost ? " lost " : " ") << section;
    lines << (isHeader ? "" : ": ") << key << (isHeader ? "" : "=") << value << "\n";
  }
  EXPECT_EQ(lines.str(),
            "1 lost : a=1\n2 s\n4 s: c=2\n7 lost s: C=3\n8 T\n9 T: c=4\n10 lost S\n"
            "11 lost S: e=5\n12 lost t\n");
}

}  // namespace tarnwick
