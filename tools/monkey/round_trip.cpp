// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "monkey/round_trip.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "armyfile/army_browser.h"
#include "armyfile/loading.h"
#include "armyfile/saving.h"
#include "armyfile/warnings.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"
#include "catalog/disk.h"
#include "monkey/kept.h"
#include "rules/special_cards.h"
#include "rules/unit_purchase.h"
#include "rules/verification.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// Agrees to everything, remembers what was said, and takes one army from the list.
class Clerk : public Host {
 public:
  Clerk(WorkingArmy& work, Disk& disk, std::string army = "")
      : work_(work), disk_(disk), army_(std::move(army)) {}

  std::string Said;  ///< last

  void Message(const std::string& text) override { Said = text; }
  bool Question(const std::string& /*text*/) override { return true; }
  void ShowArmyListForm() override {
    ArmyListForm form;
    FillArmyList(work_.Army, disk_, form);
    form.ArmyList.Select(army_);
    ShowArmyDetail(work_.Army, disk_, form);
    if (!SelectArmy(work_, disk_, *this, form))
      throw Lost("\"" + army_ + "\" is saved and cannot be chosen: " + Said);
  }
  void ShowArmySelectionForm() override {}
  void ShowLeaderMgmtForm() override {}
  void ShowSpecForm() override {}
  void ShowPicture(const fs::path& /*file*/) override {}
  std::string Today() override { return "2026-11-21"; }

 private:
  WorkingArmy& work_;
  Disk& disk_;
  std::string army_;
};

/// What checks a box of that name, or of that array, when it is left.
bool Refuses(const std::string& box, WorkingArmy& work, Disk& disk, Host& host) {
  const Int16 element = LenientInt16(GetField(box, 2, "("));
  const std::string name = GetField(box, 1, "(");
  if (name == "Buy") return Buy_Validate(work.Army, disk, host, element);
  if (name == "SpecBuy") return SpecBuy_Validate(work.Army, host, element);
  if (name == "FromData") return FromData_Validate(work.Header, host);
  return name == "ToData" && ToData_Validate(work.Header, host);
}

std::string FreePoints(const ArmyState& army) {
  return NumberText(army.PointsLeft) + " and " + NumberText(army.CommandPts);
}

/// The warning that stands in the window when a box cannot be left, or the army not be saved, or
/// not be loaded back.
std::string Warning(const WorkingArmy& work, const Disk& disk) {
  const ArmyState& army = work.Army;
  for (std::string warning : {UnitsWarning(army, disk), CardsWarning(army),
                              FolderWarning(army, disk), BaseArmyWarning(army, disk)}) {
    if (!warning.empty()) return warning;
  }
  return "";
}

void ExpectSame(const std::vector<std::string>& before, const std::vector<std::string>& after) {
  const auto [was, is] = std::ranges::mismatch(before, after);
  if (was == before.end() && is == after.end()) return;
  throw Lost("\"" + (was == before.end() ? "" : *was) + "\" came back as \"" +
             (is == after.end() ? "" : *is) + "\"");
}

}  // namespace

void RoundTrip::CopyArmies() const {
  const auto moves = [](const fs::path& file) {
    return file.extension() == ".army" || file.filename() == ".army" ||
           file.extension() == ".setup";
  };
  for (const char* folder : {"", "brakka"}) {
    for (const auto& entry : fs::directory_iterator(copy_ / folder))
      if (moves(entry.path())) fs::remove(entry.path());
    for (const auto& entry : fs::directory_iterator(program_ / folder))
      if (moves(entry.path())) fs::copy(entry.path(), copy_ / folder);
  }
}

/// The army that was saved last under the name of `saved`.
WorkingArmy RoundTrip::Load(const WorkingArmy& saved) const {
  WorkingArmy work;
  Disk disk(copy_);
  Clerk clerk(work, disk, saved.Army.Management.ArmyFileName.Text);
  Form_Load(work, disk);
  TickOption(work.Army.Management.modOption, saved.Army.BrakkaMode ? 1 : 0);
  modOption_Click(work, disk);
  if (!LoadBtn_Click(work, disk, clerk)) throw Lost("is saved and cannot be loaded: " + clerk.Said);
  return work;
}

/// Saves it whether it verifies or not, and returns what verification said.
std::string RoundTrip::Save(WorkingArmy work) const {
  Disk disk(copy_);
  Clerk clerk(work, disk);
  std::string refused = VerifyArmy(work.Army, clerk, false) ? "" : clerk.Said;
  work.Army.TotLimits = 0;
  if (!SaveArmy(work, disk, clerk)) throw Lost("is not saved: " + clerk.Said);
  return refused;
}

std::string RoundTrip::Try(WorkingArmy work, const std::string& focus) const {
  CopyArmies();
  Disk disk(copy_);
  work.Army.ArmyListFile = disk.ModuleFolder(work.Army.BrakkaMode) / "armylist.dat";
  Clerk clerk(work, disk);
  std::string warning = Warning(work, disk);
  if (!warning.empty()) return warning;
  if (Refuses(focus, work, disk, clerk)) return clerk.Said;
  if (work.Army.SelectedLeader == -1) {
    return SaveArmy(work, disk, clerk) ? throw Lost("is saved without a leader") : clerk.Said;
  }
  const std::vector<std::string> setups = SetupLines(disk);
  std::string refused = Save(work);
  const WorkingArmy back = Load(work);
  ExpectSame(KeptLines(work, disk), KeptLines(back, disk));
  if (SetupWarning(work).empty()) {
    std::vector<std::string> loaded = SetupLines(disk);
    // The second module adds to the setups that the file has had.
    const auto older = [&](const auto& line) { return std::ranges::count(setups, line) == 0; };
    if (work.Army.BrakkaMode) std::erase_if(loaded, older);
    ExpectSame(setups, loaded);
  }
  ExpectSame({ExpectedPoints(back, disk)}, {FreePoints(back.Army)});
  Save(back);
  if (Load(work) != back) throw Lost("comes back another when it is saved and loaded again");
  return refused;
}

}  // namespace tarnwick
