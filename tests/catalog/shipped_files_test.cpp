// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/shipped_files.h"

#include "support/temp_folder.h"

namespace tarnwick {

TEST(ShippedFiles, LeaveAloneWhatTheUserChangedOrDeleted) {
  const TempFolder shipped, own;
  const auto lay = [&] { return LayFiles(shipped.Path(), ListFiles(shipped.Path()), own.Path()); };
  own.Write("friend's.army", "a friend's");
  shipped.Write("a.dat", "1");
  shipped.Write("b/Nine Kings.army", "1");
  shipped.Write("c.svg", "");
  shipped.Write("shipped.txt", "");  // a package's own list is none of the files
  EXPECT_EQ(lay(), Lines());
  EXPECT_EQ(own.Read("b/Nine Kings.army"), "1");
  EXPECT_EQ(own.Read("c.svg"), "");

  // What is as it was laid is renewed, and once more.
  for (const char* version : {"2", "3"}) {
    shipped.Write("a.dat", version);
    EXPECT_EQ(lay(), Lines());
    EXPECT_EQ(own.Read("a.dat"), version);
  }
  own.Write("a.dat", "my own");
  std::filesystem::remove(own / "b/Nine Kings.army");
  shipped.Write("a.dat", "4");
  shipped.Write("friend's.army", "a new one of the name");
  shipped.Write("new.army", "new");
  std::filesystem::create_directory(own / "d");
  shipped.Write("d", "a file in the place of a folder");
  const Lines heldBack = {"a.dat (changed here)", "b/Nine Kings.army (deleted here)",
                          "d (changed here)", "friend's.army (changed here)"};
  EXPECT_EQ(lay(), heldBack);
  EXPECT_EQ(lay(), heldBack);
  EXPECT_EQ(own.Read("a.dat"), "my own");
  EXPECT_FALSE(own.Has("b/Nine Kings.army"));
  EXPECT_EQ(own.Read("friend's.army"), "a friend's");
  EXPECT_EQ(own.Read("new.army"), "new");

  // What is again as it was laid is renewed; a version without the file forgets nothing.
  own.Write("a.dat", "3");
  std::filesystem::remove(shipped / "b/Nine Kings.army");
  EXPECT_EQ(lay(), Lines(heldBack.begin() + 2, heldBack.end()));
  EXPECT_EQ(own.Read("a.dat"), "4");
  shipped.Write("b/Nine Kings.army", "2");
  EXPECT_EQ(lay(), Lines(heldBack.begin() + 1, heldBack.end()));
  std::filesystem::remove(own / "shipped.txt");
  EXPECT_EQ(lay(), Lines(heldBack.begin() + 2, heldBack.end())) << "nothing is known as deleted";
}

TEST(ShippedFiles, GoToTheUsersFolderWhenInstalledForAll) {
  const TempFolder usr;
  const auto binary = usr / "bin", shipped = usr / "share/tarnwick/program", own = usr / "home/own";
  const auto find = [&] { return FindInstallation(binary, own); };
  const auto list = [&] { usr.Write("share/tarnwick/program/shipped.txt", ListFiles(shipped)); };
  usr.Write("share/tarnwick/program/armylist.dat", "1");
  EXPECT_EQ(find().Program, binary);
  EXPECT_EQ(find().Guide, binary / "guide");
  list();
  EXPECT_EQ(find().Program, own);
  EXPECT_EQ(find().Guide, usr / "share/tarnwick/guide");
  BringUpToDate(find());
  EXPECT_EQ(usr.Read("home/own/armylist.dat"), "1");
  // Files are looked at when there is a new list.
  usr.Write("share/tarnwick/program/armylist.dat", "2");
  BringUpToDate(find());
  EXPECT_EQ(usr.Read("home/own/armylist.dat"), "1");
  // What fails keeps nothing else back, and is tried again.
  usr.Write("share/tarnwick/program/images.dat", "1");
  usr.Write("share/tarnwick/program/zama.army", "1");
  list();
  std::filesystem::remove(shipped / "armylist.dat");
  std::filesystem::remove(shipped / "images.dat");
  const auto error = [&] { return ErrorOf([&] { BringUpToDate(find()); }); };
  const std::string armies = "File " + (shipped / "armylist.dat").string() + " cannot be read";
  EXPECT_EQ(error(), armies + " (and 1 more)");
  EXPECT_EQ(usr.Read("home/own/zama.army"), "1");
  usr.Write("share/tarnwick/program/images.dat", "1");
  EXPECT_EQ(error(), armies);
  EXPECT_EQ(usr.Read("home/own/armylist.dat"), "1");

  usr.Write("bin/armylist.dat", "");
  EXPECT_EQ(find().Program, binary);
  EXPECT_EQ(find().Shipped, "");
}

}  // namespace tarnwick
