// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// Saves armies while no file may grow beyond a limit, as on a disk that has no more room.

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <random>
#include <stdexcept>
#include <sys/resource.h>
#include <system_error>
#include <vector>

#include "apart.h"
#include "desk.h"
#include "handling.h"
#include "program_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// An army that is saved.
struct Victim {
  bool Brakka;
  const char* Army;
  fs::path File;
};

/// No file of this process grows beyond so many bytes any more.
void LimitFiles(rlim_t bytes) {
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{bytes, bytes};
  if (setrlimit(RLIMIT_FSIZE, &limit) != 0) {
    throw std::system_error(errno, std::generic_category());
  }
}

/// Writes the setup and saves the army, in a process of its own.
Ending ChangeAndSave(const fs::path& folder, const Victim& victim, rlim_t limit) {
  return LeadApart([&] {
    Desk desk(folder, victim.Brakka);
    Require(desk.Load(victim.Army), "can't be loaded");
    LimitFiles(limit);
    desk.Change(true);
    Require(desk.Save(victim.Army), "can't be saved: " + desk.Told);
    return desk.Told;
  });
}

/// The limits to try, those first that matter most.
std::vector<rlim_t> LimitsUpTo(rlim_t size, unsigned seed) {
  std::vector<rlim_t> limits = {0, 1, size - 1, size};
  for (rlim_t limit = 2; limit < size - 1; ++limit)
    limits.push_back(limit);
  std::shuffle(limits.begin() + 4, limits.end(), std::mt19937(seed));
  return limits;
}

/// An army before and after it was changed and saved, and what a limit on the way may leave.
class FullDisk {
 public:
  FullDisk(Handling& handling, Victim victim)
      : handling_(handling), victim_(std::move(victim)), folder_(handling.Folder / victim_.Army) {
    LayFolder(handling.Data, folder_, victim_.Army);
    Desk desk(folder_, victim_.Brakka);
    desk.Load(victim_.Army);
    desk.Change(false);
    desk.Save(victim_.Army);
    desk.Load(victim_.Army);  // which makes working.setup anew
    before_ = ContentsOf(folder_);
    ChangeAndSave(folder_, victim_, RLIM_INFINITY);
    after_ = ContentsOf(folder_);
    if (!after_.contains(victim_.File)) throw std::runtime_error("no save goes through");
    for (const auto& [file, text] : after_)
      largest_ = std::max(largest_, rlim_t(text.size()));
  }

  std::vector<rlim_t> Limits() const { return LimitsUpTo(largest_, handling_.Seed); }

  void Try(rlim_t limit) {
    Restore(folder_, before_);
    const Ending ending = ChangeAndSave(folder_, victim_, limit);
    const Contents found = ContentsOf(folder_);
    const bool fits = Fits(victim_.File, limit);
    handling_.Count("saves");
    handling_.Count(fits ? "written" : "refused and told");
    std::string wrong = WhatIsWrong(ending, fits);
    for (const auto& [file, text] : found)
      if (wrong.empty()) wrong = WhatIsWrong(file, text, limit);
    if (wrong.empty() && found.size() != after_.size()) wrong = "a file is gone";
    if (wrong.empty()) return;
    handling_.Fault(std::string(victim_.Army) + " at " + std::to_string(limit) +
                    " bytes: " + wrong);
  }

 private:
  bool Fits(const fs::path& file, rlim_t limit) const { return after_.at(file).size() <= limit; }

  static std::string WhatIsWrong(const Ending& ending, bool fits) {
    const auto wanted = fits ? Ending::Kind::Done : Ending::Kind::Told;
    const char* words = fits ? "Army Saved" : "cannot be written: File too large";
    return ending.Is(wanted) && ending.Said.ends_with(words) ? "" : ending.Said;
  }

  /// Each file is the new one when it fits, else the old one; the army comes first, and without it
  /// only the setup is written. That a setup or the terrain can't be written is not told.
  std::string WhatIsWrong(const fs::path& file, const std::string& text, rlim_t limit) const {
    if (!after_.contains(file)) return file.string() + " is left behind";
    const std::string& after = after_.at(file);
    const auto before = before_.find(file);
    const bool old = before != before_.end() && text == before->second;
    const bool reached = Fits(victim_.File, limit) || file == "working.setup";
    const bool whole = reached && Fits(file, limit) ? text == after : old;
    return whole ? "" : file.string() + " is not whole";
  }

  Handling& handling_;
  Victim victim_;
  fs::path folder_;
  Contents before_, after_;
  rlim_t largest_ = 0;
};

}  // namespace

void HandleFull(Handling& handling) {
  std::array<FullDisk, 2> disks = {FullDisk(handling, {false, "Trebia", "Trebia.army"}),
                                   FullDisk(handling, {true, "Fenmoot", "brakka/Fenmoot.army"})};
  const auto trebia = disks[0].Limits(), fenmoot = disks[1].Limits();
  for (std::size_t i = 0; handling.HasTime() && i < std::max(trebia.size(), fenmoot.size()); ++i) {
    if (i < trebia.size()) disks[0].Try(trebia[i]);
    if (i < fenmoot.size()) disks[1].Try(fenmoot[i]);
  }
}

}  // namespace tarnwick
