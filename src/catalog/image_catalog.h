// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/int16.h"
#include "base/table.h"
#include "catalog/disk.h"

namespace tarnwick {

/// A picture and the unit that it shows.
struct ImageRec {
  std::string Id;  ///< the picture's file, relative to the program folder
  std::string Type;
  std::string Class;
  std::string Missile;
  std::string Name;  ///< what the choice lists show
  bool operator==(const ImageRec&) const = default;
};

struct ImageCatalog {
  Table<ImageRec, 1, 200> Images;
  Int16 TotImages;
  bool operator==(const ImageCatalog&) const = default;
};

/// Whether the picture fits a unit of that type, class and missile ability.
bool PictureFits(const ImageRec& image, std::string_view type, std::string_view unitClass,
                 std::string_view missile);

/// The file of the picture `id`. What the program folder lacks is looked for in Brakka's folder
/// when that is the module; it may be missing there, too.
std::filesystem::path PictureFile(const Disk& disk, bool brakkaMode, std::string_view id);

ImageRec ParseImageRow(std::string_view row);

/// Rebuilds the catalog: the module's rows, then those of the catalog that the army file
/// `armyFile` (its name, or "") names; in the Brakka module the base game's when it names none.
/// Missing files give no rows. More than 200 rows throw SubscriptError.
void LoadImages(ImageCatalog& catalog, const Disk& disk, bool brakkaMode,
                std::string_view armyFile);

}  // namespace tarnwick
