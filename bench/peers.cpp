// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// What the editor does with a catalog, done by other readers of such files as well, in files of 2,
// 20 and 200 MB: the first look-up of an army of 200 units, and one key written into the file when
// it has been read. The limits are to read the file, and to find its line ends besides.
//
//   TMPDIR=/dev/shm build/release/bench/peers [RUNS]
//
// Times are medians of one process in which the readers take turns; the files are in memory, so
// that no disk is measured. Memory is the peak of a process that looks up once. A reader that gets
// a text which is not the file's ends the run.

#include <INIReader.h>
#define SI_NO_CONVERSION  // the bytes as they are, like all others
#include <SimpleIni.h>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <glib.h>
#include <memory>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include <QSettings>

#include "catalog/profile_files.h"
#include "large_catalog.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using Text = const std::string&;
using Texts = std::vector<std::string>;

/// A file, and the section of it that is looked up.
struct File {
  fs::path Path;
  std::string Section;
};

/// A file in the hands of a reader; without Set it can't write.
struct Opened {
  std::function<std::string(Text key)> Get;
  std::function<bool(Text key, Text value)> Set;
};

/// The limits: takes the file into memory and gets the number of its bytes, or of its lines.
template <bool Pass>
Opened Limit(const File& file) {
  std::size_t size = 0;
  const auto capacity = fs::file_size(file.Path);
  const std::shared_ptr<char[]> bytes(new char[capacity]);  // make_shared would clear them
  const int in = open(file.Path.c_str(), O_RDONLY | O_CLOEXEC);
  while (const ssize_t taken = std::max<ssize_t>(read(in, bytes.get() + size, capacity - size), 0))
    size += static_cast<std::size_t>(taken);
  close(in);
  std::size_t lines = 0;
  std::string_view rest(bytes.get(), Pass ? size : 0);
  for (; const void* at = std::memchr(rest.data(), '\n', rest.size()); ++lines)
    rest.remove_prefix(static_cast<std::size_t>(static_cast<const char*>(at) - rest.data()) + 1);
  return {[bytes, result = Pass ? lines : size](Text) { return std::to_string(result); }, nullptr};
}

Opened TheEditor(const File& file) {
  const auto files = std::make_shared<ProfileFiles>();
  return {[=](Text key) { return files->ReadIniString(file.Section, key, file.Path); },
          [=](Text key, Text value) {
            return files->WriteIniString(file.Section, key, value, file.Path) != Int16(0);
          }};
}

Opened SimpleIni(const File& file) {
  const auto text = std::make_shared<CSimpleIniA>();
  text->LoadFile(file.Path.c_str());
  return {[=](Text key) { return text->GetValue(file.Section.c_str(), key.c_str(), ""); },
          [=](Text key, Text value) {
            text->SetValue(file.Section.c_str(), key.c_str(), value.c_str());
            return text->SaveFile(file.Path.c_str()) >= 0;
          }};
}

Opened Inih(const File& file) {
  const auto text = std::make_shared<INIReader>(file.Path.native());
  return {[=](Text key) { return text->Get(file.Section, key, ""); }, nullptr};
}

Opened KeyFile(const File& file) {
  const std::shared_ptr<GKeyFile> text(g_key_file_new(), g_key_file_unref);
  g_key_file_load_from_file(text.get(), file.Path.c_str(), G_KEY_FILE_KEEP_COMMENTS, nullptr);
  return {[=](Text key) {
            const std::unique_ptr<char, decltype(&g_free)> value(
                g_key_file_get_value(text.get(), file.Section.c_str(), key.c_str(), nullptr),
                g_free);
            return std::string(value != nullptr ? value.get() : "");
          },
          [=](Text key, Text value) {
            g_key_file_set_value(text.get(), file.Section.c_str(), key.c_str(), value.c_str());
            return g_key_file_save_to_file(text.get(), file.Path.c_str(), nullptr) != 0;
          }};
}

Opened Settings(const File& file) {
  const auto text =
      std::make_shared<QSettings>(QString::fromStdString(file.Path.native()), QSettings::IniFormat);
  text->beginGroup(QString::fromStdString(file.Section));
  return {[=](Text key) {  // a text with commas is a list to it
            const QStringList fields = text->value(QString::fromStdString(key)).toStringList();
            return fields.join(',').toStdString();
          },
          [=](Text key, Text value) {
            text->setValue(QString::fromStdString(key), QString::fromStdString(value));
            text->sync();
            return text->status() == QSettings::NoError;
          }};
}

/// What the file holds, from the text that it was made of.
Opened Truth(int army) {
  const std::string text = ArmySection(army);
  return {[=](Text key) {
            const std::size_t at = text.find("\n" + key + "=") + key.size() + 2;
            return text.substr(at, text.find('\r', at) - at);
          },
          nullptr};
}

struct {
  const char* Name;
  Opened (*Open)(const File&);
  bool IsLimit = false, Writes = true;
} constexpr contestants[] = {{"read alone", Limit<false>, true, false},
                             {"read, and look for line ends", Limit<true>, true, false},
                             {"the editor", TheEditor},
                             {"SimpleIni", SimpleIni},
                             {"inih", Inih, false, false},
                             {"GKeyFile", KeyFile},
                             {"QSettings", Settings}};
constexpr std::size_t readers = std::size(contestants);
using Figures = std::array<double, readers>;

void Require(bool right, const char* name) {
  if (right) return;
  std::fprintf(stderr, "%s: not what the file holds\n", name);
  std::exit(1);
}

/// What the editor asks for when a base army is chosen, in the same order.
Texts LookUp(const Opened& file) {
  Texts texts;
  const auto getRows = [&](Text count, Text word) {
    const int rows = std::atoi(texts.emplace_back(file.Get(count)).c_str());
    for (int row = 1; row <= rows; ++row)
      texts.push_back(file.Get(word + std::to_string(row)));
  };
  getRows("tot_leader", "leader");
  getRows("tot_limits", "limit");
  getRows("tot_special", "special");
  texts.push_back(file.Get("points"));
  texts.push_back(file.Get("command_pts"));
  getRows("tot_units", "unit");
  return texts;
}

double MillisecondsOf(const std::function<void()>& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begin;
  return taken.count();
}

/// A file of so many armies, the last of which is looked up.
class Contest {
 public:
  explicit Contest(int armies)
      : armies_(armies),
        file_{folder_ / "armylist.dat", ArmyNameOf(armies)},
        texts_(LookUp(Truth(armies))) {
    WriteCatalog(file_.Path, armies);
  }

  /// The peak in MB of a process that begins as small as this one is now.
  double Memory(std::size_t reader) const {
    const pid_t child = fork();
    if (child == 0) {
      contestants[reader].Open(file_).Get("points");
      std::_Exit(0);
    }
    int status = 0;
    rusage usage{};
    const bool ended = wait4(child, &status, 0, &usage) == child && status == 0;
    Require(ended, contestants[reader].Name);
    return static_cast<double>(usage.ru_maxrss) * 1024 / 1e6;
  }

  double LookUpTime(std::size_t reader) const {
    const auto& [name, open, isLimit, writes] = contestants[reader];
    const File fresh = Renamed(file_);
    Limit<false>(fresh);  // the first in turn, too, finds the file near
    Opened opened;        // to give the memory back is not in the time
    Texts texts;
    const double time = MillisecondsOf([&, open = open, isLimit = isLimit] {
      opened = open(fresh);
      texts = isLimit ? Texts{opened.Get("")} : LookUp(opened);
    });
    fs::remove(fresh.Path);
    const auto size = reader == 0 ? fs::file_size(file_.Path) : 2 + std::uintmax_t{215} * armies_;
    Require(texts == (isLimit ? Texts{std::to_string(size)} : texts_), name);
    return time;
  }

  double WriteTime(std::size_t reader) const {
    if (!contestants[reader].Writes) return 0;
    const File copy{NewName(), file_.Section};
    fs::copy_file(file_.Path, copy.Path);
    Age(copy.Path);
    const auto& [name, open, isLimit, writes] = contestants[reader];
    const Opened opened = open(copy);
    opened.Get("points");
    bool written = false;
    const double time = MillisecondsOf([&] { written = opened.Set("points", "401"); });
    Texts texts = texts_;
    std::ranges::replace(texts, "400", "401");
    const File fresh = Renamed(copy);
    Require(written && LookUp(open(fresh)) == texts, name);
    fs::remove(fresh.Path);
    fs::remove(copy.Path);
    return time;
  }

 private:
  fs::path NewName() const { return folder_ / std::to_string(++names_); }

  /// The same file under a new name: under the old one QSettings keeps what it has read.
  File Renamed(const File& file) const {
    File renamed{NewName(), file.Section};
    fs::create_hard_link(file.Path, renamed.Path);
    return renamed;
  }

  const TempFolder folder_;
  mutable int names_ = 0;
  const int armies_;
  const File file_;
  const Texts texts_;
};

Figures Medians(int runs, const std::function<double(std::size_t)>& measure) {
  std::array<std::vector<double>, readers> all;
  for (int run = 0; run < runs; ++run) {
    for (std::size_t reader = 0; reader < readers; ++reader)
      all.at(reader).push_back(measure(reader));
  }
  Figures medians{};
  std::ranges::transform(all, medians.begin(), [](std::vector<double>& values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
  });
  return medians;
}

void Run(int runs) {
  const Contest contests[] = {Contest(200), Contest(2000), Contest(20000)};
  std::vector<Figures> lookUp, write, memory;
  for (const Contest& contest : contests)  // first, while this process is small
    memory.push_back(Medians(1, [&](std::size_t reader) { return contest.Memory(reader); }));
  for (const Contest& contest : contests) {
    lookUp.push_back(Medians(runs, [&](std::size_t reader) { return contest.LookUpTime(reader); }));
    const int writes = (runs + 2) / 3;  // some take a minute
    write.push_back(Medians(writes, [&](std::size_t reader) { return contest.WriteTime(reader); }));
  }
  std::puts(
      "| | look-up, ms: 2 MB | 20 MB | 200 MB | one key written, ms: 2 MB | 20 MB | 200 MB "
      "| memory, MB: 2 MB | 20 MB | 200 MB |\n|---|---|---|---|---|---|---|---|---|---|");
  for (std::size_t reader = 0; reader < readers; ++reader) {
    std::printf("| %s |", contestants[reader].Name);
    for (const auto* columns : {&lookUp, &write, &memory}) {
      for (const Figures& column : *columns) {
        const double figure = column.at(reader);
        figure > 0 ? std::printf(" %.*f |", figure < 20, figure) : std::printf(" – |");
      }
    }
    std::puts("");
  }
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char* argv[]) {
  tarnwick::Run(argc > 1 ? std::max(std::atoi(argv[1]), 1) : 9);
}
