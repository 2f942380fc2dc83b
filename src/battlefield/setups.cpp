// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "battlefield/setups.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "base/ansi.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"
#include "catalog/profile_files.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr int mostSetups = 20;  ///< that an army file can hold
constexpr int places = 9;

/// How a line break of a description is stored.
constexpr std::string_view storedLineBreak = "\\n";

fs::path ScratchFile(const Disk& disk) {
  return disk.ScratchFolder / "working.setup";
}

std::string SectionOf(Int16 number) {
  return "SETUP " + NumberText(number);
}

/// The setups 1 to 20 of a file that have a description, every key as it is stored.
std::vector<ProfileText::Entry> StoredSetups(const ProfileFiles& files, const fs::path& file) {
  std::vector<ProfileText::Entry> entries;
  for (Int16 n = 1; n <= mostSetups; ++n) {
    const std::string section = SectionOf(n);
    const auto add = [&](const std::string& key) {
      entries.push_back({section, key, files.ReadIniString(section, key, file)});
    };
    add("description");
    if (entries.back().Value.empty()) {
      entries.pop_back();
      continue;
    }
    for (Int16 k = 1; k <= places; ++k)
      add(RowKey("field", k));
  }
  return entries;
}

}  // namespace

void LoadSetupsFromArmy(Battlefield& field, Disk& disk, const fs::path& army) {
  const fs::path scratch = ScratchFile(disk);
  if (FileExists(scratch)) {
    std::error_code error;
    if (!fs::remove(scratch, error)) {
      throw FileError("File " + AnsiFromPath(scratch) + " cannot be deleted: " + error.message());
    }
  }
  field.Setup.setupList.Clear();
  const auto entries = StoredSetups(disk.Files, army);
  for (const auto& entry : entries) {
    if (entry.Key == "description") {
      field.Setup.setupList.AddItem(GetField(entry.Section, 2, " "));
    }
  }
  if (!entries.empty()) disk.Files.WriteIniStrings(entries, scratch);
}

void CopySetupsToArmy(const Disk& disk, PendingFiles& files, const fs::path& army) {
  const auto entries = StoredSetups(disk.Files, ScratchFile(disk));
  if (!entries.empty()) files.WriteIniStrings(entries, army);
}

std::optional<std::string> StoredScratch(const Disk& disk) {
  return disk.Files.Bytes(ScratchFile(disk));
}

void RestoreScratch(const Disk& disk, const std::optional<std::string>& bytes) {
  if (bytes == StoredScratch(disk)) return;
  try {
    if (bytes) {
      ReplaceFile(ScratchFile(disk), *bytes, Durability::Scratch);
    } else {
      std::error_code ignored;
      fs::remove(ScratchFile(disk), ignored);
    }
  } catch (const FileError&) {  // as with every edit of a setup
  }
}

StoredSetup ReadSetup(const Disk& disk, Int16 number) {
  const auto read = [&](const std::string& key) {
    return disk.Files.ReadIniString(SectionOf(number), key, ScratchFile(disk));
  };
  StoredSetup setup = {number, ReplaceText(storedLineBreak, CrLf, Trim(read("description"))), {}};
  for (Int16 k; std::string & unit : setup.Units)
    unit = read(RowKey("field", ++k));
  return setup;
}

void LoadSetup(Battlefield& field, const ArmyState& state, const Disk& disk, Int16 number) {
  SetupPanel& panel = field.Setup;
  const StoredSetup setup = ReadSetup(disk, number);
  panel.description.Text = setup.Description;
  for (int i = 0; Label & place : panel.unit)
    place.Caption = setup.Units.at(static_cast<std::size_t>(i++));
  panel.setupFramePanel.Visible = true;
  FillDeployList(field, state);
}

void SaveSetup(const Battlefield& field, const ArmyState& state, Disk& disk) {
  std::string text = ReplaceText(CrLf, storedLineBreak, Trim(field.Setup.description.Text));
  // A setup without a description would not exist.
  if (text.empty()) text = "<new setup>";
  if (state.SetupLoading) return;
  const std::string section = SectionOf(field.CurrentSetup);
  std::vector<ProfileText::Entry> entries = {{section, "description", text}};
  for (Int16 i = 0; i < places; ++i) {
    entries.push_back({section, RowKey("field", i + 1), field.Setup.unit[i].Caption});
  }
  disk.Files.WriteIniStrings(entries, ScratchFile(disk));
}

void FillDeployList(Battlefield& field, const ArmyState& state) {
  SetupPanel& panel = field.Setup;
  panel.unitList.Clear();
  const Int16 last = std::min(state.NumUnits, Int16(decltype(state.BaseUnits)::Last));
  for (Int16 r = 1; r <= last; ++r) {
    if (state.BaseUnits[r].UnitType.empty()) continue;
    const std::string text = IdentityText(state.BaseUnits[r]);
    const bool deployed = std::any_of(panel.unit.begin(), panel.unit.end(),
                                      [&](const Label& place) { return place.Caption == text; });
    if (!deployed) panel.unitList.AddItem(text);
  }
}

void setupList_Click(Battlefield& field, const ArmyState& state, const Disk& disk) {
  if (!field.Setup.setupList.HasSelection()) return;
  field.CurrentSetup = LenientInt16(field.Setup.setupList.Text());
  LoadSetup(field, state, disk, field.CurrentSetup);
}

void description_Change(const Battlefield& field, const ArmyState& state, Disk& disk) {
  SaveSetup(field, state, disk);
}

void Command6_Click(Battlefield& field, const ArmyState& state, Disk& disk) {
  SetupPanel& panel = field.Setup;
  Int16 next;
  for (const ListEntry& entry : panel.setupList.Entries) {
    const Int16 number = LenientInt16(entry.Text);
    if (number >= next) next = number + 1;
  }
  if (next == 0) next = 1;
  field.CurrentSetup = next;
  panel.setupList.AddItem(NumberText(next));
  panel.setupList.ListIndex = static_cast<int>(panel.setupList.Entries.size()) - 1;
  panel.setupFramePanel.Visible = true;
  panel.description.Text = "New setup";
  description_Change(field, state, disk);
  for (Label& place : panel.unit)
    place.Caption = "";
  FillDeployList(field, state);
}

void Command3_Click(ArmyState& state) {
  ShowPanel(state, Panel::MonsterLaboratory);
}

int FirstFreePlace(const SetupPanel& panel) {
  for (int i = 0; i < places; ++i) {
    if (panel.unit[i].Caption.empty()) return i;
  }
  return -1;
}

void assignBtn_Click(Battlefield& field, const ArmyState& state, Disk& disk, Host& host,
                     Int16 place) {
  ListBox& list = field.Setup.unitList;
  std::string& unit = field.Setup.unit[place].Caption;
  if (list.HasSelection()) {
    const int selected = list.ListIndex;
    const std::string deployed = list.Text();
    if (!unit.empty()) list.AddItem(unit);
    unit = deployed;
    list.Entries.erase(list.Entries.begin() + selected);
    list.ListIndex = -1;
  } else if (!unit.empty()) {
    list.AddItem(unit);
    unit = "";
  } else {
    host.Message("Please select a unit");
  }
  SaveSetup(field, state, disk);
}

void ShowSetup_Click(Battlefield& field, ArmyState& state) {
  state.SetupLoading = true;
  field.Setup.setupFramePanel.Visible = false;
  state.SetupLoading = false;
  ShowPanel(state, Panel::Setup);
}

}  // namespace tarnwick
