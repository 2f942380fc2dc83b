// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// Takes the program folder, or the right to write in it, from an editor that has an army open.

#include <array>

#include "apart.h"
#include "desk.h"
#include "handling.h"
#include "program_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

// What happens.

constexpr fs::perms writing =
    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

void Protect(const fs::path& path) {
  fs::permissions(path, writing, fs::perm_options::remove);
}

void Lock(const fs::path& path) {
  fs::permissions(path, fs::perms::none);
}

void Remove(const fs::path& path) {
  fs::remove_all(path);
}

// What the user does then.

void Save(Desk& desk) {
  desk.Change(true);
  static_cast<void>(desk.Save(sampleArmy));
}

void Setup(Desk& desk) {
  desk.ChangeSetup(true);
}

void Load(Desk& desk) {
  desk.Load(sampleArmy);
}

void Delete(Desk& desk) {
  desk.Delete(sampleArmy);
}

void Start(Desk& desk) {
  desk.Start("Tribes of Gaul");
}

struct Deed {
  const char* Name;
  void (*Do)(Desk&);
};

constexpr std::array<Deed, 5> deeds = {
    {{"save", Save}, {"setup", Setup}, {"load", Load}, {"delete", Delete}, {"new army", Start}}};

// How the last thing ends that the user is told. The first two end the program.

constexpr const char* denied = ": Permission denied";
constexpr const char* missing = "cannot be written: No such file or directory";
constexpr const char* quiet = "";
constexpr const char* noArmy = "This army cannot be edited";
constexpr const char* armySaved = "Army Saved";
constexpr const char* choose = "Please select one army";

struct Closure {
  const char* Name;
  void (*Close)(const fs::path&);
  const char* What;  ///< of the folder; "" for all of it
  std::array<const char*, deeds.size()> Words;
};

// A file that is locked stays what the editor has read of it.
constexpr std::array<Closure, 8> closures = {{
    {"gone", Remove, "", {missing, quiet, noArmy, quiet, choose}},
    {"read-only", Protect, "", {denied, quiet, denied, denied, quiet}},
    {"locked", Lock, "", {denied, quiet, noArmy, quiet, choose}},
    {"read-only", Protect, "Trebia.army", {denied, quiet, quiet, quiet, quiet}},
    {"locked", Lock, "Trebia.army", {denied, quiet, quiet, quiet, quiet}},
    {"read-only", Protect, "working.setup", {armySaved, quiet, quiet, quiet, quiet}},
    {"locked", Lock, "working.setup", {armySaved, quiet, quiet, quiet, quiet}},
    {"locked", Lock, "armylist.dat", {armySaved, quiet, quiet, quiet, quiet}},
}};

bool EndsProgram(std::string_view words) {
  return words == denied || words == missing;
}

/// As an ordinary user: opens the army, loses folder or file, goes on.
Ending Live(const fs::path& folder, const Closure& closure, const Deed& deed) {
  return LeadApart([&] {
    BecomeOrdinary();
    Desk desk(folder);
    Require(desk.Load(sampleArmy), "the army can't be loaded");
    closure.Close(*closure.What != 0 ? folder / closure.What : folder);
    deed.Do(desk);
    return desk.Told;
  });
}

void Reopen(const fs::path& folder) {
  fs::permissions(folder, fs::perms::owner_all);
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    fs::permissions(entry.path(), fs::perms::owner_all);
}

/// What is not as it must be in a folder that is open again; "" for nothing.
std::string WhatIsWrong(const fs::path& folder, const Contents& before, const Closure& closure,
                        const Deed& deed) {
  if (closure.Close == Remove) return fs::exists(folder) ? "the folder is there again" : "";
  Reopen(folder);
  const Contents after = ContentsOf(folder);
  if (*closure.What == 0) return Difference(before, after);
  for (const auto& [file, text] : after)
    if (!before.contains(file)) return file.string() + " is left behind";
  if (deed.Do == Delete) return "";  // a file's own mode keeps nobody from deleting it
  if (before.contains(closure.What) && before.at(closure.What) != after.at(closure.What)) {
    return std::string(closure.What) + " was written";
  }
  Desk later(folder);
  return later.Load(sampleArmy) ? "" : "can't be loaded any more: " + later.Told;
}

void Try(Handling& handling, const Closure& closure, const Deed& deed, const char* words) {
  LayFolder(handling.Data, handling.Folder, sampleArmy);
  Desk(handling.Folder).Load(sampleArmy);  // which makes working.setup
  const Contents before = ContentsOf(handling.Folder);
  GiveToOrdinary(handling.Folder);
  const Ending ending = Live(handling.Folder, closure, deed);
  const auto how = EndsProgram(words) ? Ending::Kind::Told : Ending::Kind::Done;
  std::string wrong = WhatIsWrong(handling.Folder, before, closure, deed);
  const bool told = *words == 0 ? ending.Said.empty() : ending.Said.ends_with(words);
  if (!ending.Is(how) || !told) wrong = "\"" + ending.Said + "\" instead of \"" + words + "\"";
  handling.Count("closures");
  handling.Count(EndsProgram(words) ? "refused and told" : "as if nothing was there, or gone on");
  if (wrong.empty()) return;
  handling.Fault(std::string(*closure.What != 0 ? closure.What : "the folder") + " is " +
                 closure.Name + ", " + deed.Name + ": " + wrong);
}

}  // namespace

void HandleClosed(Handling& handling) {
  for (const Closure& closure : closures) {
    for (std::size_t i = 0; i < deeds.size(); ++i)
      Try(handling, closure, deeds[i], closure.Words[i]);
  }
}

}  // namespace tarnwick
