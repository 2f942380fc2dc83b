// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

#include "armyfile/loading.h"
#include "base/host.h"

namespace tarnwick {

/// Writes a file that looks a minute old, so that no look-up has to read it again.
inline void WriteFile(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  std::filesystem::last_write_time(
      path, std::filesystem::file_time_type::clock::now() - std::chrono::minutes(1));
}

/// A program folder with small catalogs.
inline std::filesystem::path MakeProgramFolder(const std::string& name) {
  const auto folder =
      std::filesystem::temp_directory_path() / (name + std::to_string(getpid())) / "program";
  std::filesystem::create_directories(folder);
  WriteFile(folder / "armylist.dat",
            "[Armies]\r\ntotal=1\r\nname1=Host\r\n[Host]\r\npoints=200\r\ncommand_pts=200\r\n"
            "tot_units=4\r\nunit1=HI,,5,4,,10,6,\r\nunit2=HI,Vet,4.5,2,J,12,3,Old\r\n"
            "unit3=EL,,4,4,,30,2,Big\r\nunit4=SK,,3,1,A,4,9,\r\n"
            "tot_limits=1\r\nlimit1=HI,1,\r\ntot_leader=2\r\nleader1=Ana Prima,7,1,120\r\n"
            "leader2=Bel Secunda,4,1,40\r\ntot_special=4\r\nspecial1=RALLY,8,4\r\n"
            "special2=FLANK,6,3\r\nspecial3=MISSILE,5,3\r\nspecial4=CALTROP,4,3\r\n");
  WriteFile(folder / "images.dat",
            "[IMAGES]\r\ntotal=3\r\nimage1=a.svg,HI,,,Line\r\nimage2=b.svg,HI,Vet,J,Veteran\r\n"
            "image3=c.svg,EL,,,Elephant\r\n");
  return folder;
}

/// A user who picks the one army there is and says OK to everything.
class PickingHost : public Host {
 public:
  explicit PickingHost(WorkingArmy& work) : work_(work) {}

  void Message(const std::string& /*text*/) override {}
  bool Question(const std::string& /*text*/) override { return true; }
  void ShowArmySelectionForm() override {}
  void ShowArmyListForm() override { work_.Header.ArmyFile = "input"; }
  void ShowLeaderMgmtForm() override {}
  void ShowSpecForm() override {}
  void ShowPicture(const std::filesystem::path& /*file*/) override {}
  std::string Today() override { return "2026-11-21"; }

 private:
  WorkingArmy& work_;
};

/// An editor that has loaded the bytes as an army file.
struct LoadedInput {
  LoadedInput(const std::filesystem::path& folder, std::string_view bytes) : Store(folder) {
    WriteFile(folder / "input.army", bytes);
    Form_Load(Work, Store);
    LoadBtn_Click(Work, Store, User);
  }

  WorkingArmy Work;
  Disk Store;
  PickingHost User{Work};
};

}  // namespace tarnwick
