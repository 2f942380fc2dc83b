// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

namespace tarnwick {

inline constexpr int unitRows = 200;  ///< of each army

inline std::string ArmyNameOf(int army) {
  return "Host " + std::to_string(army) + " of the Long Wars";
}

inline std::string UnitRow(int army, int row) {
  const char* const types[] = {"HI", "MI", "LI", "SK", "HC", "LC", "EL", "PH"};
  return std::string(types[(army + row) % 8]) + ",Vet,6,4,J," + std::to_string(5 + row % 20) +
         ",8,Steadfast" + std::to_string(row % 40) + " Swordsmen" + std::to_string(army % 90);
}

inline std::string ArmySection(int army) {
  std::string text = "[" + ArmyNameOf(army) + "]\r\npoints=400\r\ncommand_pts=250\r\n";
  text += "tot_units=" + std::to_string(unitRows) + "\r\n";
  for (int row = 1; row <= unitRows; ++row) {
    text += "unit" + std::to_string(row) + "=" + UnitRow(army, row) + "\r\n";
  }
  text += "tot_limits=2\r\nlimit1=HI,4,\r\nlimit2=HI,1,Vet\r\n";
  text += "tot_leader=2\r\nleader1=The Old King,7,2,150\r\nleader2=His Brother,5,1,70\r\n";
  text += "tot_special=2\r\nspecial1=RALLY,8,4\r\nspecial2=FLANK,10,4\r\n\r\n";
  return text;
}

/// The profile reader does not trust the time stamp of a file that has only just changed.
inline void Age(const std::filesystem::path& file) {
  std::filesystem::last_write_time(
      file, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
}

/// A catalog of so many armies, of about 10 kB each.
inline void WriteCatalog(const std::filesystem::path& file, int armies) {
  std::ofstream out(file, std::ios::binary);
  out << "[Armies]\r\ntotal=" << armies << "\r\n";
  for (int army = 1; army <= armies; ++army)
    out << "name" << army << "=" << ArmyNameOf(army) << "\r\n";
  for (int army = 1; army <= armies; ++army)
    out << ArmySection(army);
  out.close();
  Age(file);
}

}  // namespace tarnwick
