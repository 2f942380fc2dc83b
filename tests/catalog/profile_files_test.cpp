// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/profile_files.h"

#include <optional>
#include <sys/stat.h>

#include "support/temp_folder.h"

namespace tarnwick {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class ProfileFilesTest : public testing::Test {
 protected:
  using Time = fs::file_time_type;

  /// Key "k" of section "s" gets a value behind the editor's back.
  void Put(const std::string& value, std::optional<Time> stamp = {}) const {
    folder_.Write("file.dat", "[s]\nk=" + value + "\n");
    if (stamp) fs::last_write_time(file_, *stamp);
  }
  std::string Get() const { return files_.ReadIniString("s", "k", file_); }

  const TempFolder folder_;
  const fs::path file_ = folder_ / "file.dat";
  const Time hourAgo_ = Time::clock::now() - 1h - 1ms;
  ProfileFiles files_;
};

TEST_F(ProfileFilesTest, WhatIsMissingIsEmptyAndTheCutTo254BytesComesLast) {
  folder_.Write("folder.dat/inside", "");
  for (const char* name : {"none/none.dat", "folder.dat", "file.dat"}) {
    EXPECT_EQ(files_.ReadIniString("s", "k", folder_ / name), "") << name;
    EXPECT_FALSE(FileExists(folder_ / name)) << name;
  }
  for (const std::size_t size : {254U, 255U, 256U}) {
    Put("'" + std::string(size, 'x') + "'");
    EXPECT_EQ(Get(), std::string(254, 'x'));
  }
  EXPECT_TRUE(FileExists(file_));
  EXPECT_EQ(files_.ReadIniNumber("s", "j", file_), 0);
  Put("12.5 men");
  EXPECT_EQ(files_.ReadIniNumber("s", "k", file_), 12);
  Put("70000");
  EXPECT_THROW(files_.ReadIniNumber("s", "k", file_), OverflowError);
}

TEST_F(ProfileFilesTest, AFailedWriteChangesNothingAndIsNoError) {
  const std::string all = "[s]\r\nk=1\r\nj=2\r\n[t]\r\nk=3\r\n";
  folder_.Write("folder.dat/inside", "");
  folder_.Write("file.dat", "");
  EXPECT_NE(files_.WriteIniStrings({{"s", "k", "1"}, {"s", "j", "2"}, {"t", "k", "3"}}, file_), 0);
  EXPECT_EQ(folder_.Read("file.dat"), all);
  fs::permissions(file_, fs::perms::owner_read);
  mkfifo((folder_ / "pipe.dat").c_str(), 0600);  // can't be read, but could be replaced
  for (const char* name : {"none/file.dat", "folder.dat", "pipe.dat", "file.dat"})
    EXPECT_EQ(files_.WriteIniStrings({{"s", "k", "8"}, {"u", "k", "9"}}, folder_ / name), 0);
  EXPECT_EQ(folder_.Files(), (Lines{"file.dat", "folder.dat", "pipe.dat"}));
  EXPECT_TRUE(fs::is_fifo(folder_ / "pipe.dat"));
  EXPECT_EQ(folder_.Read("file.dat"), all);
}

TEST_F(ProfileFilesTest, OwnWritesAreSeenAtOnceAndBringNothingBack) {
  for (int i = 10; i < 30; ++i) {
    ASSERT_NE(files_.WriteIniString("s", "k", std::to_string(i), file_), 0);
    ASSERT_EQ(Get(), std::to_string(i));
  }
  Put("4", hourAgo_);
  EXPECT_EQ(Get(), "4");
  Put("5");  // another program's
  files_.WriteIniString("s", "j", "6", file_);
  EXPECT_EQ(folder_.Read("file.dat"), "[s]\nk=5\nj=6\r\n");
}

TEST_F(ProfileFilesTest, AFileIsReadAgainWhenItsTimeStampChanged) {
  Put("1", hourAgo_);
  EXPECT_EQ(Get(), "1");
  Put("2");
  EXPECT_EQ(Get(), "2");
  Put("3", hourAgo_ - 1h);  // an older file of the same size took its place
  EXPECT_EQ(Get(), "3");
  Put("4", hourAgo_ - 1h);  // nothing tells that it changed
  // Eight files are kept, those used last.
  for (const int others : {7, 7, 8}) {
    EXPECT_EQ(Get(), "3");
    for (int i = 1; i <= others; ++i) {
      const std::string name = std::to_string(i);
      folder_.Write(name, "[s]\nk=" + name);
      EXPECT_EQ(files_.ReadIniString("s", "k", folder_ / name), name);
    }
  }
  EXPECT_EQ(Get(), "4");
  fs::remove(file_);
  EXPECT_EQ(Get(), "");
}

TEST_F(ProfileFilesTest, ChangesThatTheTimeStampCanNotTellAreSeen) {
  // A file system that counts in whole seconds.
  const Time stamp = std::chrono::floor<std::chrono::seconds>(Time::clock::now() - 500ms);
  for (const char* value : {"1", "2"}) {
    Put(value, stamp);
    EXPECT_EQ(Get(), value);
  }
}

TEST_F(ProfileFilesTest, InAMomentAFileIsOneVersionWithOwnWrites) {
  Put("1", hourAgo_);
  {
    const ProfileFiles::Moment moment(files_);
    EXPECT_EQ(Get(), "1");
    Put("2");
    { const ProfileFiles::Moment inner(files_); }
    EXPECT_EQ(Get(), "1");
    files_.WriteIniString("s", "j", "3", file_);
    EXPECT_EQ(folder_.Read("file.dat"), "[s]\nk=2\nj=3\r\n");
    EXPECT_EQ(Get(), "2");
    Put("4");
  }
  EXPECT_EQ(Get(), "4");
}

}  // namespace tarnwick
