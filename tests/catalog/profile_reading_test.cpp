// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "catalog/profile_files.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

struct Lookup {
  std::string_view File, Section, Key, Value;
};

class ProfileReading : public testing::Test {
 protected:
  std::string Read(std::string_view bytes, std::string_view section, std::string_view key) {
    folder_.Write("file.dat", bytes);
    return ProfileFiles().ReadIniString(section, key, folder_ / "file.dat");
  }

  template <std::size_t N>
  void Check(const Lookup (&lookups)[N]) {
    for (const auto& [file, section, key, value] : lookups) {
      EXPECT_EQ(Read(file, section, key), value) << file << "\n--- [" << section << "] " << key;
    }
  }

  TempFolder folder_;
};

TEST_F(ProfileReading, Blanks) {
  Check({
      {"[s]\nk=v\n", "s", "k", "v"},
      {" \t[ s\v]\n\f k\t=\t\v a  b \f\n", "s", "k", "a  b"},
      {"[two words]\nmy key=1\n", "two words", "my key", "1"},
      {"[two words]\nmy key=1\n", "two  words", "my key", ""},
      {"[s]\nmy key=1\n", "s", "my  key", ""},
      {"[s]\nmy key=1\n", "s", "mykey", ""},
      {"[s]\nk=\xA0v\xA0\n", "s", "k", "\xA0v\xA0"},  // a no-break space is none
      {"[s]\nk\xA0=v\n", "s", "k", ""},
      {"[s]\nk=v\n", "  s ", " k  ", "v"},
      {"[s]\nk=v\n", "\ts", "k", ""},  // of what is asked for, only spaces don't count
      {"[s]\nk=v\n", "s", "k\t", ""},
      {"[s]\nk= \t\n", "s", "k", ""},
  });
}

TEST_F(ProfileReading, KeysAndComments) {
  Check({
      {"[s]\nk=a=b\n", "s", "k", "a=b"},
      {"[s]\nk==b\n", "s", "k", "=b"},
      {"[s]\nk\nk=2\n", "s", "k", "2"},
      {"[s]\nk\n", "s", "k", ""},
      {"[s]\n=1\n", "s", "", ""},
      {"[s]\n;k=1\n \t;k=2\nk=3 ;4\n", "s", "k", "3 ;4"},
      {"[s]\n;k=1\n", "s", ";k", ""},
      {"[s]\n#k=1\n", "s", "#k", "1"},
      {"[s]\nk;=1\n", "s", "k;", "1"},
      {"[s]\nk=1\nK=2\n", "s", "K", "1"},
      {"[s]\nk=\nk=2\n", "s", "k", ""},
  });
}

TEST_F(ProfileReading, Sections) {
  Check({
      {"[s] k=0\nk=1\n", "s", "k", "1"},
      {"[s]]\nk=1\n", "s", "k", "1"},
      {"[a]b]\nk=1\n", "a", "k", "1"},
      {"[s\nk=1\n", "s", "k", "1"},
      {"[s;x\nk=1\n", "s;x", "k", "1"},
      {"[a[b]\nk=1\n", "a[b", "k", "1"},
      {";[t]\n[s]\n;[t]\n ;[t]\nk=1\n", "s", "k", "1"},
      {"[s]\nj=[t]\nj2= [t]\nx[t]\nk=1\n", "s", "k", "1"},
      {"[s]\na=1\n[t]\nb=2\n[S]\nb=3\n", "s", "b", ""},
      {"[s]\na=1\n[t]\nb=2\n[S]\nb=3\n", "S", "a", "1"},
      {"[s]\na=1\n[t]\nb=2\n", "s", "b", ""},
      {"[s]\n[s]\nb=3\n", "s", "b", ""},
      {"k=1\n[s]\nj=2\n", "s", "k", ""},
      {"k=1\n[s]\nj=2\n", "", "k", ""},
      {"[]\nk=1\n", "", "k", ""},
      {"\xEF\xBB\xBF[s]\nk=1\n", "s", "k", ""},
      {"\xEF\xBB\xBF[s]\nk=1\n[s]\nk=2\n", "s", "k", "2"},
      {"\xEF\xBB\xBF\n[s]\nk=1\n", "s", "k", "1"},
  });
}

TEST_F(ProfileReading, LineEnds) {
  Check({
      {"[s]\r\nj=1\r\nk=2\r\n", "s", "k", "2"},
      {"[s]\rj=1\rk=2\r", "s", "k", "2"},
      {"[s]\nj=1\r\nk=2\rl=3", "s", "k", "2"},
      {"[s]\nj=1\r\nk=2\rl=3", "s", "l", "3"},
      {"\r\n\n\r[s]\r\r\n\n\rk=2\n\r\n", "s", "k", "2"},
      {"[s]\r\nk=2\r\n[t]\rk=3\n", "t", "k", "3"},
      {"[s]", "s", "k", ""},
      {"", "s", "k", ""},
  });
}

TEST_F(ProfileReading, NamesMatchWithoutCaseAlsoAboveAscii) {
  Check({
      {"[Gaul]\nTOT_units=7\n", "gAUL", "tot_UNITS", "7"},
      {"[\xC4rger]\n\xD6l=1\n", "\xE4RGER", "\xF6L", "1"},
      {"[s]\n\x8A\x9F=1\n", "s", "\x9A\xFF", "1"},
      {"[s]\n\xD7=1\n", "s", "\xF7", ""},  // the signs for multiplication and division
      {"[s]\nk[=1\n", "s", "k{", ""},
  });
}

TEST_F(ProfileReading, OnePairOfOuterQuotesGoes) {
  Check({
      {"[s]\nk= \"v\" \n", "s", "k", "v"},
      {"[s]\nk='v'\n", "s", "k", "v"},
      {"[s]\nk=\"  v \"\n", "s", "k", "  v "},
      {"[s]\nk=\"v'\n", "s", "k", "\"v'"},
      {"[s]\nk=\"v\n", "s", "k", "\"v"},
      {"[s]\nk=v\"\n", "s", "k", "v\""},
      {"[s]\nk=\"\n", "s", "k", "\""},
      {"[s]\nk=\"\"\n", "s", "k", ""},
      {"[s]\nk=\"\"v\"\"\n", "s", "k", "\"v\""},
      {"[s]\nk='\"v\"'\n", "s", "k", "\"v\""},
      {"[s]\nk=\"a\",\"b\"\n", "s", "k", "a\",\"b"},
      {"[s]\nk=\"a\" b\n", "s", "k", "\"a\" b"},
      {"[s]\n\"k\"=v\n", "s", "k", ""},
  });
}

TEST_F(ProfileReading, TheCutTo254BytesComesLast) {
  for (const std::size_t size : {253U, 254U, 255U, 256U, 300U}) {
    const std::string value(size, 'x');
    const std::string cut = value.substr(0, 254);
    EXPECT_EQ(Read("[s]\nk=" + value + "\nj=1\n", "s", "k"), cut) << size;
    EXPECT_EQ(Read("[s]\nk=\"" + value + "\"\n", "s", "k"), cut) << size;
  }
  const std::string long253(253, 'x');
  EXPECT_EQ(Read("[s]\nk=  " + long253 + "  y\n", "s", "k"), long253 + " ");
}

TEST_F(ProfileReading, WhatIsMissingIsEmpty) {
  const ProfileFiles files;
  folder_.Write("folder.dat/file", "");
  folder_.Write("file.dat", "[s]\nk=12 men\nbig=70000\n");
  EXPECT_EQ(files.ReadIniString("s", "k", folder_ / "none.dat"), "");
  EXPECT_EQ(files.ReadIniString("s", "k", folder_ / "none/none.dat"), "");
  EXPECT_EQ(files.ReadIniString("s", "k", folder_ / "folder.dat"), "");
  EXPECT_EQ(files.ReadIniString("s", "j", folder_ / "file.dat"), "");
  EXPECT_EQ(files.ReadIniNumber("s", "j", folder_ / "file.dat"), 0);
  EXPECT_EQ(files.ReadIniNumber("s", "k", folder_ / "file.dat"), 12);
  EXPECT_THROW(files.ReadIniNumber("s", "big", folder_ / "file.dat"), OverflowError);
  EXPECT_TRUE(FileExists(folder_ / "file.dat"));
  EXPECT_FALSE(FileExists(folder_ / "folder.dat"));
  EXPECT_FALSE(FileExists(folder_ / "none.dat"));
}

}  // namespace
}  // namespace tarnwick
