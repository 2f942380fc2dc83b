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
  folder.Write("elsewhere/a.army", "old and longer than the new one");
  folder.Write("elsewhere/a.army.new", "what a crash left here");
  fs::create_symlink("elsewhere/a.army", folder / "a.army");
  constexpr auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_write;
  fs::permissions(folder / "elsewhere/a.army", mode);
  OutputFile(folder / "a.army").WriteLine("dropped");
  EXPECT_FALSE(folder.Has("elsewhere/a.army.new"));
  OutputFile file(folder / "a.army");
  file.WriteLine("[ARMY]");
  file.Write("x");
  file.WriteLine("");
  EXPECT_EQ(folder.Read("a.army"), "old and longer than the new one");
  file.Close();
  EXPECT_EQ(folder.Read("elsewhere/a.army"), "[ARMY]\r\nx\r\n");
  EXPECT_EQ(fs::status(folder / "elsewhere/a.army").permissions(), mode);
  EXPECT_TRUE(fs::is_symlink(folder / "a.army"));
  EXPECT_FALSE(folder.Has("elsewhere/a.army.new") || folder.Has("a.army.new"));
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

}  // namespace
}  // namespace tarnwick
