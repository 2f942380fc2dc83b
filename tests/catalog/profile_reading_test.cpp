// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "catalog/profile_files.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

class ProfileReading : public testing::Test {
 protected:
  /// The values of some keys in a section of a file.
  Lines Read(std::string_view bytes, std::string_view section, const Lines& keys) {
    folder_.Write("file.dat", bytes);
    const ProfileFiles files;
    Lines values;
    for (const auto& key : keys)
      values.push_back(files.ReadIniString(section, key, folder_ / "file.dat"));
    return values;
  }

  TempFolder folder_;
};

TEST_F(ProfileReading, BlanksAroundNamesAndValuesDoNotCount) {
  const char* file = " \t[ my s\v]\n\f a\t=\t\v x  y \f\nmy key=1\nb=\xA0v\xA0\nc\xA0=v\nd= \t\n";
  EXPECT_EQ(Read(file, "my s", {"a", " a  ", "my key", "my  key", "mykey"}),
            (Lines{"x  y", "x  y", "1", "", ""}));
  EXPECT_EQ(Read(file, "  my s ", {"a", "b", "c", "d"}), (Lines{"x  y", "\xA0v\xA0", "", ""}));
  // Of what is asked for, only spaces don't count.
  EXPECT_EQ(Read(file, "my s", {"\ta", "a\t"}), (Lines{"", ""}));
  for (const char* section : {"my  s", "mys", "\tmy s"})
    EXPECT_EQ(Read(file, section, {"a"}), Lines{""}) << section;
}

TEST_F(ProfileReading, TheFirstEqualsSplitsAndTheFirstKeyCounts) {
  const char* file =
      "[s]\n=0\na=1=2\nb==2\nc\nc=3\n;d=4\n \t;d=5\nd=6 ;7\n#e=8\nf;=9\ng=\nG=10\nH=11\nh=12\nj\n";
  EXPECT_EQ(Read(file, "s", {"a", "b", "c", "d", ";d", "#e", "f;", "g", "h", "j", ""}),
            (Lines{"1=2", "=2", "3", "6 ;7", "", "8", "9", "", "11", "", "0"}));
}

TEST_F(ProfileReading, TheFirstSectionOfANameCounts) {
  const char* twice = "k=0\n[s]\na=1\nx=[t]\n y= [t]\nz[t]\nb=2\n[t]\nc=3\n[S]\nd=4\na=5\n";
  EXPECT_EQ(Read(twice, "s", {"k", "a", "x", "y", "b", "c", "d"}),
            (Lines{"", "1", "[t]", "[t]", "2", "", ""}));
  EXPECT_EQ(Read("[s]\n[s]\nk=1\n", "s", {"k"}), Lines{""});
  // Names end at the first bracket, or with the line.
  for (const char* header : {"[s] k=0", "[s]]", "[s]t]", "[s", " [s ;", ";[s]\n[s]\n;[s]\n ;[s]"}) {
    const bool noted = std::string_view(header) == " [s ;";
    EXPECT_EQ(Read(std::string(header) + "\nk=1\n", noted ? "s ;" : "s", {"k"}), Lines{"1"})
        << header;
  }
  EXPECT_EQ(Read("[a[b]\nk=1\n", "a[b", {"k"}), Lines{"1"});
  EXPECT_EQ(Read("k=0\n[]\nk=1\n", " ", {"k"}), Lines{"1"});  // no name is a name, too
  // A byte-order mark spoils the first line.
  EXPECT_EQ(Read("\xEF\xBB\xBF[s]\nk=1\n[s]\nk=2\n", "s", {"k"}), Lines{"2"});
  EXPECT_EQ(Read("\xEF\xBB\xBF\n[s]\nk=1\n", "s", {"k"}), Lines{"1"});
}

TEST_F(ProfileReading, LineEndsOfEveryKind) {
  for (const char* file : {"[s]\r\na=1\r\nb=2\r\n", "[s]\ra=1\rb=2\r", "[s]\na=1\nb=2\n",
                           "[s]\na=1\r\nb=2", "\r\n\n\r[s]\r\r\n\n\ra=1\n\r\nb=2\r[t]\nc=3"}) {
    EXPECT_EQ(Read(file, "s", {"a", "b", "c"}), (Lines{"1", "2", ""})) << file;
  }
  EXPECT_EQ(Read("[s]", "s", {"k"}), Lines{""});
}

TEST_F(ProfileReading, NamesMatchWithoutCaseAlsoAboveAscii) {
  const char* file = "[\xC4rger]\nTOT_units=7\n\xD6l=1\n\x8A\x9F=2\n\xD7=3\nk[=4\n";
  EXPECT_EQ(Read(file, "\xE4RGER", {"tot_UNITS", "\xF6L", "\x9A\xFF", "\xF7", "k{"}),
            (Lines{"7", "1", "2", "", ""}));  // the sign for division is no small one for times
}

TEST_F(ProfileReading, OnePairOfOuterQuotesGoes) {
  const char* file =
      "[s]\na= \"v\" \nb='v'\nc=\"  v \"\nd=\"v'\ne=\"v\nf=v\"\ng=\"\nh=\"\"\n"
      "i=\"\"v\"\"\nj='\"v\"'\nk=\"x\",\"y\"\nl=\"x\" y\n\"m\"=v\n";
  EXPECT_EQ(Read(file, "s", {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m"}),
            (Lines{"v", "v", "  v ", "\"v'", "\"v", "v\"", "\"", "", "\"v\"", "\"v\"", "x\",\"y",
                   "\"x\" y", ""}));
}

TEST_F(ProfileReading, TheCutTo254BytesComesLast) {
  const std::string long253(253, 'x');
  for (const std::string end : {"", "x", "xx", "xxx"}) {
    const Lines cut = {(long253 + end).substr(0, 254)};
    EXPECT_EQ(Read("[s]\nk=" + long253 + end + "\n", "s", {"k"}), cut);
    EXPECT_EQ(Read("[s]\nk=\"" + long253 + end + "\"\n", "s", {"k"}), cut);
  }
  EXPECT_EQ(Read("[s]\nk=  " + long253 + "  y\n", "s", {"k"}), Lines{long253 + " "});
}

TEST_F(ProfileReading, WhatIsMissingIsEmpty) {
  const ProfileFiles files;
  folder_.Write("folder.dat/file", "");
  folder_.Write("file.dat", "[s]\nk=12 men\nbig=70000\n");
  for (const char* name : {"none/none.dat", "folder.dat"}) {
    EXPECT_EQ(files.ReadIniString("s", "k", folder_ / name), "") << name;
    EXPECT_FALSE(FileExists(folder_ / name)) << name;
  }
  EXPECT_EQ(files.ReadIniNumber("s", "j", folder_ / "file.dat"), 0);
  EXPECT_EQ(files.ReadIniNumber("s", "k", folder_ / "file.dat"), 12);
  EXPECT_THROW(files.ReadIniNumber("s", "big", folder_ / "file.dat"), OverflowError);
}

}  // namespace
}  // namespace tarnwick
