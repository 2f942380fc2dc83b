// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "monkey/life.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

#include "battlefield/setups.h"
#include "monkey/hands.h"
#include "monkey/round_trip.h"
#include "ui/editor.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr int longestLife = 500;  // steps

/// Below the folder of a life; what goes to "..", stays in it, too.
constexpr const char *program = "desk/program", *copy = "copy/program";

/// The ends that the window tells of before, and the errors that they have.
constexpr std::pair<const char*, const char*> toldEnds[] = {
    {"another leader ends the editor", "Subscript out of range"},
    {"Delete would end the editor", "cannot be deleted"},
    {"leaving the box ends the editor", "Overflow"},
    {"There is no folder", "cannot be written"}};

/// The catalogs look old: what was just written is read at every look.
void LayOut(const fs::path& data, const fs::path& folder) {
  fs::create_directories(folder.parent_path());
  fs::copy(data, folder, fs::copy_options::recursive);
  const auto stamp = fs::file_time_type::clock::now() - std::chrono::hours(1);
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    if (entry.is_regular_file()) fs::last_write_time(entry, stamp);
}

/// The editor ended with an error: as the window had said, or not.
void JudgeEnd(const Hands& hands, Journal& journal) {
  const bool told = std::ranges::any_of(toldEnds, [&](const auto& end) {
    return hands.Warnings().contains(end.first) && hands.End().contains(end.second);
  });
  journal.Write(told ? Entry::Told : Entry::Fault, hands.End().toStdString());
}

/// Saves and loads the army when it has changed.
class Trips {
 public:
  explicit Trips(const fs::path& folder) : trip_(folder / program, folder / copy) {}

  void Check(const Editor& editor, Journal& journal) {
    const QWidget* focus = editor.Form.focusWidget();
    State state{editor.Work, StoredScratch(editor.Store),
                focus != nullptr ? focus->objectName().toStdString() : ""};
    if (state_ == state) return;
    state_ = std::move(state);
    const std::string why = trip_.Try(state_->Work, state_->Focus);
    journal.Write(why.empty() ? Entry::CameBack : Entry::Refused, why);
  }

 private:
  struct State {
    WorkingArmy Work;
    std::optional<std::string> Setups;
    std::string Focus;
    bool operator==(const State&) const = default;
  };

  RoundTrip trip_;
  std::optional<State> state_;
};

}  // namespace

void Live(const Life& life, Journal& journal) {
  for (const char* place : {program, copy})
    LayOut(life.Data, life.Folder / place);
  Editor editor(life.Folder / program, life.Data / "../docs/guide");
  if (!editor.Form.Start()) throw std::runtime_error("The editor does not start");
  editor.Form.show();
  for (const std::string_view place : places)
    journal.WriteOnce(Entry::Known, std::string(place));
  Hands hands(editor.Form, journal, life.Seed);
  Trips trips(life.Folder);
  hands.Begin();
  using Clock = std::chrono::steady_clock;
  for (int left = longestLife; left > 0 && editor.Form.isVisible() && Clock::now() < life.Until;
       --left) {
    hands.Step();
    if (!hands.End().isEmpty()) return JudgeEnd(hands, journal);
    trips.Check(editor, journal);
  }
}

}  // namespace tarnwick
