// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/image_catalog.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

class LoadingImages : public testing::Test {
 protected:
  LoadingImages() {
    folder_.Write("images.dat", "[IMAGES]\ntotal=2\nimage1=v1,HI,,,V1\nimage2=v2,HI,,,V2\n");
    folder_.Write("brakka/images_brakka.dat", "[IMAGES]\ntotal=1\nimage1=b1,KB,,,B1\n");
  }

  std::vector<std::string> Ids(bool brakkaMode, std::string_view armyFile) {
    LoadImages(catalog_, files_, folder_.Path(), brakkaMode, armyFile);
    std::vector<std::string> ids;
    for (Int16 i = 1; i <= catalog_.TotImages; ++i)
      ids.push_back(catalog_.Images[i].Id);
    return ids;
  }

  TempFolder folder_;
  ProfileFiles files_;
  ImageCatalog catalog_;
};

TEST_F(LoadingImages, TheModulesRowsComeFirstThenTheArmys) {
  folder_.Write("Extra.army", "[ARMY]\nimages=extra/more.dat\n");
  folder_.Write("Twice.army", "[ARMY]\nimages=images.dat\n");
  folder_.Write("brakka/Extra.army", "[ARMY]\nimages=images.dat\n");
  folder_.Write("extra/more.dat", "[IMAGES]\ntotal=1 row\nimage1=x1,SK,,S,X1\n");
  EXPECT_EQ(Ids(false, ""), (Lines{"v1", "v2"}));
  EXPECT_EQ(Ids(false, "Extra"), (Lines{"v1", "v2", "x1"}));
  EXPECT_EQ(Ids(false, "Twice"), (Lines{"v1", "v2", "v1", "v2"}));
  EXPECT_EQ(Ids(true, ""), (Lines{"b1", "v1", "v2"}));
  // In the Brakka module, too, the army's file is looked for in the program folder.
  EXPECT_EQ(Ids(true, "Extra"), (Lines{"b1", "x1"}));
  EXPECT_EQ(Ids(false, "None"), (Lines{"v1", "v2"}));
}

TEST_F(LoadingImages, MissingRowsAreEmptyAndMissingFilesHaveNone) {
  folder_.Write("images.dat", "[IMAGES]\ntotal=3\nimage1=a, HI ,Vet,J,A\nimage3=c\n");
  EXPECT_EQ(Ids(false, ""), (Lines{"a", "", "c"}));
  const ImageRec& first = catalog_.Images[1];
  EXPECT_EQ((Lines{first.Type, first.Class, first.Missile, first.Name}),
            (Lines{" HI ", "Vet", "J", "A"}));
  EXPECT_EQ(catalog_.Images[3].Name, "");
  folder_.Write("images.dat", "");
  EXPECT_EQ(Ids(false, ""), Lines{});
}

TEST_F(LoadingImages, TheTableHolds200Rows) {
  folder_.Write("images.dat", "[IMAGES]\ntotal=200\nimage200=last\n");
  EXPECT_EQ(Ids(false, "").back(), "last");
  EXPECT_THROW(Ids(true, ""), SubscriptError);  // one more in front
}

}  // namespace
}  // namespace tarnwick
