// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/file_replacement.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/fake_host.h"
#include "support/full_disk.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

TEST(ReplaceFile, KeepsLinksAndPermissions) {
  const TempFolder folder;
  const std::string longest = std::string(250, 'a') + ".army";
  folder.Write("elsewhere/" + longest, "old and longer than the new one");
  fs::create_symlink("elsewhere/" + longest, folder / "a.army");
  constexpr auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_write;
  fs::permissions(folder / ("elsewhere/" + longest), mode);
  ReplaceFile(folder / "a.army", "new", Durability::Lasting);
  EXPECT_EQ(folder.Read("elsewhere/" + longest), "new");
  EXPECT_EQ(fs::status(folder / ("elsewhere/" + longest)).permissions(), mode);
  EXPECT_TRUE(fs::is_symlink(folder / "a.army"));
  EXPECT_EQ(folder.Files("elsewhere"), Lines{longest});
}

TEST(ReplaceFile, AFailureLeavesTheTarget) {
  const TempFolder folder;
  folder.Write("a.army", "old");
  for (const std::size_t size : {1U, 1000000U}) {
    const FullDisk full;
    EXPECT_THROW(ReplaceFile(folder / "a.army", std::string(size, 'x'), Durability::Scratch),
                 FileError);
  }
  EXPECT_EQ(folder.Read("a.army"), "old");
  EXPECT_EQ(folder.Files(), Lines{"a.army"});
  EXPECT_THROW(ReplaceFile(folder / "none/a.army", "x", Durability::Lasting), FileError);
}

TEST(ReplaceFile, ClearsAwayWhatDeadProcessesLeft) {
  const TempFolder folder;
  const std::string dead = ".tarnwick-0009999999.new";  // systems count to a few millions
  const Lines others = {".tarnwick-0000000001.new",      ".tarnwick-0009999998.new",
                        ".tarnwick-0009999999.new.army", ".tarnwick-9999999.new",
                        ".tarnwick-99999999999.new",     "tarnwick-0009999999.new"};
  fs::create_directory(folder / others[1]);
  for (const std::string& name : others) {
    if (name != others[1]) folder.Write(name, "");
  }
  folder.Write(dead, "");
  ReplaceFile(folder / "a", "", Durability::Scratch);
  EXPECT_TRUE(folder.Has(dead));
  ReplaceFile(folder / "a", "", Durability::Lasting);
  EXPECT_FALSE(folder.Has(dead));
  EXPECT_EQ(folder.Files().size(), others.size() + 1);
}

}  // namespace
}  // namespace tarnwick
