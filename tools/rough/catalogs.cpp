// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// Replaces catalogs under a running editor that has an army open.

#include <algorithm>
#include <array>
#include <csignal>
#include <random>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "apart.h"
#include "base/numbers.h"
#include "base/text.h"
#include "desk.h"
#include "handling.h"
#include "program_folder.h"
#include "rules/leaders.h"
#include "rules/unit_grid.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view sampleBase = "Carthage in Italy", otherBase = "Kingdom of Pontos";

// Ways to replace a catalog.

using Random = std::mt19937;

/// As most editors of text do.
void Rename(const fs::path& file, std::string_view text) {
  const fs::path beside = fs::path(file).concat("~");
  WriteFile(beside, text);
  fs::rename(beside, file);
}

/// "unit1=HI,,6" becomes "unit1=HI,,7".
std::string PlusOne(const std::string& line, std::string_view word, Int16 field) {
  if (!line.starts_with(word)) return line;
  std::string changed;
  for (Int16 i = 1; i < field; ++i)
    changed += GetField(line, i) + ",";
  changed += NumberText(LenientNumber(GetField(line, field)) + 1);
  for (Int16 i = field + 1; i <= 8; ++i)
    changed += "," + GetField(line, i);
  return changed;
}

/// Another version of the catalogs: all units, leaders and pictures have another cost or name.
std::string OtherVersion(const std::string& catalog) {
  std::string changed;
  for (std::size_t i = 0; i < catalog.size();) {
    const std::size_t end = std::min(catalog.find('\n', i), catalog.size() - 1) + 1;
    std::string line = catalog.substr(i, end - i);
    const std::size_t text = line.find_last_not_of("\r\n") + 1;
    const std::string ending = line.substr(text);
    line = PlusOne(PlusOne(line.substr(0, text), "unit", 6), "leader", 4);
    if (line.starts_with("points=")) line += "0";
    if (line.starts_with("image")) line += "!";
    changed += line + ending;
    i = end;
  }
  return changed;
}

std::string Swapped(const std::string& catalog) {
  const auto header = [](std::string_view name) { return "\n[" + std::string(name) + "]"; };
  std::string text = ReplaceText(header(sampleBase), "\n[]", catalog);
  text = ReplaceText(header(otherBase), header(sampleBase), text);
  return ReplaceText("\n[]", header(otherBase), text);
}

std::string Replace(const fs::path& file, Random& random) {
  const std::string text = ReadFile(file);
  switch (random() % 6) {
    case 0:
      Rename(file, OtherVersion(text));
      return "renamed over";
    case 1:
      WriteFile(file, OtherVersion(text));
      return "written in place";
    case 2:
      fs::resize_file(file, random() % text.size());
      return "cut in place";
    case 3:
      WriteFile(file, Swapped(text));
      return "with another army under the name";
    case 4:
      Rename(file, OtherVersion(text));
      fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(24));
      return "by an older file";
    default:
      fs::remove(file);
      return "deleted";
  }
}

// What an editor has of the catalogs.

/// The rows that are in use, by catalog and name of their kind.
using Rows = std::vector<std::string>;

Rows RowsOf(const ArmyState& state) {
  Rows rows = {"points " + NumberText(state.ArmyPoints)};
  for (Int16 i = 1; i <= state.TotUnits; ++i) {
    const UnitRec& unit = state.BaseUnits[i];
    rows.push_back("unit " + IdentityText(unit) + " " + NumberText(unit.Cost) + " " +
                   unit.SpecialsKey);
  }
  for (Int16 i = 1; i <= state.TotLimits; ++i)
    rows.push_back("limit " + state.Limits[i].TypeA + " " + NumberText(state.Limits[i].Minimum));
  for (Int16 i = 0; i < state.LeaderCount && !state.Leaders[i].Name.empty(); ++i)
    rows.push_back("leader " + LeaderText(state.Leaders[i]));
  for (Int16 i = 1; i <= state.Catalog.TotImages; ++i)
    rows.push_back("image " + state.Catalog.Images[i].Id + state.Catalog.Images[i].Name);
  return rows;
}

/// What the user is told last by a load, and by its run-time error.
std::string ToldAtLoad(Desk& desk) {
  try {
    desk.Told = "loaded";
    desk.Load(sampleArmy);
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return desk.Told;
}

/// Opens an army, gets another catalog, goes on with the army, and loads it again.
std::string LiveOn(const fs::path& folder, const char* catalog, Random& random) {
  Desk desk(folder);
  Require(desk.Load(sampleArmy), "not loaded: " + desk.Told);
  const Rows before = RowsOf(desk.Work.Army);
  std::string way = Replace(folder / catalog, random);
  TickOption(desk.Work.Army.Units.ViewOption, 1);
  ViewOption_Click(desk.Work.Army, desk.Store);
  Require(desk.Save(sampleArmy), way + ": not saved: " + desk.Told);
  Require(RowsOf(desk.Work.Army) == before, way + ": rows of the open army changed");
  const std::string told = ToldAtLoad(desk);
  Desk fresh(folder);
  Require(ToldAtLoad(fresh) == told, way + ": a fresh editor says something else than: " + told);
  Require(RowsOf(desk.Work.Army) == RowsOf(fresh.Work.Army),
          way + ": a fresh editor has other rows");
  return way;
}

// A catalog that is replaced again and again.

/// Renames two versions over the catalog in turn until it is killed.
pid_t StartRenaming(const fs::path& file) {
  const std::string versions[] = {ReadFile(file), OtherVersion(ReadFile(file))};
  const pid_t child = Fork();
  if (child != 0) return child;
  for (int i = 0;; ++i)
    Rename(file, versions[i % 2]);
}

/// Loads again and again; the rows must be those of one version each time.
std::string LoadAgainAndAgain(const fs::path& folder, const Rows& one, const Rows& two) {
  Desk desk(folder);
  constexpr int loads = 200;
  for (int i = 0; i < loads; ++i) {
    desk.Load(sampleArmy);
    const Rows rows = RowsOf(desk.Work.Army);
    Require(rows == one || rows == two, "rows of two versions are mixed");
  }
  return "";
}

void RaceWith(Handling& handling, const char* catalog) {
  LayFolder(handling.Data, handling.Folder, sampleArmy);
  const fs::path file = handling.Folder / catalog;
  const std::string text = ReadFile(file);
  Desk desk(handling.Folder);
  desk.Load(sampleArmy);
  const Rows one = RowsOf(desk.Work.Army);
  Rename(file, OtherVersion(text));
  desk.Load(sampleArmy);
  const Rows two = RowsOf(desk.Work.Army);
  if (one == two) handling.Fault(std::string(catalog) + ": its other version is not seen");
  Rename(file, text);
  const pid_t writer = StartRenaming(file);
  const Ending ending = LeadApart([&] { return LoadAgainAndAgain(handling.Folder, one, two); });
  kill(writer, SIGKILL);
  waitpid(writer, nullptr, 0);
  handling.Count("loads while it is replaced", 200);
  if (!ending.Is(Ending::Kind::Done)) {
    handling.Fault(std::string(catalog) + ", replaced while it is read: " + ending.Said);
  }
}

}  // namespace

void HandleCatalogs(Handling& handling) {
  constexpr std::array<const char*, 3> catalogs = {"armylist.dat", "images.dat", "specials.dat"};
  for (unsigned seed = handling.Seed; handling.HasTime(); ++seed) {
    if ((seed - handling.Seed) % 50 == 0) {
      for (const char* catalog : {"armylist.dat", "images.dat"})
        RaceWith(handling, catalog);
    }
    Random random(seed);
    const char* catalog = catalogs[random() % catalogs.size()];
    LayFolder(handling.Data, handling.Folder, sampleArmy);
    const Ending ending = LeadApart([&] { return LiveOn(handling.Folder, catalog, random); });
    handling.Count("catalogs replaced");
    if (ending.Is(Ending::Kind::Done)) continue;
    handling.Fault(std::string(catalog) + " " + ending.Said, seed);
  }
}

}  // namespace tarnwick
