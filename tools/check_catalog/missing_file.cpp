// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/missing_file.h"

#include <system_error>

#include "base/ansi.h"
#include "catalog/profile_files.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// The path below `folder` that is `name` but for its case; "" when there is none.
fs::path OtherCase(const fs::path& folder, const fs::path& name) {
  fs::path found;
  for (const fs::path& part : name) {
    fs::path next = part;
    std::error_code error;
    if (!fs::exists(folder / found / part, error)) {
      next.clear();
      for (const auto& entry : fs::directory_iterator(folder / found, error)) {
        const fs::path other = entry.path().filename();
        if (LowerCase(AnsiFromPath(other)) == LowerCase(AnsiFromPath(part))) next = other;
      }
    }
    if (next.empty()) return {};
    found /= next;
  }
  return found;
}

}  // namespace

MissingFile LookForFile(const fs::path& folder, std::string_view name) {
  const fs::path path = PathIn(folder, name);
  std::error_code error;
  if (fs::is_directory(path, error)) {
    return {"is a folder", "Rename the folder and put the file there."};
  }
  if (FileExists(path)) return {"can't be opened", "Give yourself the right to read it."};
  if (fs::exists(fs::symlink_status(path, error))) {
    return {"is a broken link or no ordinary file", "Put the file itself there."};
  }
  const fs::path other = OtherCase(folder, path.lexically_relative(folder));
  if (other.empty()) return {"is missing", ""};
  return {"is missing", "\"" + AnsiFromPath(other.generic_string()) +
                            "\" lies there: capital and small letters must be the same."};
}

}  // namespace tarnwick
