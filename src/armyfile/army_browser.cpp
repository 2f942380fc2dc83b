// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/army_browser.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "base/ansi.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

struct DetailLine {
  std::string_view Caption;
  std::string_view Section;
  std::string_view Key;
  bool Number = false;
};

constexpr std::array<DetailLine, 11> detailLines = {{{"Name: ", "ARMY", "name"},
                                                     {"Base: ", "ARMY", "base"},
                                                     {"Units: ", "ARMY", "numunits"},
                                                     {"Route %: ", "ARMY", "route", true},
                                                     {"Points: ", "ARMY", "points"},
                                                     {"TQ points: ", "ARMY", "TQ", true},
                                                     {"Rally cards: ", "ARMY", "rally"},
                                                     {"Flank cards: ", "ARMY", "flank"},
                                                     {"Leader: ", "LEADER", "name"},
                                                     {"  command: ", "LEADER", "command"},
                                                     {"  initiative: ", "LEADER", "initiative"}}};

Int16 VersionNumber(double major, double minor, double revision) {
  return RoundToInt16(major * 100 + minor * 10 + revision);
}

}  // namespace

void FillArmyList(const ArmyState& state, const Disk& disk, ArmyListForm& form) {
  form.BaseName = "";
  form.ArmyList.Clear();
  std::vector<std::pair<std::string, std::string>> names;  // folded for sorting, as it is
  std::error_code error;
  fs::directory_iterator file(disk.ModuleFolder(state.BrakkaMode), error);
  for (; file != fs::directory_iterator(); file.increment(error)) {
    if (!file->path().native().ends_with(armyEnding) || !FileExists(file->path())) continue;
    std::string name = AnsiFromPath(file->path().filename());
    if (name.find('\\') != std::string::npos) continue;  // would name a file in another folder
    name.resize(name.size() - armyEnding.size());
    std::string folded = LowerCase(name);
    names.emplace_back(std::move(folded), std::move(name));
  }
  std::sort(names.begin(), names.end());
  for (const auto& name : names)
    form.ArmyList.AddItem(name.second);
}

void ShowArmyDetail(const ArmyState& state, const Disk& disk, ArmyListForm& form) {
  if (!form.ArmyList.HasSelection()) return;
  const std::string name = form.ArmyList.Text();
  const fs::path file = ArmyPath(disk.ModuleFolder(state.BrakkaMode), name);
  std::string& text = form.ArmyDetailLabel.Caption;
  text = "";
  for (const auto& [caption, section, key, number] : detailLines) {
    const std::string value = disk.Files.ReadIniString(section, key, file);
    text.append(NL).append(caption).append(number ? NumberText(LenientNumber(value)) : value);
  }
  form.BaseName = disk.Files.ReadIniString("ARMY", "base", file);
  std::string required;
  if (!CheckArmyVersion(state, disk, name, required)) {
    text.append(NL).append(NL).append("*** Required editor version: ").append(required);
  }
}

bool CheckArmyVersion(const ArmyState& state, const Disk& disk, const std::string& name,
                      std::string& required) {
  const fs::path file = ArmyPath(disk.ProgramFolder, name);
  const std::string version = disk.Files.ReadIniString("EDITOR", "version", file);
  const auto field = [&version](int n) { return LenientNumber(GetField(version, n, ".")); };
  const Version& own = state.EditorVersion;
  const Int16 ownNumber = VersionNumber(own.Major.Value(), own.Minor.Value(), own.Revision.Value());
  if (VersionNumber(field(1), field(2), field(3)) <= ownNumber) return true;
  required = version;
  return false;
}

bool SelectArmy(WorkingArmy& work, const Disk& disk, Host& host, const ArmyListForm& form) {
  if (form.BaseName.empty()) {
    host.Message("This army has not been created whit this editor");
    return false;
  }
  if (!form.ArmyList.HasSelection()) {
    host.Message("Please select one army");
    return false;
  }
  std::string required;
  if (!CheckArmyVersion(work.Army, disk, form.ArmyList.Text(), required)) {
    host.Message("This army need version " + required + " or better");
    return false;
  }
  work.Header.ArmyFile = form.ArmyList.Text();
  return true;
}

void DelArmy_Click(const ArmyState& state, const Disk& disk, Host& host, ArmyListForm& form) {
  if (!form.ArmyList.HasSelection()) return;
  const std::string name = form.ArmyList.Text();
  if (!host.Question("Do You really want to delete the army " + name + " ?")) return;
  const fs::path file = ArmyPath(disk.ProgramFolder, name);
  std::error_code error;
  if (!FileExists(file) || !fs::remove(file, error)) {
    if (!error) error = std::make_error_code(std::errc::no_such_file_or_directory);
    throw FileError("File " + AnsiFromPath(file) + " cannot be deleted: " + error.message());
  }
  FillArmyList(state, disk, form);
}

}  // namespace tarnwick
