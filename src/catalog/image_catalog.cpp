// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/image_catalog.h"

#include "base/ansi.h"
#include "base/text.h"

namespace tarnwick {
namespace {

void AppendImages(ImageCatalog& catalog, const ProfileFiles& files,
                  const std::filesystem::path& file) {
  const Int16 total = files.ReadIniNumber("IMAGES", "total", file);
  for (Int16 i = 1; i <= total; ++i) {
    ++catalog.TotImages;
    catalog.Images[catalog.TotImages] =
        ParseImageRow(files.ReadIniString("IMAGES", RowKey("image", i), file));
  }
}

}  // namespace

bool PictureFits(const ImageRec& image, std::string_view type, std::string_view unitClass,
                 std::string_view missile) {
  return image.Type == type && image.Class == unitClass && image.Missile == missile;
}

std::filesystem::path PictureFile(const Disk& disk, bool brakkaMode, std::string_view id) {
  const auto file = PathIn(disk.ProgramFolder, id);
  return FileExists(file) ? file : PathIn(disk.ModuleFolder(brakkaMode), id);
}

ImageRec ParseImageRow(std::string_view row) {
  return {GetField(row, 1), GetField(row, 2), GetField(row, 3), GetField(row, 4), GetField(row, 5)};
}

void LoadImages(ImageCatalog& catalog, const Disk& disk, bool brakkaMode,
                std::string_view armyFile) {
  const ProfileFiles::Moment moment(disk.Files);
  catalog.TotImages = 0;
  AppendImages(catalog, disk.Files,
               disk.ProgramFolder / (brakkaMode ? "brakka/images_brakka.dat" : "images.dat"));

  // The army file is looked for in the program folder whatever the module.
  std::string further =
      disk.Files.ReadIniString("ARMY", "images", ArmyPath(disk.ProgramFolder, armyFile));
  if (further.empty() && brakkaMode) further = "images.dat";
  if (!further.empty()) AppendImages(catalog, disk.Files, PathIn(disk.ProgramFolder, further));
}

}  // namespace tarnwick
