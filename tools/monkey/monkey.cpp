// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "monkey/monkey.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <exception>
#include <map>
#include <poll.h>
#include <set>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>

#include "monkey/hands.h"
#include "monkey/journal.h"
#include "monkey/life.h"
#include "ui/parts/application_style.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// A step that takes longer hangs.
constexpr int longestStep = 30'000;  // milliseconds
constexpr std::size_t shownSteps = 20;

/// What the journals of all lives say.
class Report {
 public:
  void Read(const std::string& line) {
    const auto entry = static_cast<Entry>(line.front());
    ++counts_[entry];
    const std::string text = line.substr(1);
    if (entry == Entry::Known) known_.insert(text);
    if (entry == Entry::Used) used_.insert(text);
    if (entry == Entry::Step) ++step_;
    if (entry == Entry::Step || entry == Entry::Seen) {
      last_.push_back(entry == Entry::Step ? std::to_string(step_) + " " + text : "    " + text);
      if (last_.size() > shownSteps) last_.pop_front();
    }
    if (entry == Entry::Told) ++told_[text];
    if (entry == Entry::Fault) ShowFault(text);
  }

  void Begin(unsigned seed) {
    seed_ = seed;
    step_ = 0;
    last_.clear();
  }

  void Fail(const std::string& reason) {
    ++counts_[Entry::Fault];
    ShowFault(reason);
  }

  int Faults() const { return Count(Entry::Fault); }

  void Print(unsigned firstSeed) const {
    const auto isPlace = [](const std::string& name) {
      return std::ranges::count(places, name) > 0;
    };
    const auto places = [&](const auto& names) { return std::ranges::count_if(names, isPlace); };
    const auto controls = [&](const auto& names) { return std::ssize(names) - places(names); };
    for (const auto& [end, times] : told_)
      std::printf("told %d times: %s\n", times, end.c_str());
    std::string unused;
    for (const std::string& name : known_)
      if (!used_.contains(name)) unused += " " + name;
    if (!unused.empty()) std::printf("never used:%s\n", unused.c_str());
    std::printf(
        "monkey: %d steps, seeds %u to %u, %td of %td panels and dialogs, %td of %td controls; "
        "%d saved and came back, %d said why not; %d ends that were told, %d others\n",
        Count(Entry::Step), firstSeed, seed_, places(used_), places(known_), controls(used_),
        controls(known_), Count(Entry::CameBack), Count(Entry::Refused), Count(Entry::Told),
        Faults());
  }

 private:
  int Count(Entry entry) const {
    const auto found = counts_.find(entry);
    return found != counts_.end() ? found->second : 0;
  }

  void ShowFault(const std::string& reason) const {
    std::printf("seed %u, step %d: %s\n", seed_, step_, reason.c_str());
    for (const std::string& step : last_)
      std::printf("  %s\n", step.c_str());
  }

  std::map<Entry, int> counts_;
  std::map<std::string, int> told_;
  std::set<std::string> known_, used_;
  std::deque<std::string> last_;
  unsigned seed_ = 0;
  int step_ = 0;
};

/// In a process of its own.
[[noreturn]] void LiveAndDie(const Life& life, int journalFile) {
  Journal journal(journalFile);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "*.warning=false");
  qputenv("QT_HASH_SEED", "0");
  qputenv("HOME", life.Folder.c_str());  // where it saves sheets
  char name[] = "monkey";
  char* arguments[] = {name, nullptr};
  int count = 1;
  {
    QApplication application(count, arguments);
    QApplication::setKeyboardInputInterval(-1);  // letters go to entries whatever the clock says
    ApplyStyle();
    try {
      Live(life, journal);
    } catch (const std::exception& error) {
      journal.Write(Entry::Fault, error.what());
    }
  }
  std::exit(0);
}

/// Reads what the process writes until it ends. False when nothing came for too long.
bool ReadJournal(int file, Report& report) {
  std::string line;
  char bytes[4096];
  for (pollfd waiting{file, POLLIN, 0}; poll(&waiting, 1, longestStep) > 0;) {
    const ssize_t size = read(file, bytes, sizeof bytes);
    if (size <= 0) return true;
    for (const char c : std::string_view(bytes, static_cast<std::size_t>(size))) {
      if (c != '\n') {
        line += c;
      } else if (!line.empty()) {
        report.Read(line);
        line.clear();
      }
    }
  }
  return false;
}

void Watch(const Life& life, Report& report) {
  int journal[2];
  if (pipe(journal) != 0) std::abort();
  std::fflush(stdout);
  const pid_t child = fork();
  if (child == 0) {
    close(journal[0]);
    LiveAndDie(life, journal[1]);
  }
  close(journal[1]);
  report.Begin(life.Seed);
  if (!ReadJournal(journal[0], report)) {
    kill(child, SIGKILL);
    report.Fail("it hangs");
  }
  close(journal[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (WIFSIGNALED(status) && WTERMSIG(status) != SIGKILL) {
    report.Fail("it dies of signal " + std::to_string(WTERMSIG(status)));
  } else if (WIFEXITED(status) && WEXITSTATUS(status) != 0) {
    report.Fail("it ends with status " + std::to_string(WEXITSTATUS(status)));
  }
}

}  // namespace

int RunMonkey(const fs::path& data, int seconds, unsigned seed) {
  const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
  const fs::path folder = fs::temp_directory_path() / ("monkey-" + std::to_string(getpid()));
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  Report report;
  unsigned next = seed;
  while (std::chrono::steady_clock::now() < until) {
    Watch({data, folder, next++, until}, report);
    fs::remove_all(folder);
  }
  report.Print(seed);
  return report.Faults();
}

}  // namespace tarnwick
