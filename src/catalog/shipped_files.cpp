// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/shipped_files.h"

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

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

/// The checksum of each file that a list names.
using Sums = std::map<std::string, std::string>;

Sums Parse(const std::string& list) {
  Sums sums;
  std::istringstream lines(list);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t gap = line.find("  ");
    if (gap != std::string::npos) sums[line.substr(gap + 2)] = line.substr(0, gap);
  }
  return sums;
}

std::string ListText(const Sums& sums) {
  std::string list;
  for (const auto& [name, sum] : sums)
    list.append(sum).append("  ").append(name).append("\n");
  return list;
}

enum class Stand { Shipped, Laid, Missing, Changed, Deleted };

/// How a file in the program folder stands to what ships with the checksum `sum`, and to what was
/// laid there last.
Stand StandOf(const fs::path& file, const std::string& name, const std::string& sum,
              const Sums& laid) {
  const auto before = laid.find(name);
  if (!fs::exists(file)) return before == laid.end() ? Stand::Missing : Stand::Deleted;
  const std::string here = fs::is_regular_file(file) ? Checksum(BytesOf(file)) : "";
  if (here == sum) return Stand::Shipped;
  return before != laid.end() && here == before->second ? Stand::Laid : Stand::Changed;
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
  Sums sums;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) {
      sums[entry.path().lexically_relative(folder).generic_string()] =
          Checksum(BytesOf(entry.path()));
    }
  }
  sums.erase(shippedList);
  return ListText(sums);
}

std::vector<std::string> LayFiles(const fs::path& from, const std::string& list,
                                  const fs::path& to) {
  std::vector<std::string> heldBack, failed;
  const auto tryTo = [&failed](const auto& act) {
    try {
      act();
    } catch (const std::exception& error) {
      failed.emplace_back(error.what());
    }
  };
  Sums laid = Parse(BytesOf(to / shippedList));
  const auto lay = [&](const std::string& name, const std::string& sum) {
    const Stand stand = StandOf(to / name, name, sum, laid);
    if (stand == Stand::Changed) return heldBack.push_back(name + " (changed here)");
    if (stand == Stand::Deleted) return heldBack.push_back(name + " (deleted here)");
    if (stand != Stand::Shipped) {
      fs::create_directories((to / name).parent_path());
      ReplaceFile(to / name, ShippedBytes(from / name), Durability::Lasting);
    }
    laid[name] = sum;
  };
  for (const auto& [name, sum] : Parse(list))
    tryTo([&, &name = name, &sum = sum] { lay(name, sum); });
  if (failed.empty()) laid[shippedList] = Checksum(list);
  tryTo([&] { ReplaceFile(to / shippedList, ListText(laid), Durability::Lasting); });
  if (failed.empty()) return heldBack;
  const std::string others = std::to_string(failed.size() - 1);
  throw FileError(failed.front() + (others == "0" ? "" : " (and " + others + " more)"));
}

void BringUpToDate(const Installation& installation) {
  if (installation.Shipped.empty()) return;
  const std::string list = BytesOf(installation.Shipped / shippedList);
  const Sums laid = Parse(BytesOf(installation.Program / shippedList));
  const auto last = laid.find(shippedList);
  if (last == laid.end() || last->second != Checksum(list)) {
    LayFiles(installation.Shipped, list, installation.Program);
  }
}

}  // namespace tarnwick
