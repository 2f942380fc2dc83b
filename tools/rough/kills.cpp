// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// Handles the editor roughly: kills it at random moments while it saves, starts it again on what
// that left, and counts what is broken.

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "armyfile/loading.h"
#include "armyfile/saving.h"
#include "armyfile/working_army.h"
#include "base/host.h"
#include "battlefield/setups.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// Which army is loaded, and under which name it is saved.
struct Scenario {
  bool Brakka;
  const char* Loaded;
  const char* Saved;
};

constexpr Scenario scenarios[] = {
    {false, "Trebia", "Trebia"}, {false, "Trebia", "Copy"}, {true, "Fenmoot", "Fenmoot"}};

/// A user who loads one army, agrees to everything and remembers what went wrong.
class Hurry : public Host {
 public:
  Hurry(WorkingArmy& work, const char* army) : work_(work), army_(army) {}

  bool Complained() const { return complained_; }

  void Message(const std::string& text) override { complained_ |= text != "Army Saved"; }
  bool Question(const std::string& /*text*/) override { return true; }
  void ShowArmyListForm() override { work_.Header.ArmyFile = army_; }
  void ShowArmySelectionForm() override {}
  void ShowLeaderMgmtForm() override {}
  void ShowSpecForm() override {}
  void ShowPicture(const fs::path& /*file*/) override {}
  std::string Today() override { return "2026-11-21"; }

 private:
  WorkingArmy& work_;
  const char* army_;
  bool complained_ = false;
};

/// An editor that saves two versions of an army in turn, which differ in every part of the file.
class Saver {
 public:
  Saver(const fs::path& folder, const Scenario& scenario)
      : disk_(folder), user_(work_, scenario.Loaded) {
    Form_Load(work_, disk_);
    TickOption(work_.Army.Management.modOption, scenario.Brakka ? 1 : 0);
    modOption_Click(work_, disk_);
    LoadBtn_Click(work_, disk_, user_);
    work_.Army.Management.ArmyFileName.Text = scenario.Saved;
    work_.Field.CurrentSetup = 1;
  }

  /// False when the user was told anything but that the army was saved.
  bool Save(bool second) {
    work_.Header.ArmyDesc.Text = std::string(second ? 200 : 20, second ? 'b' : 'a');
    ArmyDesc_Change(work_.Header);
    work_.Field.AreaTerrain[4] = second ? "WOOD" : "CLEAR";
    work_.Field.Setup.description.Text = work_.Header.ArmyDesc.Text;
    description_Change(work_.Field, work_.Army, disk_);
    SaveArmy(work_, disk_, user_);
    return !user_.Complained();
  }

 private:
  WorkingArmy work_;
  Disk disk_;
  Hurry user_;
};

using Contents = std::map<fs::path, std::set<std::string>>;

/// Adds what the folder holds; the catalogs are no part of the game.
void AddContents(const fs::path& folder, Contents& contents) {
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file() || entry.path().extension() == ".dat") continue;
    std::ifstream in(entry.path(), std::ios::binary);
    contents[entry.path()].emplace(std::istreambuf_iterator<char>(in),
                                   std::istreambuf_iterator<char>());
  }
}

/// Runs an editor that saves again and again, and kills it after the time that `moment` (0 to 1) of
/// two saves takes. False when it could not load or save.
bool SaveAndKill(const fs::path& folder, const Scenario& scenario, double moment) {
  int saves[2];  // a byte for each of the first
  if (pipe(saves) != 0) std::abort();
  const pid_t child = fork();
  if (child == 0) {
    Saver saver(folder, scenario);
    for (int i = 0; saver.Save(i % 2 == 1); ++i) {
      if (i < 2 && write(saves[1], "", 1) != 1) break;
    }
    _exit(1);
  }
  close(saves[1]);
  using Clock = std::chrono::steady_clock;
  char byte = 0;
  bool saved = read(saves[0], &byte, 1) == 1;
  const auto first = Clock::now();
  saved = read(saves[0], &byte, 1) == 1 && saved;
  std::this_thread::sleep_for(2 * moment * (Clock::now() - first));
  close(saves[0]);
  kill(child, SIGKILL);
  int status = 0;
  waitpid(child, &status, 0);
  return saved && WIFSIGNALED(status);
}

/// What of the folder is neither of the two versions, or is missing; new files that did not come
/// to their place are counted in `left`.
int CountBroken(const fs::path& folder, const Contents& whole, int& left) {
  Contents found;
  AddContents(folder, found);
  int broken = 0;
  for (const auto& [file, texts] : found) {
    const auto known = whole.find(file);
    if (known == whole.end()) {
      ++left;
    } else if (!known->second.contains(*texts.begin())) {
      std::printf("%s is broken\n", file.c_str());
      ++broken;
    }
  }
  for (const auto& [file, texts] : whole) {
    if (found.contains(file)) continue;
    std::printf("%s is gone\n", file.c_str());
    ++broken;
  }
  return broken;
}

int HandleRoughly(const fs::path& data, const fs::path& folder, const Scenario& scenario,
                  int kills) {
  fs::remove_all(folder);
  fs::create_directories(folder / "brakka");
  for (const auto& entry : fs::recursive_directory_iterator(data)) {
    const fs::path file = fs::relative(entry.path(), data);
    const bool wanted = file.extension() == ".dat" || file.stem() == scenario.Loaded;
    if (entry.is_regular_file() && wanted) fs::copy_file(entry.path(), folder / file);
  }
  Contents whole;
  for (const bool second : {true, false}) {
    if (!Saver(folder, scenario).Save(second)) return 1;
    AddContents(folder, whole);
  }
  std::mt19937 random(1);
  std::uniform_real_distribution<> moment(0, 1);
  int broken = 0;
  int left = 0;
  for (int i = 0; i < kills; ++i) {
    if (!SaveAndKill(folder, scenario, moment(random))) ++broken;
    broken += CountBroken(folder, whole, left);
  }
  int leftAtTheEnd = 0;
  if (!Saver(folder, scenario).Save(false)) ++broken;
  broken += CountBroken(folder, whole, leftAtTheEnd);
  std::printf("%s saved as %s: %d kills, %d broken, %d new files left behind, %d of them still\n",
              scenario.Loaded, scenario.Saved, kills, broken, left, leftAtTheEnd);
  return broken + leftAtTheEnd;
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  const int kills = argc == 3 ? std::atoi(argv[2]) : 0;
  if (kills <= 0) {
    std::fputs(
        "usage: rough DATA KILLS\n  DATA   the folder of the shipped catalogs and armies\n"
        "  KILLS  how often each way of saving is interrupted\n",
        stderr);
    return 2;
  }
  const fs::path folder = fs::temp_directory_path() / ("rough-" + std::to_string(getpid()));
  int broken = 0;
  for (const Scenario& scenario : scenarios)
    broken += HandleRoughly(argv[1], folder, scenario, kills);
  fs::remove_all(folder);
  return broken == 0 ? 0 : 1;
}
