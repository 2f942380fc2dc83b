// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>

#include "support/testing.h"

namespace tarnwick {

/// An empty folder that is gone with everything in it when the object is. Files go in and out of
/// it byte for byte.
class TempFolder {
 public:
  TempFolder() {
    std::random_device random;
    do {
      path_ = std::filesystem::temp_directory_path() / ("tarnwick-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

  /// Writes a whole file and makes the folders on the way to it.
  void Write(std::string_view name, std::string_view bytes) const {
    std::filesystem::create_directories((path_ / name).parent_path());
    std::ofstream out(path_ / name, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }

  /// Copies a folder into it. Its files look old: what was just written is read at every look.
  void Copy(const std::filesystem::path& from) const {
    std::filesystem::copy(from, path_, std::filesystem::copy_options::recursive);
    const auto stamp = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path_))
      std::filesystem::last_write_time(entry, stamp);
  }

  std::string Read(std::string_view name) const { return ReadBytes(path_ / name); }

  /// The names in the folder, or in one below it, in their order.
  Lines Files(std::string_view name = "") const {
    Lines names;
    for (const auto& entry : std::filesystem::directory_iterator(path_ / name))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  bool Has(std::string_view name) const { return std::filesystem::exists(path_ / name); }

  /// A whole file; "<missing>" when there is none.
  static std::string ReadBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return "<missing>";
    return {std::istreambuf_iterator<char>(in), {}};
  }

 private:
  std::filesystem::path path_;
};

}  // namespace tarnwick
