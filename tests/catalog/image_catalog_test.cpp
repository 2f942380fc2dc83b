// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/image_catalog.h"

#include "support/temp_folder.h"

namespace tarnwick {

TEST(ImageCatalog, HasTheModulesRowsFirstAndThePicturesOfTheProgramFolder) {
  const TempFolder folder;
  folder.Write("images.dat", "[IMAGES]\ntotal=2\nimage1=a,HI,Vet,J,Name,x\nimage2=b\nimage3=no");
  folder.Write("brakka/images_brakka.dat", "[IMAGES]\ntotal=1 row\nimage1=c\n");
  folder.Write("Tyre.army", "[ARMY]\nimages=more/d.dat\n");
  folder.Write("brakka/Tyre.army", "[ARMY]\nimages=images.dat\n");  // nobody asks this one
  folder.Write("more/d.dat", "[IMAGES]\ntotal=3\nimage1=d\nimage3=e\n");
  const Disk disk(folder.Path());
  ImageCatalog catalog;
  const auto load = [&](bool brakka, const char* army) {
    LoadImages(catalog, disk, brakka, army);
    std::string ids;
    for (Int16 i = 1; i <= catalog.TotImages; ++i)
      ids += catalog.Images[i].Id + ";";
    return ids;
  };
  EXPECT_EQ(load(true, ""), "c;a;b;");
  EXPECT_EQ(load(true, "Tyre"), "c;d;;e;");
  EXPECT_EQ(load(false, "Tyre"), "a;b;d;;e;");
  EXPECT_EQ(load(false, ""), "a;b;");
  const ImageRec& first = catalog.Images[1];
  EXPECT_TRUE(first.Name == "Name" && PictureFits(first, "HI", "Vet", "J"));
  EXPECT_FALSE(PictureFits(first, "MI", "Vet", "J") || PictureFits(first, "HI", "", "J") ||
               PictureFits(first, "HI", "Vet", "j"));
  folder.Write("images.dat", "[IMAGES]\ntotal=200\n");
  EXPECT_EQ(load(false, ""), std::string(200, ';'));
  EXPECT_THROW(load(true, ""), SubscriptError);

  for (const char* picture : {"a.svg", "brakka/a.svg", "brakka/b.svg"})
    folder.Write(picture, "");
  EXPECT_EQ(PictureFile(disk, true, "a.svg"), folder / "a.svg");
  EXPECT_EQ(PictureFile(disk, true, "b.svg"), folder / "brakka/b.svg");
  EXPECT_EQ(PictureFile(disk, false, "b.svg"), folder / "b.svg");
}

}  // namespace tarnwick
