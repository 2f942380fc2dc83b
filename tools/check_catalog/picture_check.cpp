// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/picture_check.h"

#include <algorithm>
#include <system_error>

#include "base/ansi.h"
#include "base/numbers.h"
#include "check_catalog/missing_file.h"
#include "rules/unit_types.h"

namespace tarnwick {

namespace fs = std::filesystem;

std::string KindText(const std::string& type, const std::string& unitClass,
                     const std::string& missile) {
  return R"(the type ")" + type + R"(", the class ")" + unitClass + R"(" and the missile ")" +
         missile + "\"";
}

PictureCheck::PictureCheck(const Disk& disk, bool brakka, Findings& findings)
    : disk_(disk),
      brakka_(brakka),
      file_(disk, brakka ? "brakka/images_brakka.dat" : "images.dat", findings),
      section_(file_, "IMAGES") {}

void PictureCheck::CheckRows(const PictureFault& fault) {
  if (!file_.IsOpen()) return;
  if (!file_.HasSection("IMAGES")) {
    section_.Report(Severity::Error, "",
                    "There is no section [IMAGES], so there are no pictures. Write it, with total "
                    "and the rows.");
    return;
  }
  for (const CatalogRow& row : section_.CheckRows("total", "image", mostImages)) {
    const auto report = [&](Severity weight, const std::string& sentence) {
      section_.Report(weight, row.Key, sentence);
    };
    const bool hasFields = section_.CheckFields(row, "id,type,class,missile,name", 5);
    const ImageRec image = ParseImageRow(row.Text);
    const bool known = IsUnitType(image.Type);
    if (!known) {
      report(Severity::Warning,
             "The type \"" + image.Type + "\" is unknown. Write the code of one in capitals.");
    }
    if (hasFields && image.Name.empty()) {
      report(Severity::Error,
             "The row has no name, and a unit with such a picture can't be saved. Write one.");
    }
    const auto first = std::ranges::find_if(pictures_, [&image](const Picture& other) {
      return LowerCase(other.Image.Id) == LowerCase(image.Id);
    });
    if (first != pictures_.end()) {
      report(Severity::Warning, "The picture \"" + image.Id + "\" is that of " + first->Key +
                                    " too, which loading finds. Copy the file to a name of its "
                                    "own.");
    }
    CheckFile(row.Key, image.Id, fault);
    pictures_.push_back({row.Key, image, !known});
  }
  file_.CheckUnreadSections("Only [IMAGES] is read. Take the section away.");
  file_.CheckUnreadKeys(Severity::Warning,
                        "The key is never read. Check its spelling and the total of the rows.");
}

int PictureCheck::RowCount() {
  const double count = NumberIn(section_.Read("total")).value_or(0);
  return count >= 0 && count <= mostImages ? static_cast<int>(count) : 0;
}

void PictureCheck::CheckFile(const std::string& key, const std::string& id,
                             const PictureFault& fault) {
  const fs::path file = PictureFile(disk_, brakka_, id);
  if (id.empty()) {
    section_.Report(Severity::Error, key, "The row names no picture. Write its file.");
  } else if (!FileExists(file)) {
    std::error_code error;  // a folder that may not be looked into is none
    const bool hasFolder = fs::exists(file.parent_path(), error);
    if (!hasFolder && !missingFolders_.insert(file.parent_path()).second) return;
    auto [what, remedy] = LookForFile(disk_.ProgramFolder, id);
    if (remedy.empty()) remedy = LookForFile(disk_.ModuleFolder(brakka_), id).Remedy;
    if (remedy.empty()) remedy = "Put the file there, or mend its name.";
    if (!hasFolder) remedy += " The whole folder is missing.";
    section_.Report(Severity::Error, key, "The picture \"" + id + "\" " + what + ". " + remedy);
  } else if (const std::string what = fault(file); !what.empty()) {
    section_.Report(Severity::Error, key,
                    "The picture \"" + id + "\" " + what + ". Save it as a plain SVG, or a PNG.");
  }
}

bool PictureCheck::Fits(const UnitRec& unit) {
  const bool isRead = file_.IsOpen() && file_.HasSection("IMAGES");
  bool fits = !isRead && !(brakka_ && file_.IsMissing());
  for (Picture& picture : pictures_) {
    if (!PictureFits(picture.Image, unit.UnitType, unit.UnitClass, unit.Missile)) continue;
    fits = picture.InUse = true;
  }
  return fits;
}

void PictureCheck::CheckUses() {
  for (const auto& [key, image, inUse] : pictures_) {
    if (inUse) continue;
    section_.Report(Severity::Note, key,
                    "No unit row has " + KindText(image.Type, image.Class, image.Missile) +
                        ", so the picture is never shown.");
  }
}

void PictureCheck::AddFiles(std::set<fs::path>& files) const {
  for (const Picture& picture : pictures_)
    files.insert(PictureFile(disk_, brakka_, picture.Image.Id).lexically_normal());
}

void CheckStrayPictures(const Disk& disk, const std::set<fs::path>& named, Findings& findings) {
  std::set<fs::path> folders;
  std::set<std::string> names;
  for (const fs::path& file : named) {
    folders.insert(file.parent_path());
    names.insert(LowerCase(AnsiFromPath(file)));
  }
  for (const fs::path& folder : folders) {
    const fs::path way = folder.lexically_relative(disk.ProgramFolder);
    if (way.empty() || *way.begin() == "..") continue;  // others' pictures
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
      const std::string name = LowerCase(AnsiFromPath(entry.path()));
      if ((!name.ends_with(".svg") && !name.ends_with(".png")) || names.contains(name)) continue;
      const fs::path file = entry.path().lexically_relative(disk.ProgramFolder);
      findings.push_back({AnsiFromPath(file.generic_string()), 0, Severity::Note, "", "",
                          "No row of an image catalog names the picture."});
    }
  }
}

}  // namespace tarnwick
