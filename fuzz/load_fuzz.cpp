// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
// Loads the input as an army file, on a small catalog, and saves what came of it.

#include <cstdint>
#include <cstdlib>

#include "armyfile/saving.h"
#include "base/errors.h"
#include "loaded_input.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick;
  static const auto folder = MakeProgramFolder("load_fuzz");
  try {
    LoadedInput army(folder, {reinterpret_cast<const char*>(data), size});
    Int16 spent;
    for (const UnitRec& unit : army.Work.Army.BaseUnits)
      spent += unit.Bought * unit.Cost;
    if (army.Work.Army.PointsSpent != spent) std::abort();
    SaveArmy(army.Work, army.Store, army.User);
  } catch (const RuntimeError&) {
    // The window names it and ends the program.
  }
  return 0;
}
