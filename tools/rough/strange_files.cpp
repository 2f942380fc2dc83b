// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// Army files far larger than any army, and files of noise.

#include <algorithm>
#include <array>
#include <cstdio>
#include <random>
#include <string>
#include <string_view>

#include "apart.h"
#include "base/numbers.h"
#include "desk.h"
#include "handling.h"
#include "program_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t large = 100'000'000;
constexpr int million = 1'000'000;

// Ways to make an army file large that leave the army what it is.

std::string WithNotes(const std::string& army) {
  std::string text = army;
  text.reserve(large + 100);
  text += "\r\n[NOTES]\r\n";
  while (text.size() < large)
    text += "; no key of the army, though it looks like one: unit1=HI,,6,4,,pictures/x.svg\r\n";
  return text;
}

std::string WithLongLine(const std::string& army) {
  std::string text = "; ";
  text.append(large - army.size(), 'x');
  return text + "\r\n" + army;
}

std::string WithLongValue(const std::string& army) {
  return army + "\r\n[NOTES]\r\nnote=" + std::string(large - army.size(), '"') + "\r\n";
}

std::string WithKeys(const std::string& army) {
  std::string keys;
  for (int i = 1; i <= million; ++i)
    keys += "note" + std::to_string(i) + "=" + std::to_string(i) + "\r\n";
  std::string text = army;
  const std::string_view header = "[ARMY]\r\n";
  return text.insert(text.find(header) + header.size(), keys);
}

std::string WithSections(const std::string& army) {
  std::string text;
  for (int i = 1; i <= million; ++i)
    text += "[NOTE " + std::to_string(i) + "]\r\nnote=\r\n";
  return text + army;
}

struct Growth {
  const char* Name;
  std::string (*Grow)(const std::string&);
};

constexpr std::array<Growth, 5> growths = {{{"100 MB of lines", WithNotes},
                                            {"a line of 100 MB", WithLongLine},
                                            {"a value of 100 MB", WithLongValue},
                                            {"a million keys", WithKeys},
                                            {"a million sections", WithSections}}};

/// Looks at the army in the browser, loads and saves it.
Ending LoadAndSave(const fs::path& folder) {
  return LeadApart([&] {
    Desk desk(folder);
    Require(desk.Load(sampleArmy), "not loaded: " + desk.Told);
    Require(desk.Save(sampleArmy), "not saved: " + desk.Told);
    return desk.Told;
  });
}

// Files of noise.

using Random = std::mt19937;

std::size_t Below(std::size_t end, Random& random) {
  return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
}

std::string Noise(std::size_t size, Random& random) {
  std::string noise(size, 0);
  std::generate(noise.begin(), noise.end(), [&] { return static_cast<char>(random()); });
  return noise;
}

/// Noise alone, noise in places of the text, or nothing but a cut.
std::string Spoil(std::string text, Random& random) {
  switch (Below(4, random)) {
    case 0:
      return Noise(Below(200'000, random), random);
    case 1:
      for (std::size_t i = 1 + Below(40, random); i > 0; --i)
        text[Below(text.size(), random)] = static_cast<char>(random());
      return text;
    case 2:
      for (std::size_t i = 1 + Below(4, random); i > 0; --i)
        text.insert(Below(text.size(), random), Noise(Below(2'000, random), random));
      return text;
    default:
      return text.substr(0, Below(text.size(), random));
  }
}

constexpr std::array<const char*, 5> spoilt = {"Trebia.army", "Trebia.army", "armylist.dat",
                                               "images.dat", "specials.dat"};

/// Loads the army, saves it, starts another, and loads what was saved.
std::string Use(const fs::path& folder) {
  Desk desk(folder);
  desk.Load(sampleArmy);
  const bool saved = desk.Save(sampleArmy);
  desk.Start("Tribes of Gaul");
  Desk(folder).Load(sampleArmy);
  return saved ? "loaded and saved" : "refused and told";
}

/// Whether a file that noise was laid into, or beside, is what it was, or written by an editor.
bool IsWhole(const fs::path& file, const std::string& text, const std::string& before) {
  return text == before || (file == "Trebia.army" && text.starts_with("[EDITOR]\r\n")) ||
         file == "working.setup";
}

}  // namespace

void HandleLarge(Handling& handling) {
  LayFolder(handling.Data, handling.Folder, sampleArmy);
  const fs::path file = handling.Folder / "Trebia.army";
  const std::string army = ReadFile(file);
  LoadAndSave(handling.Folder);
  const std::string saved = ReadFile(file);
  for (const Growth& growth : growths) {
    WriteFile(file, growth.Grow(army));
    MakeOld(file);
    const Ending ending = LoadAndSave(handling.Folder);
    char note[100];
    std::snprintf(note, sizeof note, "%s in %.2f s and %ld MB", growth.Name, ending.Seconds,
                  ending.PeakMegabytes);
    handling.Note(note);
    const bool done = ending.Is(Ending::Kind::Done);
    if (!done) handling.Fault(std::string(growth.Name) + ": " + ending.Said);
    if (done && ReadFile(file) != saved) {
      handling.Fault(std::string(growth.Name) + ": saved again, the army differs");
    }
  }
}

void HandleNoise(Handling& handling) {
  double slowest = 0;
  for (unsigned seed = handling.Seed; handling.HasTime(); ++seed) {
    Random random(seed);
    LayFolder(handling.Data, handling.Folder, sampleArmy);
    const char* name = spoilt[Below(spoilt.size(), random)];
    const fs::path file = handling.Folder / name;
    const std::string noise = Spoil(ReadFile(file), random);
    WriteFile(file, noise);
    const Contents before = ContentsOf(handling.Folder);
    const Ending ending = LeadApart([&] { return Use(handling.Folder); });
    slowest = std::max(slowest, ending.Seconds);
    handling.Count("files");
    handling.Count(ending.Is(Ending::Kind::Told) ? "ended by an error that is told" : ending.Said);
    if (ending.Is(Ending::Kind::Fault)) handling.Fault(name + (": " + ending.Said), seed);
    if (ReadFile(file) != noise && file.extension() == ".dat")
      handling.Fault(name + std::string(" changed"), seed);
    for (const auto& [left, text] : ContentsOf(handling.Folder)) {
      const auto known = before.find(left);
      const bool whole = IsWhole(left, text, known != before.end() ? known->second : "");
      if (!whole) handling.Fault(left.string() + " is not whole", seed);
    }
  }
  char note[40];
  std::snprintf(note, sizeof note, "the slowest in %.2f s", slowest);
  handling.Note(note);
}

}  // namespace tarnwick
