// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// Kills an editor at random moments while it saves, and looks at what that left.

#include <array>
#include <csignal>
#include <map>
#include <random>
#include <set>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "apart.h"
#include "desk.h"
#include "handling.h"
#include "program_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// What is written when the editor is killed: which army, under which name, or its setup alone.
struct Scenario {
  bool Brakka;
  const char* Loaded;
  const char* Saved;
  bool SetupOnly = false;
};

constexpr std::array<Scenario, 4> scenarios = {{{false, "Trebia", "Trebia"},
                                                {false, "Trebia", "Copy"},
                                                {true, "Fenmoot", "Fenmoot"},
                                                {false, "Trebia", "Trebia", true}}};

/// An editor that saves two versions of an army in turn.
class Saver {
 public:
  Saver(const fs::path& folder, const Scenario& scenario)
      : scenario_(scenario), desk_(folder, scenario.Brakka) {
    loaded_ = desk_.Load(scenario.Loaded);
  }

  /// False when the user was told anything but that the army was saved.
  bool Save(bool second) {
    desk_.Change(second);
    return loaded_ && desk_.Save(scenario_.Saved) && desk_.Told == "Army Saved";
  }

  bool Write(bool second) {
    if (!scenario_.SetupOnly) return Save(second);
    desk_.ChangeSetup(second);
    return loaded_;
  }

 private:
  const Scenario& scenario_;
  Desk desk_;
  bool loaded_ = false;
};

using Versions = std::map<fs::path, std::set<std::string>>;

/// Runs an editor that writes again and again, and kills it after the time that `moment` (0 to 1)
/// of two times takes. False when it could not load or write.
bool WriteAndKill(const fs::path& folder, const Scenario& scenario, double moment) {
  int writes[2];  // a byte for each of the first
  if (pipe(writes) != 0) return false;
  const pid_t child = Fork();
  if (child == 0) {
    Saver saver(folder, scenario);
    for (int i = 0; saver.Write(i % 2 == 1); ++i) {
      if (i < 2 && write(writes[1], "", 1) != 1) break;
    }
    _exit(1);
  }
  close(writes[1]);
  char byte = 0;
  bool written = read(writes[0], &byte, 1) == 1;
  const auto first = Handling::Clock::now();
  written = read(writes[0], &byte, 1) == 1 && written;
  std::this_thread::sleep_for(2 * moment * (Handling::Clock::now() - first));
  close(writes[0]);
  kill(child, SIGKILL);
  int status = 0;
  waitpid(child, &status, 0);
  return written && WIFSIGNALED(status);
}

/// Looks for files that are none of their versions, or missing. Returns how many new files have
/// not come to their place.
int Look(Handling& handling, const Versions& whole, const std::string& when) {
  const Contents found = ContentsOf(handling.Folder);
  int left = 0;
  for (const auto& [file, text] : found) {
    const auto known = whole.find(file);
    if (known == whole.end()) {
      ++left;
    } else if (!known->second.contains(text)) {
      handling.Fault(when + ": " + file.string() + " is broken");
    }
  }
  for (const auto& [file, texts] : whole)
    if (!found.contains(file)) handling.Fault(when + ": " + file.string() + " is gone");
  return left;
}

std::string NameOf(const Scenario& scenario) {
  if (scenario.SetupOnly) return std::string("a setup of ") + scenario.Loaded;
  return std::string(scenario.Loaded) + " saved as " + scenario.Saved;
}

/// Lays the folder and returns both versions of each file in it.
Versions PrepareVersions(Handling& handling, const Scenario& scenario) {
  LayFolder(handling.Data, handling.Folder, scenario.Loaded);
  Versions whole;
  for (const bool second : {true, false}) {
    if (!Saver(handling.Folder, scenario).Save(second)) handling.Fault("No save goes through");
    for (const auto& [file, text] : ContentsOf(handling.Folder))
      whole[file].insert(text);
  }
  return whole;
}

}  // namespace

void HandleKills(Handling& handling) {
  std::mt19937 random(handling.Seed);
  std::uniform_real_distribution<> moment(0, 1);
  constexpr int turn = 10;
  for (std::size_t i = 0; handling.HasTime(); i = (i + 1) % scenarios.size()) {
    const Scenario& scenario = scenarios[i];
    const Versions whole = PrepareVersions(handling, scenario);
    for (int kills = 0; kills < turn && handling.HasTime(); ++kills) {
      if (!WriteAndKill(handling.Folder, scenario, moment(random))) {
        handling.Fault(NameOf(scenario) + ": the editor did not load or write");
      }
      handling.Count(scenario.SetupOnly ? "kills in a setup" : "kills in a save");
      handling.Count("new files left behind", Look(handling, whole, NameOf(scenario) + ", killed"));
    }
    if (!Saver(handling.Folder, scenario).Save(false)) {
      handling.Fault(NameOf(scenario) + ": no save goes through after the kills");
    }
    handling.Count("of them still after the next save",
                   Look(handling, whole, NameOf(scenario) + ", saved after the kills"));
  }
}

}  // namespace tarnwick
