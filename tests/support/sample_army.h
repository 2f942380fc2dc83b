// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "armyfile/loading.h"
#include "armyfile/saving.h"
#include "armyfile/working_army.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {

inline constexpr std::string_view sampleCatalog =
    "[Sample Army]\npoints=500\ncommand_pts=200\n"
    "tot_units=5\nunit1=HI,Vet,2.5,4,A,16,8,Line\nunit2=SK,,3,1,J,4,9,\nunit3=PH,,4.5,4,,20,3,\n"
    "unit4=EL,,5,4,,28,2,\nunit5=BI,,20000,4,,0,9,\n"
    "tot_leader=1\nleader1=Arcas of Tyre,7,2,150\n"
    "tot_special=4\nspecial1=RALLY,8,4\nspecial2=FLANK,2.5,4\nspecial3=CALTROP,5,5\n"
    "special4=\xC9LAN,4,4\n"
    "[Strict Army]\npoints=100\ncommand_pts=200\ntot_limits=1\nlimit1=HI,1\n"
    "tot_leader=1\nleader1=Milo,4,1,40\n";

inline constexpr std::string_view sampleImages =
    "[IMAGES]\ntotal=5\nimage1=pictures/vet.svg,HI,Vet,A,Veteran\n"
    "image2=pictures/sk one.svg,SK,,J,Javelin\nimage3=pictures/sk two.svg,SK,,J,Long javelin\n"
    "image4=pictures/ph.svg,PH,,,Pike\nimage5=pictures/bi.svg,BI,,,Band\n";

/// A started editor without its window, and its user.
struct Desk {
  explicit Desk(const std::filesystem::path& folder) : Store(folder) { Form_Load(Work, Store); }

  /// The user starts a new army; "" closes the dialog without a choice.
  void NewArmy(const std::string& base) {
    Host.OnArmySelectionForm = [this, base] { Work.Army.BaseArmyName = base; };
    NewArmyBtn_Click(Work, Store, Host);
  }

  /// The user loads an army; "" closes the browser without a choice.
  void Load(const std::string& name) {
    Host.OnArmyListForm = [this, name] { Work.Header.ArmyFile = name; };
    LoadBtn_Click(Work, Store, Host);
  }

  /// Saves, over what there is; what was said last comes back.
  std::string Save() {
    Host.Answers = {true};
    SaveArmy(Work, Store, Host);
    const Lines said = Host.Heard();
    return said.empty() ? "" : said.back();
  }

  void ChooseModule(int option) {
    TickOption(Work.Army.Management.modOption, option);
    modOption_Click(Work, Store);
  }

  FakeHost Host;
  Disk Store;
  WorkingArmy Work;
};

/// A folder with catalogs for both modules.
struct SampleFolder {
  SampleFolder() {
    for (const std::string module : {"", "brakka/"})
      Folder.Write(module + "armylist.dat", sampleCatalog);
    Folder.Write("images.dat", sampleImages);
    Folder.Write("brakka/images_brakka.dat", "[IMAGES]\ntotal=1\nimage1=troll.svg,SM,,,Troll\n");
  }

  TempFolder Folder;
};

struct SampleArmy : SampleFolder, Desk {
  SampleArmy() : Desk(Folder.Path()) {}
};

}  // namespace tarnwick
