// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/pending_files.h"

#include "support/temp_folder.h"

namespace tarnwick {

TEST(PendingFiles, AreReplacedWhenAllAreComplete) {
  const TempFolder folder;
  folder.Write("b.army", "[s]\nk=1\n");
  std::filesystem::create_symlink("b.army", folder / "link.army");
  ProfileFiles profiles;
  PendingFiles files;
  files.Write(folder / "a.army", "[ARMY]\r\n");
  files.WriteIniStrings({{"s", "k", "2"}}, folder / "b.army");
  files.WriteIniStrings({{"t", "k", "3"}}, folder / "x/../a.army");  // the same file
  files.WriteIniStrings({{"s", "j", "4"}}, folder / "link.army");
  files.WriteIniStrings({{"s", "k", "5"}}, folder / "none/c.army");  // fails silently
  EXPECT_EQ(folder.Files(), (Lines{"b.army", "link.army"}));
  EXPECT_EQ(folder.Read("b.army"), "[s]\nk=1\n");
  files.Replace(profiles);
  EXPECT_EQ(folder.Read("a.army"), "[ARMY]\r\n[t]\r\nk=3\r\n");
  EXPECT_EQ(folder.Read("b.army"), "[s]\nk=2\r\nj=4\r\n");

  // One that can't be made anew keeps those behind it from being written.
  files.Write(folder / "none/d.army", "");
  files.WriteIniStrings({{"s", "k", "1"}}, folder / "e.army");
  EXPECT_THROW(files.Replace(profiles), FileError);
  EXPECT_FALSE(folder.Has("e.army"));
}

}  // namespace tarnwick
