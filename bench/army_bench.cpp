// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
// Loading and saving an army as large as can be, filling the browser, one keystroke in the
// description of a setup, and what undo adds to it. Run: build/release/bench/army_bench
// Aims: load and save under 10 ms each, the browser under 50 ms, the keystroke under 2 ms and with
// undo 0.3 ms more at the most, a step under 0.3 ms, 500 steps under 150 MB.

#include <chrono>
#include <filesystem>
#include <malloc.h>
#include <string>

#include <benchmark/benchmark.h>

#include "armyfile/army_browser.h"
#include "armyfile/history.h"
#include "armyfile/loading.h"
#include "armyfile/saving.h"
#include "battlefield/setups.h"
#include "quiet_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

constexpr int rows = 200;
/// An army of more than 327 units has a deck that the title can't count, so that it can't be shown.
constexpr int unitLines = 320;
constexpr int setups = 20;
constexpr int browsedFiles = 1000;

/// A user who loads the army "Large" and says OK to everything.
class LoadingHost : public QuietHost {
 public:
  explicit LoadingHost(WorkingArmy& work) : work_(work) {}
  bool Question(const std::string& /*text*/) override { return true; }
  void ShowArmyListForm() override { work_.Header.ArmyFile = "Large"; }

 private:
  WorkingArmy& work_;
};

std::string Row(int i) {
  return "HI,C" + std::to_string(i) + ",3,4,J";
}

/// Time stamps of a minute ago: no look-up has to doubt them.
void Age(const TempFolder& folder, const std::string& file) {
  std::filesystem::last_write_time(
      folder / file, std::filesystem::file_time_type::clock::now() - std::chrono::minutes(1));
}

void WriteCatalogs(const TempFolder& folder) {
  std::string army =
      "[Armies]\r\ntotal=1\r\nname1=Host\r\n[Host]\r\npoints=30000\r\ncommand_pts=500\r\n"
      "tot_leader=1\r\nleader1=Ana,7,1,120\r\ntot_limits=0\r\ntot_special=0\r\ntot_units=200\r\n";
  std::string images = "[IMAGES]\r\ntotal=200\r\n";
  for (int i = 1; i <= rows; ++i) {
    army += "unit" + std::to_string(i) + "=" + Row(i) + ",10,9,Line\r\n";
    images += "image" + std::to_string(i) + "=pictures/" + std::to_string(i) + ".svg,HI,C" +
              std::to_string(i) + ",J,Picture\r\n";
  }
  folder.Write("armylist.dat", army);
  folder.Write("images.dat", images);
  Age(folder, "armylist.dat");
  Age(folder, "images.dat");
}

void WriteArmy(const TempFolder& folder) {
  std::string army =
      "[EDITOR]\r\nversion=1.2.1\r\n\r\n[LEADER]\r\nname=Ana\r\n\r\n[ARMY]\r\nname=Large\r\n"
      "base=Host\r\n";
  for (int k = 1; k <= unitLines; ++k) {
    const int i = (k - 1) % rows + 1;
    army += "unit" + std::to_string(k) + "=" + Row(i) + ",pictures/" + std::to_string(i) +
            ".svg,Line\r\n";
  }
  army += "numunits=" + std::to_string(unitLines) + "\r\n";
  for (int n = 1; n <= setups; ++n) {
    army += "[SETUP " + std::to_string(n) + "]\r\ndescription=" + std::string(200, 'd') + "\r\n";
    for (int k = 1; k <= 9; ++k)
      army += "field" + std::to_string(k) + "=" + Row(k) + "\r\n";
  }
  folder.Write("Large.army", army);
  Age(folder, "Large.army");
}

/// The large army, loaded.
struct Desk {
  Desk() {
    WriteCatalogs(Folder);
    WriteArmy(Folder);
    Form_Load(Work, Store);
    LoadBtn_Click(Work, Store, Host);
    Work.Army.Management.ArmyFileName.Text = "Large";
  }

  TempFolder Folder;
  WorkingArmy Work;
  Disk Store{Folder.Path()};
  LoadingHost Host{Work};
};

void Load(benchmark::State& state) {
  Desk desk;
  for (auto _ : state)
    LoadBtn_Click(desk.Work, desk.Store, desk.Host);
  if (desk.Work.Army.PointsSpent != unitLines * 10) state.SkipWithError("not loaded");
}
BENCHMARK(Load)->Unit(benchmark::kMillisecond)->UseRealTime();

void Save(benchmark::State& state) {
  Desk desk;
  for (auto _ : state)
    SaveArmy(desk.Work, desk.Store, desk.Host);
  if (desk.Folder.Read("Large.army").find("[SETUP 20]") == std::string::npos) {
    state.SkipWithError("not saved");
  }
}
BENCHMARK(Save)->Unit(benchmark::kMillisecond)->UseRealTime();

void LoadJustSaved(benchmark::State& state) {
  Desk desk;
  for (auto _ : state) {
    state.PauseTiming();
    SaveArmy(desk.Work, desk.Store, desk.Host);
    state.ResumeTiming();
    LoadBtn_Click(desk.Work, desk.Store, desk.Host);
  }
}
BENCHMARK(LoadJustSaved)->Unit(benchmark::kMillisecond)->UseRealTime();

void FillBrowser(benchmark::State& state) {
  Desk desk;
  for (int i = 0; i < browsedFiles; ++i) {
    desk.Folder.Write("Army " + std::to_string(i * 7919 % browsedFiles) + ".army", "[ARMY]\r\n");
  }
  ArmyListForm form;
  for (auto _ : state)
    FillArmyList(desk.Work.Army, desk.Store, form);
  if (form.ArmyList.Entries.size() != browsedFiles + 1) state.SkipWithError("not listed");
}
BENCHMARK(FillBrowser)->Unit(benchmark::kMillisecond)->UseRealTime();

/// A desk with the description of a setup to type into.
struct SetupDesk : Desk {
  SetupDesk() {
    Work.Field.Setup.setupList.ListIndex = setups - 1;
    setupList_Click(Work.Field, Work.Army, Store);
    Past.EndEvent();
  }

  void Type() {
    Work.Field.Setup.description.Text = (odd_ = !odd_) ? "The horse" : "The horse on the wings";
    description_Change(Work.Field, Work.Army, Store);
  }

  History Past{Work, Store};

 private:
  bool odd_ = false;
};

void Keystroke(benchmark::State& state) {
  SetupDesk desk;
  for (auto _ : state)
    desk.Type();
}
BENCHMARK(Keystroke)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The same, as undo follows it; 0 makes each of them a step, with the last 500 kept.
void KeystrokeFollowed(benchmark::State& state) {
  SetupDesk desk;
  for (auto _ : state) {
    desk.Type();
    desk.Past.EndEvent(Step("Setup description"), static_cast<int>(state.range(0)));
  }
  if (desk.Past.UndoName().empty()) state.SkipWithError("no step");
}
BENCHMARK(KeystrokeFollowed)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond)->UseRealTime();

/// A step alone.
void KeepStep(benchmark::State& state) {
  SetupDesk desk;
  for (auto _ : state) {
    desk.Work.Army.PointsSpent = 3 - desk.Work.Army.PointsSpent;
    desk.Past.EndEvent(Step("Step"));
  }
}
BENCHMARK(KeepStep)->Unit(benchmark::kMillisecond)->UseRealTime();

void UndoAndRedo(benchmark::State& state) {
  SetupDesk desk;
  desk.Type();
  desk.Past.EndEvent(Step("Setup description"));
  for (auto _ : state) {
    desk.Past.Undo();
    desk.Past.Redo();
  }
}
BENCHMARK(UndoAndRedo)->Unit(benchmark::kMillisecond)->UseRealTime();

/// In a row, or with a look around after each.
void MemoryOf500Steps(benchmark::State& state) {
  constexpr double megabyte = 1e6;
  const auto used = [] {
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd);
  };
  for (auto _ : state) {
    SetupDesk desk;
    const double before = used();
    for (int i = 0; i < 500; ++i) {
      desk.Work.Army.PointsSpent = i % 2;
      desk.Past.EndEvent(Step("Step"));
      if (state.range(0) == 0) continue;
      ShowPanel(desk.Work.Army, Panel::Detail);
      desk.Past.EndEvent();
    }
    state.counters["MB"] = (used() - before) / megabyte;
  }
}
BENCHMARK(MemoryOf500Steps)
    ->Arg(0)
    ->Arg(1)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace tarnwick

BENCHMARK_MAIN();
