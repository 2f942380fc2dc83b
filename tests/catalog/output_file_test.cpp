// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/output_file.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

TEST(OutputFile, TakesTheTargetsPlaceWhenItIsClosed) {
  const TempFolder folder;
  folder.Write("a.army", "old and longer than the new one");
  {
    OutputFile file(folder / "a.army");
    file.WriteLine("[ARMY]");
    file.Write("x");
    file.WriteLine("");
    EXPECT_EQ(folder.Read("a.army"), "old and longer than the new one");
    file.Close();
  }
  EXPECT_EQ(folder.Read("a.army"), "[ARMY]\r\nx\r\n");
  EXPECT_FALSE(folder.Has("a.army.new"));
}

TEST(OutputFile, IsDroppedWhenItIsNotClosed) {
  const TempFolder folder;
  folder.Write("a.army", "old");
  folder.Write("a.army.new", "what a crash left here");
  OutputFile(folder / "a.army").WriteLine("new");
  OutputFile(folder / "b.army").WriteLine("new");
  EXPECT_EQ(folder.Read("a.army"), "old");
  EXPECT_FALSE(folder.Has("b.army"));
  EXPECT_FALSE(folder.Has("a.army.new"));
  EXPECT_FALSE(folder.Has("b.army.new"));
}

TEST(OutputFile, RefusesWhatCanNotBeWritten) {
  const TempFolder folder;
  folder.Write("protected.army", "old");
  fs::permissions(folder / "protected.army", fs::perms::owner_read);
  folder.Write("folder.army/inside", "kept");
  for (const char* name : {"none/a.army", "protected.army", "folder.army"}) {
    try {
      OutputFile file(folder / name);
      ADD_FAILURE() << name << " was opened";
    } catch (const FileError& error) {
      const std::string what = error.what();
      EXPECT_NE(what.find((folder / name).string()), std::string::npos) << what;
    }
  }
  EXPECT_EQ(folder.Read("protected.army"), "old");
  EXPECT_EQ(folder.Read("folder.army/inside"), "kept");
}

TEST(OutputFile, FullDiskLeavesTheTarget) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  const TempFolder folder;
  folder.Write("a.army", "old");
  for (const std::size_t size : {1U, 1000000U}) {  // found out by Close, and by Write
    fs::create_symlink("/dev/full", folder / "a.army.new");
    EXPECT_THROW(
        {
          OutputFile file(folder / "a.army");
          file.Write(std::string(size, 'x'));
          file.Close();
        },
        FileError);
    EXPECT_EQ(folder.Read("a.army"), "old");
    EXPECT_FALSE(fs::is_symlink(folder / "a.army.new"));
  }
}

TEST(OutputFile, LinksAndPermissionsStay) {
  const TempFolder folder;
  folder.Write("elsewhere/real.army", "old");
  fs::create_symlink("elsewhere/real.army", folder / "link.army");
  constexpr auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_write;
  fs::permissions(folder / "elsewhere/real.army", mode);
  OutputFile file(folder / "link.army");
  file.Write("new");
  file.Close();
  EXPECT_TRUE(fs::is_symlink(folder / "link.army"));
  EXPECT_EQ(folder.Read("elsewhere/real.army"), "new");
  EXPECT_EQ(fs::status(folder / "elsewhere/real.army").permissions(), mode);
}

}  // namespace
}  // namespace tarnwick
