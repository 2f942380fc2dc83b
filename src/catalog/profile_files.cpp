// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/profile_files.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

#include "base/errors.h"
#include "base/numbers.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using FileTime = fs::file_time_type;

/// More files than an editing session has in use at a time.
constexpr std::size_t mostKnownFiles = 8;

/// Whether a change made after `readAt` would surely have another time stamp than `changedAt`.
bool StampCanTell(FileTime changedAt, FileTime readAt) {
  using namespace std::chrono_literals;
  // Stamps in whole seconds come from file systems that may count in steps of two.
  const bool coarse = changedAt.time_since_epoch() % 1s == 0s;
  return readAt - changedAt > (coarse ? FileTime::duration(2s) : FileTime::duration(20ms));
}

std::optional<ProfileText> ReadText(const fs::path& file) {
  if (!FileExists(file)) return std::nullopt;  // a folder, too, would open
  std::ifstream in(file, std::ios::binary | std::ios::ate);
  const std::streamoff size = in.tellg();
  if (size < 0) return std::nullopt;
  auto bytes = std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(size));
  in.seekg(0);
  in.read(bytes.get(), size);
  return ProfileText(std::move(bytes), static_cast<std::size_t>(in.gcount()));
}

}  // namespace

ProfileFiles::KnownFile* ProfileFiles::Known(const fs::path& file, bool now) const {
  const auto found = std::find_if(known_.begin(), known_.end(), [&file](const KnownFile& known) {
    return known.Path.native() == file.native();
  });
  const bool known = found != known_.end();
  if (known) std::rotate(known_.begin(), found, found + 1);
  if (known && !now && moments_ > 0 && known_.front().ReadIn == moment_) return &known_.front();
  std::error_code error;
  const FileTime changedAt = fs::last_write_time(file, error);
  if (known && !error && known_.front().Settled && known_.front().ChangedAt == changedAt) {
    known_.front().ReadIn = moment_;
    return &known_.front();
  }
  if (known) known_.erase(known_.begin());
  if (error) return nullptr;
  const bool settled = StampCanTell(changedAt, FileTime::clock::now());
  auto text = ReadText(file);
  if (!text) return nullptr;
  if (known_.size() == mostKnownFiles) known_.pop_back();
  return &*known_.insert(known_.begin(), {file, changedAt, settled, std::move(*text), moment_});
}

std::string ProfileFiles::ReadIniString(std::string_view section, std::string_view key,
                                        const fs::path& file) const {
  KnownFile* known = Known(file);
  if (known == nullptr) return "";
  return std::string(known->Text.Find(section, key).value_or("").substr(0, longestValue));
}

Int16 ProfileFiles::ReadIniNumber(std::string_view section, std::string_view key,
                                  const fs::path& file) const {
  return LenientInt16(ReadIniString(section, key, file));
}

std::optional<std::string> ProfileFiles::Bytes(const fs::path& file) const {
  const KnownFile* known = Known(file);
  if (known == nullptr) return std::nullopt;
  return std::string(known->Text.Bytes());
}

Int16 ProfileFiles::WriteIniString(std::string_view section, std::string_view key,
                                   std::string_view value, const fs::path& file) {
  return WriteIniStrings({{std::string(section), std::string(key), std::string(value)}}, file);
}

Int16 ProfileFiles::WriteIniStrings(const std::vector<ProfileText::Entry>& entries,
                                    const fs::path& file, Durability durability) {
  KnownFile* known = Known(file, true);
  std::error_code error;
  // A file that is there but can't be read must not be replaced by one that holds this key alone.
  if (known == nullptr && fs::exists(file, error)) return 0;
  const ProfileText none;
  try {
    ReplaceFile(file, (known != nullptr ? known->Text : none).With(entries), durability);
    if (known != nullptr) known->ReadIn = 0;
    return 1;
  } catch (const FileError&) {
    return 0;
  }
}

bool FileExists(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

std::string RowKey(std::string_view word, Int16 number) {
  return std::string(word) + NumberText(number);
}

}  // namespace tarnwick
