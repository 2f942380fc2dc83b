// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/file_replacement.h"

#include <csignal>
#include <sys/resource.h>

#include "support/temp_folder.h"

namespace tarnwick {

namespace fs = std::filesystem;

TEST(ReplaceFile, KeepsLinksAndPermissionsAndNothingOpen) {
  const TempFolder folder;
  const std::string longest = std::string(250, 'a') + ".army", target = "elsewhere/" + longest;
  folder.Write(target, "old and longer than the new one");
  fs::create_symlink(target, folder / "a.army");
  constexpr auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_write;
  fs::permissions(folder / target, mode);
  const auto openFiles = [] {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
  };
  const auto before = openFiles();
  ReplaceFile(folder / "a.army", "new", Durability::Lasting);
  EXPECT_EQ(openFiles(), before);
  EXPECT_EQ(folder.Read(target), "new");
  EXPECT_EQ(fs::status(folder / target).permissions(), mode);
  EXPECT_TRUE(fs::is_symlink(folder / "a.army"));
  EXPECT_EQ(folder.Files("elsewhere"), Lines{longest});
}

TEST(ReplaceFile, AFailureLeavesTheTargetAndNamesIt) {
  const TempFolder folder;
  folder.Write("a.army", "old");
  rlimit before;
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit full = {0, before.rlim_max};  // no file can take a byte
  std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &full);
  Lines errors;
  for (const std::size_t size : {1U, 1000000U})
    errors.push_back(ErrorOf(
        [&] { ReplaceFile(folder / "a.army", std::string(size, 'x'), Durability::Scratch); }));
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(errors, Lines(2, "File " + (folder / "a.army").string() +
                                 " cannot be written: File too large"));
  EXPECT_EQ(folder.Read("a.army"), "old");
  EXPECT_EQ(folder.Files(), Lines{"a.army"});
  const auto none = (folder / "none/a").string();
  EXPECT_EQ(ErrorOf([&] { ReplaceFile(none, "x", Durability::Lasting); }),
            "File " + none + " cannot be written: No such file or directory");
}

TEST(ReplaceFile, ClearsAwayWhatDeadProcessesLeft) {
  const TempFolder folder;
  const std::string dead = ".tarnwick-0009999999.new";  // systems count to a few millions
  const Lines others = {".tarnwick-0000000001.new", ".tarnwick-0009999999.new.army",
                        ".tarnwick-9999999.new",    ".tarnwick-99999999999.new",
                        "tarnwick-0009999999.new",  "a"};
  for (const std::string& name : others)
    folder.Write(name, "");
  folder.Write(dead, "");
  fs::create_directory(folder / ".tarnwick-0009999998.new");
  ReplaceFile(folder / "a", "", Durability::Scratch);
  EXPECT_TRUE(folder.Has(dead));
  ReplaceFile(folder / "a", "", Durability::Lasting);
  EXPECT_FALSE(folder.Has(dead));
  EXPECT_EQ(folder.Files().size(), others.size() + 1);
}

}  // namespace tarnwick
