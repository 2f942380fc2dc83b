// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "program_folder.h"

#include <chrono>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

bool IsCatalog(const fs::path& file) {
  return file.extension() == ".dat" || file.extension() == ".svg";
}

}  // namespace

std::string ReadFile(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void WriteFile(const fs::path& file, std::string_view bytes) {
  fs::create_directories(file.parent_path());
  std::ofstream out(file, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (!out) throw std::runtime_error(file.string() + " can't be written");
}

void MakeOld(const fs::path& file) {
  fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(1));
}

void LayFolder(const fs::path& data, const fs::path& folder, std::string_view army) {
  fs::remove_all(folder);
  fs::create_directories(folder / "brakka");
  for (const auto& entry : fs::recursive_directory_iterator(data)) {
    const fs::path file = fs::relative(entry.path(), data);
    const bool wanted = file.extension() == ".dat" || file.stem() == army;
    if (!entry.is_regular_file() || !wanted) continue;
    WriteFile(folder / file, ReadFile(entry.path()));
    MakeOld(folder / file);
  }
}

Contents ContentsOf(const fs::path& folder) {
  Contents contents;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file() && !IsCatalog(entry.path())) {
      contents.emplace(fs::relative(entry.path(), folder), ReadFile(entry.path()));
    }
  }
  return contents;
}

void Restore(const fs::path& folder, const Contents& contents) {
  for (const auto& [file, text] : ContentsOf(folder))
    if (!contents.contains(file)) fs::remove(folder / file);
  for (const auto& [file, text] : contents)
    WriteFile(folder / file, text);
}

std::string Difference(const Contents& a, const Contents& b) {
  for (const auto& [file, text] : a) {
    const auto other = b.find(file);
    if (other == b.end() || other->second != text) return file.string();
  }
  for (const auto& [file, text] : b)
    if (!a.contains(file)) return file.string();
  return "";
}

}  // namespace tarnwick
