// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "catalog/base_army.h"
#include "catalog/disk.h"
#include "catalog/image_catalog.h"
#include "check_catalog/catalog_file.h"

namespace tarnwick {

/// Rows of all image catalogs together.
inline constexpr int mostImages = decltype(ImageCatalog::Images)::Last;

/// What keeps a file from being shown as a picture, as "is empty"; "" when nothing does.
using PictureFault = std::function<std::string(const std::filesystem::path& picture)>;

/// What a picture must share with a unit, in words.
std::string KindText(const std::string& type, const std::string& unitClass,
                     const std::string& missile);

/// Checks one image catalog and the pictures that it names.
class PictureCheck {
 public:
  PictureCheck(const Disk& disk, bool brakka, Findings& findings);

  void CheckRows(const PictureFault& fault);

  /// Whether a picture fits the unit, or may for all that is known. Those that fit are in use.
  bool Fits(const UnitRec& unit);

  /// Rows that fit no unit that was asked for.
  void CheckUses();

  /// Adds the files that the rows name.
  void AddFiles(std::set<std::filesystem::path>& files) const;

  CatalogFile& File() { return file_; }

  /// The rows that the editor reads, missing ones too; 0 when their number is wrong.
  int RowCount();

 private:
  struct Picture {
    std::string Key;
    ImageRec Image;
    bool InUse = false;
  };

  void CheckFile(const std::string& key, const std::string& id, const PictureFault& fault);

  const Disk& disk_;
  bool brakka_;
  CatalogFile file_;
  CatalogSection section_;
  std::vector<Picture> pictures_;
  std::set<std::filesystem::path> missingFolders_;  ///< that were reported
};

/// Pictures that lie beside those in `named` and are none of them.
void CheckStrayPictures(const Disk& disk, const std::set<std::filesystem::path>& named,
                        Findings& findings);

}  // namespace tarnwick
