// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// Handles the editor roughly: in its files, by signals and through its folders; and counts what
// that breaks.

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>
#include <unistd.h>

#include "handling.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

struct Way {
  const char* Name;
  const char* What;
  void (*Handle)(Handling&);
};

// Those that need no more than a moment come first and leave their time to the others.
constexpr std::array<Way, 7> ways = {{
    {"bytes", "names with each byte from 1 to 255", HandleBytes},
    {"closed", "folder gone, folder or file read-only, as an ordinary user", HandleClosed},
    {"large", "army files of 100 MB and of a million keys", HandleLarge},
    {"full", "a limit on file size, as of a full disk", HandleFull},
    {"catalogs", "catalogs replaced while the editor runs", HandleCatalogs},
    {"noise", "army files of binary noise", HandleNoise},
    {"kills", "the editor killed while it saves", HandleKills},
}};

int ShowUsage() {
  std::fputs(
      "usage: rough DATA SECONDS [HANDLING [SEED]]\n"
      "  DATA      the folder of the shipped catalogs and armies\n"
      "  SECONDS   how long, for all handlings or the one named\n"
      "  SEED      for what is random, 1 unless given\n",
      stderr);
  for (const Way& way : ways)
    std::fprintf(stderr, "  %-9s %s\n", way.Name, way.What);
  return 2;
}

struct Order {
  fs::path Data;
  double Seconds = 0;
  std::string_view Only;
  unsigned Seed = 1;
};

/// Returns how many faults there were.
int Run(const Order& order, const Way& way, double seconds) {
  const auto start = Handling::Clock::now();
  const auto time =
      std::chrono::duration_cast<Handling::Clock::duration>(std::chrono::duration<double>(seconds));
  const fs::path folder = fs::temp_directory_path() / ("rough-" + std::to_string(getpid()));
  char again[4096];
  std::snprintf(again, sizeof again, "rough %s %.0f %s", order.Data.c_str(), seconds + 1, way.Name);
  Handling handling(again, order.Data, folder, start + time, order.Seed);
  try {
    way.Handle(handling);
  } catch (const std::exception& error) {
    handling.Fault(error.what());
  }
  fs::remove_all(folder);
  const double took = std::chrono::duration<double>(Handling::Clock::now() - start).count();
  std::printf("%-9s %5.1f s  %s\n", way.Name, took, handling.Line().c_str());
  std::fflush(stdout);
  return handling.Faults();
}

int RunAll(const Order& order) {
  const auto start = Handling::Clock::now();
  int faults = 0;
  std::size_t left = ways.size();
  for (const Way& way : ways) {
    const std::chrono::duration<double> gone = Handling::Clock::now() - start;
    const double share = (order.Seconds - gone.count()) / static_cast<double>(left--);
    const double atLeast = 1;  // so that none is left out
    if (order.Only.empty()) faults += Run(order, way, std::max(share, atLeast));
    if (order.Only == way.Name) faults += Run(order, way, order.Seconds);
  }
  return faults;
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  if (argc < 3 || argc > 5) return ShowUsage();
  Order order{argv[1], std::strtod(argv[2], nullptr), argc > 3 ? argv[3] : "", 1};
  if (argc > 4) order.Seed = static_cast<unsigned>(std::atoi(argv[4]));
  const bool known = order.Only.empty() || std::any_of(ways.begin(), ways.end(), [&](auto& way) {
                       return order.Only == way.Name;
                     });
  if (order.Seconds <= 0 || !known) return ShowUsage();
  return RunAll(order) == 0 ? 0 : 1;
}
