// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// Reading a base army out of a large catalog: 2,000 armies of 200 units, about 20 MB.
//
//   build/release/bench/catalog_bench --benchmark_repetitions=15
//       --benchmark_enable_random_interleaving=true --benchmark_report_aggregates_only=true
//
// Aims: FirstLoad at most 1.5 times ReadAndLook; a call in ReadKeys under 2 microseconds.

#include <algorithm>
#include <chrono>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "large_catalog.h"
#include "quiet_host.h"
#include "rules/army_state.h"
#include "rules/base_army_loading.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr int armies = 2000;
constexpr int keysPerRun = 10000;

/// The program folder with the large catalog, made when it is first asked for.
const TempFolder& ProgramFolder() {
  static const TempFolder folder;
  static const bool made = [] {
    WriteCatalog(folder / "armylist.dat", armies);
    return true;
  }();
  benchmark::DoNotOptimize(made);
  return folder;
}

fs::path CatalogFile() {
  return ProgramFolder() / "armylist.dat";
}

std::unique_ptr<ArmyState> NewArmy() {
  auto army = std::make_unique<ArmyState>();
  InitializeVariables(*army, Disk(ProgramFolder().Path()));
  army->BaseArmyName = ArmyNameOf(armies);
  return army;
}

bool IsWhole(const ArmyState& army, const QuietHost& host) {
  const UnitRec& last = army.BaseUnits[unitRows];
  return host.Messages == 0 && army.TotUnits == unitRows && army.LeaderCount == 2 &&
         army.TotSpecial == 2 && last.UnitType == UnitRow(armies, unitRows).substr(0, 2) &&
         last.SpecialsKey.ends_with("Swordsmen" + std::to_string(armies % 90));
}

template <typename Work>
double SecondsOf(Work work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// The baseline: takes the file into memory and looks at each byte once. As with the loading,
/// giving the memory back is not in the time.
void ReadAndLook(benchmark::State& state) {
  const fs::path file = CatalogFile();
  for (auto _ : state) {
    std::unique_ptr<char[]> bytes;
    std::size_t size = 0;
    std::size_t lines = 0;
    state.SetIterationTime(SecondsOf([&] {
      std::ifstream in(file, std::ios::binary | std::ios::ate);
      size = static_cast<std::size_t>(in.tellg());
      bytes = std::make_unique_for_overwrite<char[]>(size);
      in.seekg(0);
      in.read(bytes.get(), static_cast<std::streamsize>(size));
      for (std::size_t i = 0; i < size; ++i)
        lines += bytes[i] == '\n' ? 1 : 0;
      benchmark::DoNotOptimize(lines);
    }));
    state.counters["MB"] = static_cast<double>(size) / 1e6;
    if (lines < static_cast<std::size_t>(armies) * unitRows) state.SkipWithError("not all read");
  }
}
BENCHMARK(ReadAndLook)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The file, which is in the page cache, has not been read before.
void FirstLoad(benchmark::State& state) {
  for (auto _ : state) {
    const auto army = NewArmy();
    const Disk disk(ProgramFolder().Path());
    QuietHost host;
    state.SetIterationTime(SecondsOf([&] { LoadBaseArmy(*army, disk, host); }));
    if (!IsWhole(*army, host)) state.SkipWithError("the army is not whole");
  }
}
BENCHMARK(FirstLoad)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The file has been read and is unchanged.
void NextLoad(benchmark::State& state) {
  const auto army = NewArmy();
  const Disk disk(ProgramFolder().Path());
  QuietHost host;
  LoadBaseArmy(*army, disk, host);
  for (auto _ : state)
    LoadBaseArmy(*army, disk, host);
  if (!IsWhole(*army, host)) state.SkipWithError("the army is not whole");
}
BENCHMARK(NextLoad)->UseRealTime()->Unit(benchmark::kMicrosecond);

/// Ten thousand different keys of an unchanged file in no order: all units of every 40th army.
void ReadKeys(benchmark::State& state) {
  std::vector<std::pair<std::string, std::string>> keys;
  keys.reserve(keysPerRun);
  for (int i = 0; i < keysPerRun; ++i) {
    keys.emplace_back(ArmyNameOf(1 + i / unitRows * 40), RowKey("unit", Int16(1 + i % unitRows)));
  }
  std::shuffle(keys.begin(), keys.end(), std::mt19937(20261121));
  const fs::path file = CatalogFile();
  const ProfileFiles files;
  const auto readAll = [&] {
    int found = 0;
    for (const auto& [section, key] : keys) {
      found += files.ReadIniString(section, key, file).empty() ? 0 : 1;
    }
    return found;
  };
  if (readAll() != keysPerRun) state.SkipWithError("a key is missing");
  for (auto _ : state)
    benchmark::DoNotOptimize(readAll());
  using benchmark::Counter;
  state.counters["s_per_call"] =
      Counter(keysPerRun, Counter::kIsIterationInvariantRate | Counter::kInvert);
}
BENCHMARK(ReadKeys)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick

BENCHMARK_MAIN();
