// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// Names that hold each byte from 1 to 255: of base army, unit, leader, picture, army and file.

#include <string>
#include <string_view>

#include "apart.h"
#include "desk.h"
#include "handling.h"
#include "program_folder.h"
#include "rules/leaders.h"
#include "rules/unit_purchase.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// Those that end a line, a field, a section's name or a folder's, or stand for a line break.
constexpr std::string_view notCarried = "\n\r,]/\\@";

void LayCatalogs(const fs::path& folder, const std::string& name) {
  fs::remove_all(folder);
  WriteFile(folder / "armylist.dat",
            "[Armies]\r\ntotal=1\r\nname1=" + name + "\r\n[" + name +
                "]\r\npoints=200\r\ncommand_pts=200\r\ntot_units=2\r\nunit1=HI,Old,5,4,,10,6,\r\n" +
                "unit2=HI," + name + ",5,4,,10,6,\r\ntot_leader=1\r\nleader1=" + name +
                ",7,1,120\r\n");
  WriteFile(folder / "images.dat",
            "[IMAGES]\r\ntotal=1\r\nimage1=" + name + ".svg,HI," + name + ",,Line\r\n");
}

/// Makes an army whose every text is `name`.
void Make(Desk& desk, const std::string& name) {
  desk.Start(name);
  ArmyState& army = desk.Work.Army;
  army.Units.Buy[1].Text = "2";
  static_cast<void>(BuyUnits(army, desk.Store, desk, 1));
  TickOption(army.Command.LeaderName, 0);
  LeaderName_Click(army, desk, 0);
  army.Management.ArmyName.Text = name;
  desk.Work.Header.ArmyDesc.Text = name;
  ArmyDesc_Change(desk.Work.Header);
}

/// What a reader of the file must find as it was.
std::string TextsOf(const Desk& desk) {
  const ArmyState& army = desk.Work.Army;
  std::string texts = army.BaseArmyName + "|" + army.Management.ArmyName.Text + "|" +
                      desk.Work.Header.ArmyDesc.Text + "|" + army.Leaders[army.SelectedLeader].Name;
  for (const UnitRec& unit : army.BaseUnits) {
    if (unit.Bought == 0) continue;
    texts += "|" + unit.UnitClass + army.Catalog.Images[unit.ChosenImageIdx].Id;
  }
  return texts;
}

/// Makes, saves, loads and saves again; all that was there must be there again.
std::string MakeAndLoad(const fs::path& folder, const std::string& name) {
  Desk desk(folder);
  Make(desk, name);
  Require(desk.Save(name), "not saved: " + desk.Told);
  const std::string texts = TextsOf(desk);
  const Contents written = ContentsOf(folder);
  Desk later(folder);
  Require(later.Load(name), "not loaded: " + later.Told);
  Require(TextsOf(later) == texts, "\"" + texts + "\" came back as \"" + TextsOf(later) + "\"");
  Require(later.Save(name), "not saved again: " + later.Told);
  Require(Difference(written, ContentsOf(folder)).empty(), "saved again, the file differs");
  return "carried";
}

/// The same where it need not come to its end.
std::string TryToMakeAndLoad(const fs::path& folder, const std::string& name) {
  Desk desk(folder);
  Make(desk, name);
  if (desk.Save(name)) Desk(folder).Load(name);
  return "not carried";
}

/// Armies with names that are no UTF-8 are listed, and say why they can't be loaded.
std::string BrowseRawNames(const fs::path& folder) {
  for (char byte = '\x80'; byte < 0; ++byte)
    WriteFile(folder / (std::string("a") + byte + "z.army"), "[ARMY]\r\nbase=x\r\n");
  Desk desk(folder);
  ArmyListForm form;
  FillArmyList(desk.Work.Army, desk.Store, form);
  Require(form.ArmyList.Entries.size() == 128, "not all armies are listed");
  for (const ListEntry& entry : form.ArmyList.Entries) {
    Require(!desk.Load(entry.Text) && desk.Work.Header.ArmyFile.empty(), "one was loaded");
    Require(desk.Told == "This army has not been created whit this editor", desk.Told);
  }
  return "";
}

}  // namespace

void HandleBytes(Handling& handling) {
  for (int byte = 1; byte <= 255; ++byte) {
    const std::string name = std::string("a") + static_cast<char>(byte) + "z";
    const bool carried = notCarried.find(static_cast<char>(byte)) == std::string_view::npos;
    LayCatalogs(handling.Folder, name);
    const Ending ending = LeadApart(
        [&] { return (carried ? MakeAndLoad : TryToMakeAndLoad)(handling.Folder, name); });
    const bool told = !carried && ending.Is(Ending::Kind::Told);
    handling.Count(carried ? "bytes carried" : "that files can't carry");
    if (ending.Is(Ending::Kind::Done) || told) continue;
    handling.Fault("byte " + std::to_string(byte) + ": " + ending.Said);
  }
  fs::remove_all(handling.Folder);
  const Ending ending = LeadApart([&] { return BrowseRawNames(handling.Folder); });
  handling.Count("file names that are no text", 128);
  if (!ending.Is(Ending::Kind::Done)) handling.Fault("file names that are no text: " + ending.Said);
}

}  // namespace tarnwick
