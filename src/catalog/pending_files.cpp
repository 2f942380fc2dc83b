// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/pending_files.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// One path for one file, also for one that is not there yet.
fs::path RealPath(const fs::path& file) {
  std::error_code error;
  fs::path real = fs::weakly_canonical(file, error);
  return error ? file : real;
}

}  // namespace

void PendingFiles::Write(const fs::path& file, std::string text) {
  Of(file).Text = std::move(text);
}

void PendingFiles::WriteIniStrings(const std::vector<ProfileText::Entry>& entries,
                                   const fs::path& file) {
  auto& all = Of(file).Entries;
  all.insert(all.end(), entries.begin(), entries.end());
}

void PendingFiles::Replace(ProfileFiles& files) const {
  for (const auto& [file, text, entries] : pending_) {
    if (text) {
      ReplaceFile(file, ProfileText(*text).With(entries), Durability::Lasting);
    } else {
      files.WriteIniStrings(entries, file, Durability::Lasting);
    }
  }
}

PendingFiles::Pending& PendingFiles::Of(const fs::path& file) {
  const auto found = std::find_if(pending_.begin(), pending_.end(), [&](const Pending& pending) {
    return RealPath(pending.File) == RealPath(file);
  });
  return found != pending_.end() ? *found : pending_.emplace_back(Pending{file, {}, {}});
}

}  // namespace tarnwick
