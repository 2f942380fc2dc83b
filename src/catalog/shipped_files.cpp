// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/shipped_files.h"

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <system_error>

#include "base/ansi.h"
#include "base/errors.h"
#include "catalog/file_replacement.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// The whole file, "" when there is none.
std::string BytesOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

/// A file that must be there.
std::string ShippedBytes(const fs::path& file) {
  if (!std::ifstream(file)) throw FileError("File " + AnsiFromPath(file) + " cannot be read");
  return BytesOf(file);
}

/// FNV-1a: it tells a changed file, nobody forges one.
std::string Checksum(const std::string& bytes) {
  std::uint64_t sum = 0xCBF29CE484222325;
  for (const char byte : bytes)
    sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  char text[17];
  std::snprintf(text, sizeof text, "%016jx", static_cast<std::uintmax_t>(sum));
  return text;
}

/// Name and checksum of each file that a list names.
std::map<std::string, std::string> Parse(const std::string& list) {
  std::map<std::string, std::string> files;
  std::istringstream in(list);
  for (std::string sum, name; in >> sum && std::getline(in >> std::ws, name);)
    files[name] = sum;
  return files;
}

}  // namespace

Installation FindInstallation(const fs::path& binary, const fs::path& own) {
  const fs::path share = binary.parent_path() / "share/tarnwick";
  if (fs::exists(binary / "armylist.dat") || !fs::exists(share / "program" / shippedList)) {
    return {"", binary, binary / "guide"};
  }
  return {share / "program", own, share / "guide"};
}

std::string ListFiles(const fs::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) {
      files[entry.path().lexically_relative(folder).generic_string()] =
          Checksum(BytesOf(entry.path()));
    }
  }
  files.erase(shippedList);
  std::string list;
  for (const auto& [name, sum] : files)
    list.append(sum).append("  ").append(name).append("\n");
  return list;
}

std::vector<std::string> LayFiles(const fs::path& from, const std::string& list,
                                  const fs::path& to) {
  std::vector<std::string> heldBack;
  const auto laid = Parse(BytesOf(to / shippedList));
  for (const auto& [name, sum] : Parse(list)) {
    const fs::path file = to / name;
    const auto before = laid.find(name);
    if (fs::exists(file)) {
      const std::string here = Checksum(BytesOf(file));
      if (here == sum) continue;
      if (before == laid.end() || here != before->second) {
        heldBack.push_back(name + " (changed here)");
        continue;
      }
    } else if (before != laid.end()) {
      heldBack.push_back(name + " (deleted here)");
      continue;
    }
    std::error_code error;  // a missing folder is told with the file
    fs::create_directories(file.parent_path(), error);
    ReplaceFile(file, ShippedBytes(from / name), Durability::Lasting);
  }
  ReplaceFile(to / shippedList, list, Durability::Lasting);
  return heldBack;
}

void BringUpToDate(const Installation& installation) {
  if (installation.Shipped.empty()) return;
  const std::string list = BytesOf(installation.Shipped / shippedList);
  if (list != BytesOf(installation.Program / shippedList)) {
    LayFiles(installation.Shipped, list, installation.Program);
  }
}

}  // namespace tarnwick
