// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "catalog/profile_files.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using namespace std::string_view_literals;

TEST(ProfileWriting, ChangesOneLineAndLeavesEveryOtherByte) {
  const struct {
    std::string_view Before, Section, Key, Value, After;
  } cases[] = {// A key that is there keeps its spelling and its place.
               {"[S]\r\na=1\r\nKey = old \r\nb=2\r\n", "s", "KEY", "new",
                "[S]\r\na=1\r\nKey=new\r\nb=2\r\n"},
               {"[s]\ra=1\rb=2\r", "s", "a", "9", "[s]\ra=9\r\nb=2\r"},
               {"[s]\r\na=1", "s", "a", "9", "[s]\r\na=9\r\n"},
               {"[s]\nk=1\nk=2\n", "s", "k", "9", "[s]\nk=9\r\nk=2\n"},
               {"[\xC4]\n\xD6=1\n", "\xE4", "\xF6", "9", "[\xC4]\n\xD6=9\r\n"},
               // What is no key is not taken for one.
               {"[s]\n;k=1\nk\n", "s", "k", "9", "[s]\nk=9\r\n;k=1\nk\n"},
               {"k=1\n[s]\nb=2\n", "s", "k", "9", "k=1\n[s]\nb=2\nk=9\r\n"},
               // Only the first section of a name counts.
               {"[s]\na=1\n[s]\nk=2\n", "s", "k", "9", "[s]\na=1\nk=9\r\n[s]\nk=2\n"},
               // A new key goes behind the last key line, before what ends the section.
               {"[s]\r\na=1\r\n; end\r\n\r\n[t]\r\nk=1\r\n", "s", "k", "9",
                "[s]\r\na=1\r\nk=9\r\n; end\r\n\r\n[t]\r\nk=1\r\n"},
               {"[s]\r\n; only words\r\n\r\n[t]\r\n", "s", "k", "9",
                "[s]\r\nk=9\r\n; only words\r\n\r\n[t]\r\n"},
               {"[s]\r\na=1", "s", "k", "9", "[s]\r\na=1\r\nk=9\r\n"},
               {"[s]", "s", "k", "9", "[s]\r\nk=9\r\n"},
               {"[s", "s", "k", "9", "[s\r\nk=9\r\n"},
               // A new section goes to the end, without an empty line.
               {"[a]\r\nk=1\r\n", "s", "k", "9", "[a]\r\nk=1\r\n[s]\r\nk=9\r\n"},
               {"[a]\nk=1\n\n; end\n\n", "s", "k", "9", "[a]\nk=1\n\n; end\n\n[s]\r\nk=9\r\n"},
               {"[a]\r\nk=1", "s", "k", "9", "[a]\r\nk=1\r\n[s]\r\nk=9\r\n"},
               {"\xEF\xBB\xBF[s]\nk=1\n", "s", "k", "9", "\xEF\xBB\xBF[s]\nk=1\n[s]\r\nk=9\r\n"},
               {"", "s", "k", "9", "[s]\r\nk=9\r\n"},
               // Spaces around new names are dropped, values are written as they are.
               {"[a]\n", " SETUP 1 ", " New Key ", "  v ", "[a]\n[SETUP 1]\r\nNew Key=  v \r\n"},
               {"[s]\nk=1\n", " s ", " K ", "\"v\"", "[s]\nk=\"v\"\r\n"},
               {"[s]\nk=1\n", "s", "k", "", "[s]\nk=\r\n"},
               // Bytes of every kind stay.
               {"\x01\xFF\0[\r\n[s] x\n\v=\r\xA0\0k\nk=1\r[ ]\xFE"sv, "s", "k", "9",
                "\x01\xFF\0[\r\n[s] x\n\v=\r\xA0\0k\nk=9\r\n[ ]\xFE"sv}};
  const TempFolder folder;
  const fs::path file = folder / "file.dat";
  for (const auto& c : cases) {
    folder.Write("file.dat", c.Before);
    ProfileFiles files;
    EXPECT_NE(files.WriteIniString(c.Section, c.Key, c.Value, file), 0);
    EXPECT_EQ(folder.Read("file.dat"), c.After);
  }
  fs::remove(file);
  EXPECT_NE(ProfileFiles().WriteIniString("s", "k", "9", file), 0);
  EXPECT_EQ(folder.Read("file.dat"), "[s]\r\nk=9\r\n");
}

TEST(ProfileWriting, SeveralKeysGoInOneStep) {
  const TempFolder folder;
  ProfileFiles files;
  const fs::path file = folder / "file.dat";
  folder.Write("file.dat", "[s]\na=1\n\n[t]\nb=2");
  files.WriteIniStrings(
      {{"t", "c", "3"}, {"S", "A", "4"}, {"u", "d", "5"}, {"t", "C", "6"}, {"u", "e", ""}}, file);
  EXPECT_EQ(folder.Read("file.dat"), "[s]\na=4\r\n\n[t]\nb=2\r\nc=6\r\n[u]\r\nd=5\r\ne=\r\n");
  EXPECT_EQ(files.ReadIniString("u", "d", file), "5");

  // Nothing is written by halves, and an error is no more than a 0.
  EXPECT_EQ(files.WriteIniStrings({{"s", "k", "9"}}, folder / "none/file.dat"), 0);
  folder.Write("folder.dat/inside", "kept");
  EXPECT_EQ(files.WriteIniString("s", "k", "9", folder / "folder.dat"), 0);
  const std::string before = folder.Read("file.dat");
  fs::permissions(file, fs::perms::owner_read);
  EXPECT_EQ(files.WriteIniStrings({{"s", "a", "7"}, {"u", "d", "8"}}, file), 0);
  EXPECT_EQ(folder.Read("file.dat") + folder.Read("folder.dat/inside"), before + "kept");
  EXPECT_FALSE(folder.Has("none"));
  EXPECT_EQ(folder.Files(), (Lines{"file.dat", "folder.dat"}));
}

class KeptFiles : public testing::Test {
 protected:
  void Write(std::string_view value) {
    folder_.Write("file.dat", std::string("[s]\nk=").append(value).append("\n"));
  }
  void Age(std::chrono::hours by) {
    fs::last_write_time(file_, fs::file_time_type::clock::now() - by - 1ms);
  }
  std::string Read() const { return files_.ReadIniString("s", "k", file_); }

  TempFolder folder_;
  fs::path file_ = folder_ / "file.dat";
  ProfileFiles files_;
};

TEST_F(KeptFiles, ChangesBehindTheEditorsBackAreSeen) {
  EXPECT_EQ(Read(), "");
  Write("1");
  Age(1h);
  EXPECT_EQ(Read(), "1");
  Write("2");
  EXPECT_EQ(Read(), "2");
  Age(1h);
  EXPECT_EQ(Read(), "2");
  Write("3");
  Age(2h);  // an older file of the same size took its place
  EXPECT_EQ(Read(), "3");
  fs::remove(file_);
  EXPECT_EQ(Read(), "");
}

TEST_F(KeptFiles, ChangesThatTheTimeStampCanNotTellAreSeen) {
  for (int i = 10; i < 99; ++i) {  // many a millisecond, all of one size
    Write(std::to_string(i));
    ASSERT_EQ(Read(), std::to_string(i));
  }
  // A file system that counts in whole seconds.
  const auto stamp = std::chrono::floor<std::chrono::seconds>(fs::file_time_type::clock::now());
  for (const char* value : {"1", "2"}) {
    Write(value);
    fs::last_write_time(file_, stamp);
    EXPECT_EQ(Read(), value);
  }
}

TEST_F(KeptFiles, OwnWritesAreSeenAtOnce) {
  Write("1");
  Age(1h);
  EXPECT_EQ(Read(), "1");
  for (int i = 10; i < 30; ++i) {
    ASSERT_NE(files_.WriteIniString("s", "k", std::to_string(i), file_), 0);
    ASSERT_EQ(Read(), std::to_string(i));
  }
  // A write must not bring back what another program has replaced.
  Write("5");
  files_.WriteIniString("s", "j", "6", file_);
  EXPECT_EQ(folder_.Read("file.dat"), "[s]\nk=5\nj=6\r\n");
  // More files than are kept.
  for (int i = 0; i < 40; ++i) {
    const std::string name = std::to_string(i * 7 % 20);
    folder_.Write(name, "[s]\nk=" + name);
    fs::last_write_time(folder_ / name, fs::file_time_type::clock::now() - 1h);
    EXPECT_EQ(files_.ReadIniString("s", "k", folder_ / name), name);
  }
}

}  // namespace
}  // namespace tarnwick
