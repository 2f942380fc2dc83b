// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/int16.h"
#include "catalog/file_replacement.h"
#include "catalog/profile_text.h"

namespace tarnwick {

/// The longest value that a look-up gives back, in bytes.
inline constexpr std::size_t longestValue = 254;

/// Access to profile files. A file that was read is kept, parsed, for as long as its time stamp
/// says that it is unchanged.
class ProfileFiles {
 public:
  /// For as long as it lives, a file stays what it was when it was first read: who reads it key by
  /// key gets all of one version, whoever replaces the file meanwhile. What is written here counts.
  class Moment {
   public:
    explicit Moment(const ProfileFiles& files) : files_(files) {
      if (files_.moments_++ == 0) ++files_.moment_;
    }
    Moment(const Moment&) = delete;
    Moment& operator=(const Moment&) = delete;
    ~Moment() { --files_.moments_; }

   private:
    const ProfileFiles& files_;
  };

  /// The value of a key, its first 254 bytes at the most; "" when file, section or key is missing.
  std::string ReadIniString(std::string_view section, std::string_view key,
                            const std::filesystem::path& file) const;

  /// The same as a number: lenient, rounded to 16 bits. Throws OverflowError.
  Int16 ReadIniNumber(std::string_view section, std::string_view key,
                      const std::filesystem::path& file) const;

  /// A whole file; nothing for one that can't be read.
  std::optional<std::string> Bytes(const std::filesystem::path& file) const;

  /// Sets a key, making section and file as needed. The file is replaced in one step. Returns
  /// non-zero when it was written; an error is no more than a 0.
  Int16 WriteIniString(std::string_view section, std::string_view key, std::string_view value,
                       const std::filesystem::path& file);

  /// The same for several keys; the file is replaced once, with all of them set.
  Int16 WriteIniStrings(const std::vector<ProfileText::Entry>& entries,
                        const std::filesystem::path& file,
                        Durability durability = Durability::Scratch);

 private:
  struct KnownFile {
    std::filesystem::path Path;
    std::filesystem::file_time_type ChangedAt;
    bool Settled = false;  ///< the time stamp tells every later change
    ProfileText Text;
    int ReadIn = 0;  ///< the moment in which it was read or found unchanged
  };

  /// Nothing for a file that can't be read. The next call may move it. `now`: whatever the moment
  /// shows.
  KnownFile* Known(const std::filesystem::path& file, bool now = false) const;

  mutable std::vector<KnownFile> known_;  ///< the one used last comes first
  mutable int moments_ = 0;               ///< that live, one in the other
  mutable int moment_ = 0;                ///< the number of the outermost
};

/// True when `path` names a plain file.
bool FileExists(const std::filesystem::path& path);

/// The key of a numbered row: "unit" and 12 make "unit12".
std::string RowKey(std::string_view word, Int16 number);

}  // namespace tarnwick
