// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "catalog/profile_files.h"
#include "check_catalog/catalog_problem.h"

namespace tarnwick {

/// Collects what is wrong with one file, read with the editor's own reader.
class FileCheck {
 public:
  /// `file` is relative to `programFolder`.
  FileCheck(const std::filesystem::path& programFolder, std::string file, const ProfileFiles& files,
            std::vector<CatalogProblem>& problems)
      : path_(programFolder / file), name_(std::move(file)), files_(files), problems_(problems) {}

  void Report(std::string_view section, std::string_view key, const std::string& sentence) const {
    problems_.push_back({name_, std::string(section), std::string(key), sentence});
  }

  std::string Read(std::string_view section, std::string_view key) const {
    return files_.ReadIniString(section, key, path_);
  }

  /// What any profile file may have wrong: doubled keys, texts that are too long or not in the
  /// code page. False when the file is not there.
  bool CheckText() const;

  /// The count `key` of `section`, 0 when it is no count from 0 to `most`.
  int CheckCount(std::string_view section, std::string_view key, int most) const;

  /// Rows `word`1 to `word``count` are there and no further one is; gives those that are.
  std::vector<std::string> CheckRows(std::string_view section, std::string_view word,
                                     int count) const;

  /// Whether `text`, a field of a row, is a whole number from `least` to `most`.
  bool CheckWhole(std::string_view section, std::string_view key, std::string_view field,
                  const std::string& text, int least, int most) const;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
  std::string name_;
  const ProfileFiles& files_;
  std::vector<CatalogProblem>& problems_;
};

/// How many "," fields a row has.
int FieldCount(std::string_view row);

}  // namespace tarnwick
