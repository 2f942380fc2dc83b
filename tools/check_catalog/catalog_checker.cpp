// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/catalog_checker.h"

#include <algorithm>
#include <tuple>

#include "check_catalog/army_check.h"
#include "check_catalog/specials_check.h"
#include "check_catalog/unit_check.h"

namespace tarnwick {
namespace {

/// All catalogs of a program folder.
class FolderCheck {
 public:
  FolderCheck(const Disk& disk, Findings& findings)
      : disk_(disk),
        findings_(findings),
        specials_(disk, "specials.dat", findings),
        pictures_(disk, false, findings),
        brakkaPictures_(disk, true, findings),
        armies_(disk, "armylist.dat", findings),
        brakkaArmies_(disk, "brakka/armylist.dat", findings) {}

  void Check(const PictureFault& fault) {
    CheckFiles();
    pictures_.CheckRows(fault);
    brakkaPictures_.CheckRows(fault);
    CheckPictureCount();
    UnitCheck units(disk_, specials_, {&pictures_});
    UnitCheck brakkaUnits(disk_, specials_, {&brakkaPictures_, &pictures_});
    if (armies_.IsOpen()) ArmyCheck(armies_, units).Check();
    if (brakkaArmies_.IsOpen()) ArmyCheck(brakkaArmies_, brakkaUnits).Check();
    if (specials_.IsMissing() && (units.LacksSpecials() || brakkaUnits.LacksSpecials())) {
      specials_.ReportMissing(Severity::Warning, "unit rows name special abilities");
    }
    // Where something can't be read, much else seems to be of no use.
    const bool hasAll = armies_.IsOpen() && (brakkaArmies_.IsOpen() || brakkaArmies_.IsMissing());
    if (hasAll && !HasErrors(findings_)) CheckUses();
    CheckSpecials(specials_);
  }

 private:
  void CheckFiles() {
    if (armies_.IsMissing()) armies_.ReportMissing(Severity::Error, "no army is on offer");
    if (pictures_.File().IsMissing()) {
      pictures_.File().ReportMissing(Severity::Error, "no unit has a picture, or can be saved");
    }
    CatalogFile& brakkaPictures = brakkaPictures_.File();
    if (brakkaPictures.IsMisplaced()) {
      brakkaPictures.ReportMissing(Severity::Error, "Brakka has no pictures of its own");
    }
    if (!brakkaArmies_.IsMissing()) return;
    const bool meant = brakkaArmies_.IsMisplaced() || !brakkaPictures.IsMissing();
    brakkaArmies_.ReportMissing(meant ? Severity::Error : Severity::Note,
                                "the second module, Brakka, has no armies");
  }

  void CheckPictureCount() {
    const int count = pictures_.RowCount() + brakkaPictures_.RowCount();
    if (count <= mostImages) return;
    brakkaPictures_.File().Report(Severity::Error, "IMAGES", "total",
                                  "Together with images.dat there are " + std::to_string(count) +
                                      " rows, and more than 200 end the editor. Take some away.");
  }

  void CheckUses() {
    specials_.Read("SPECIALS", "");
    specials_.CheckUnreadSections("No unit row names the group.");
    pictures_.CheckUses();
    if (brakkaArmies_.IsOpen()) brakkaPictures_.CheckUses();
    std::set<std::filesystem::path> files;
    pictures_.AddFiles(files);
    brakkaPictures_.AddFiles(files);
    CheckStrayPictures(disk_, files, findings_);
  }

  const Disk& disk_;
  Findings& findings_;
  CatalogFile specials_;
  PictureCheck pictures_, brakkaPictures_;
  CatalogFile armies_, brakkaArmies_;
};

}  // namespace

Findings CheckCatalogs(const std::filesystem::path& programFolder, const PictureFault& fault) {
  Findings findings;
  const Disk disk(std::filesystem::absolute(programFolder).lexically_normal());
  FolderCheck(disk, findings).Check(fault);
  std::ranges::stable_sort(
      findings, {}, [](const Finding& finding) { return std::tie(finding.File, finding.Line); });
  return findings;
}

}  // namespace tarnwick
