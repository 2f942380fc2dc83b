// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnwick {

/// One way to handle the editor roughly: what it is given, and what it has seen.
class Handling {
 public:
  using Clock = std::chrono::steady_clock;

  Handling(std::string again, std::filesystem::path data, std::filesystem::path folder,
           Clock::time_point end, unsigned seed)
      : Data(std::move(data)),
        Folder(std::move(folder)),
        Seed(seed),
        again_(std::move(again)),
        end_(end) {}

  const std::filesystem::path Data;    ///< the shipped catalogs and armies
  const std::filesystem::path Folder;  ///< for the program folders that it makes
  const unsigned Seed;

  bool HasTime() const { return Clock::now() < end_; }

  /// How often something was seen; the line names it in the order of the first calls.
  void Count(std::string_view what, int times = 1);
  /// Something that no figure counts.
  void Note(std::string note) { notes_.push_back(std::move(note)); }
  /// What must not be. Says it at once, and how to see it again.
  void Fault(const std::string& what) { Fault(what, Seed); }
  void Fault(const std::string& what, unsigned seed);

  int Faults() const { return faults_; }
  /// "12 kills, 3 left behind"
  std::string Line() const;

 private:
  std::string again_;
  Clock::time_point end_;
  std::vector<std::pair<std::string, int>> counts_;
  std::vector<std::string> notes_;
  int faults_ = 0;
};

// The ways. Each throws whatever goes wrong with the tool itself.

void HandleBytes(Handling& handling);
void HandleClosed(Handling& handling);
void HandleLarge(Handling& handling);
void HandleFull(Handling& handling);
void HandleCatalogs(Handling& handling);
void HandleNoise(Handling& handling);
void HandleKills(Handling& handling);

}  // namespace tarnwick
