// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/loading.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "armyfile/resetting.h"
#include "base/ansi.h"
#include "base/numbers.h"
#include "base/text.h"
#include "battlefield/setups.h"
#include "battlefield/terrain.h"
#include "rules/base_army_loading.h"
#include "rules/budget.h"
#include "rules/leaders.h"
#include "rules/special_cards.h"
#include "rules/unit_grid.h"
#include "rules/unit_types.h"

namespace tarnwick {
namespace {

/// Loads one army file.
class ArmyLoader {
 public:
  ArmyLoader(WorkingArmy& work, Disk& disk, Host& host, std::filesystem::path file)
      : work_(work), disk_(disk), host_(host), file_(std::move(file)) {}

  bool Load() {
    const ProfileFiles::Moment moment(disk_.Files);
    ReadHeader();
    const bool complete = LoadCatalogs() && LoadUnits();
    ShowSelectUnits(army_, disk_);  // what there is, when the loading ends here
    if (!complete) return false;
    army_.PointsLeft -= army_.PointsSpent;
    LoadLeader();
    LoadCards();
    LoadTerrain(work_.Field, army_, disk_.Files, file_);
    header_.ArmyDesc.Text = ReplaceText("@", CrLf, header_.ArmyDescription);
    LoadSpecialRules(header_, disk_.Files, file_);
    ShowPoints(army_);
    TakeArmyType(header_, Read("ARMY", "type"));
    ShowPeriod(header_);
    // Setups are kept in the program folder whatever the module.
    LoadSetupsFromArmy(work_.Field, disk_, ArmyPath(disk_.ProgramFolder, header_.ArmyFile));
    ShowPanel(army_, Panel::Units);
    return true;
  }

 private:
  std::string Read(std::string_view section, std::string_view key) const {
    return disk_.Files.ReadIniString(section, key, file_);
  }

  void ReadHeader() {
    army_.BaseArmyName = Read("ARMY", "base");
    header_.ArmyAuthor = Read("ARMY", "author");
    header_.ArmyDescription = Read("ARMY", "description");
    header_.ArmyPeriod = Read("ARMY", "period");
    header_.ArmyImages = Read("ARMY", "images");
    header_.ArmyTypeText = Read("ARMY", "type");
    army_.Management.ArmyName.Text = Read("ARMY", "name");
  }

  bool LoadCatalogs() {
    LoadBaseArmy(army_, disk_, host_);
    if (army_.TotUnits == 0) {
      host_.Message("The army type [" + army_.BaseArmyName + "] is not present in armylist.dat" +
                    std::string(CrLf) + "This army cannot be edited");
      return false;
    }
    ReadImageCatalog(work_, disk_);
    return true;
  }

  bool LoadUnits() {
    army_.NumUnits = LenientInt16(Read("ARMY", "numunits"));
    army_.FootUnits = 0;
    army_.MountedUnits = 0;
    work_.Field.Setup.unitList.Clear();
    for (Int16 k = 1; k <= army_.NumUnits; ++k) {
      if (!LoadUnit(k)) return false;
    }
    return true;
  }

  bool LoadUnit(Int16 k) {
    const std::string line = Read("ARMY", RowKey("unit", k));
    const auto row = FindRow(line);
    if (!row) {
      host_.Message("Unit number " + NumberText(k) + " not found in " + AnsiFromPath(file_));
      return false;
    }
    UnitRec& unit = army_.BaseUnits[*row];
    ++unit.Bought;
    army_.PointsSpent += unit.Cost;
    // By the class, not by the type as in the grid: nothing shows the counts that could mislead.
    ++(MountedKind(army_, disk_, unit.UnitClass, *row) == mounted ? army_.MountedUnits
                                                                  : army_.FootUnits);
    const std::string picture = GetField(line, 6);
    const auto image = FindImage(picture);
    if (!image) {
      host_.Message("No image match for unit " + NumberText(k) + " (" + picture + ")");
      return false;
    }
    unit.ChosenImageIdx = *image;
    return true;
  }

  /// The first row that the unit line is of.
  std::optional<Int16> FindRow(const std::string& line) const {
    const UnitRec wanted = ParseIdentity(line);
    for (Int16 r = 1;; ++r) {
      const UnitRec& unit = army_.BaseUnits[r];
      // The search ends on the row behind the last one; a full table has none.
      if (r > army_.TotUnits) return std::nullopt;
      if (SameIdentity(unit, wanted)) return r;
    }
  }

  std::optional<Int16> FindImage(const std::string& id) const {
    for (Int16 j = 1; j <= army_.Catalog.TotImages; ++j) {
      if (army_.Catalog.Images[j].Id == id) return j;
    }
    return std::nullopt;
  }

  void LoadLeader() {
    const std::string name = Read("LEADER", "name");
    for (Int16 i = 0; i < army_.LeaderCount; ++i) {
      if (name.starts_with(GetField(army_.Command.LeaderName[i].Caption, 1, " "))) {
        TakeLeader(i);
        return;
      }
    }
    if (army_.LeaderCount > 10) return;
    const Int16 index = army_.LeaderCount;
    const double initiative = LenientNumber(Read("LEADER", "initiative"));
    const Int16 command = LenientInt16(Read("LEADER", "command"));
    army_.Leaders[index] = {name, NumberText(initiative), command,
                            LeaderCost(RoundToInt16(initiative), command)};
    ++army_.LeaderCount;
    ShowLeader(army_, index);
    TakeLeader(index);
  }

  /// Ticking the option is a click on it, which pays for the leader.
  void TakeLeader(Int16 index) {
    TickOption(army_.Command.LeaderName, index);
    LeaderName_Click(army_, host_, index);
    army_.SelectedLeader = index;
  }

  void LoadCards() {
    CommandPanel& panel = army_.Command;
    for (const std::string_view card : knownCards) {
      const Int16 bought = LenientInt16(Read("ARMY", LowerCase(card)));
      Int16 j;
      while (j < army_.TotSpecial && panel.SpecNameLabel[j].Caption != card)
        ++j;
      if (j == army_.TotSpecial) continue;
      panel.SpecBuy[j].Text = NumberText(bought);
      panel.SpecBuy[j].Tag = NumberText(bought);
      army_.CommandPts -=
          RoundToInt16(bought.Value() * LenientNumber(panel.SpecCostLabel[j].Caption));
    }
  }

  WorkingArmy& work_;
  ArmyState& army_ = work_.Army;
  ArmyHeader& header_ = work_.Header;
  Disk& disk_;
  Host& host_;
  std::filesystem::path file_;
};

}  // namespace

bool LoadBtn_Click(WorkingArmy& work, Disk& disk, Host& host) {
  ResetArmyData(work, disk);
  TakeModule(work.Army);
  return LoadArmy(work, disk, host);
}

bool LoadArmy(WorkingArmy& work, Disk& disk, Host& host) {
  host.ShowArmyListForm();
  const std::string& name = work.Header.ArmyFile;
  if (name.empty()) return false;
  work.Army.Management.ArmyFileName.Text = name;
  const auto file = ArmyPath(disk.ModuleFolder(work.Army.BrakkaMode), name);
  return ArmyLoader(work, disk, host, file).Load();
}

}  // namespace tarnwick
