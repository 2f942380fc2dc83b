// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/file_replacement.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <string>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "base/ansi.h"
#include "base/errors.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

// A new file is hidden until it takes its place: ".tarnwick-0000004711.new", with the number of
// the process that writes it, one of this machine. The name does not grow with the target's, which
// may be as long as file systems allow.
constexpr std::string_view newFileStart = ".tarnwick-", newFileEnd = ".new";
constexpr std::size_t digits = 10;

std::string NewFileName(pid_t process) {
  const std::string number = std::to_string(process);
  return std::string(newFileStart) + std::string(digits - number.size(), '0') + number +
         std::string(newFileEnd);
}

/// Whether a new file of that name was left by a process that is gone.
bool IsLeftover(const std::string& name) {
  pid_t process = 0;
  if (name.size() < newFileStart.size() + digits) return false;
  const char* const number = name.data() + newFileStart.size();
  std::from_chars(number, number + digits, process);
  return process > 0 && name == NewFileName(process) && kill(process, 0) == -1 && errno == ESRCH;
}

void RemoveLeftovers(const fs::path& folder) {
  std::error_code error;
  fs::directory_iterator file(folder, error);
  for (; file != fs::directory_iterator(); file.increment(error)) {
    if (file->is_regular_file(error) && IsLeftover(file->path().filename())) {
      fs::remove(file->path(), error);
    }
  }
}

[[noreturn]] void ThrowFileError(const fs::path& file, const std::error_code& reason) {
  throw FileError("File " + AnsiFromPath(file) + " cannot be written: " + reason.message());
}

std::error_code LastError() {
  return {errno, std::generic_category()};
}

/// The file behind a link, so that writing changes it and not the link.
fs::path BehindLinks(const fs::path& file) {
  std::error_code error;
  fs::path real = fs::canonical(file, error);
  return error ? file : real;
}

/// A rename would replace even a file that is write-protected.
void CheckWritable(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (!fs::exists(status)) return;
  constexpr auto anyWrite =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if ((status.permissions() & anyWrite) == fs::perms::none) {
    ThrowFileError(file, std::make_error_code(std::errc::permission_denied));
  }
  if (!std::ofstream(file, std::ios::binary | std::ios::app)) ThrowFileError(file, LastError());
}

/// Waits until a file, or the names in a folder, are on the disk.
bool Flush(const fs::path& path) {
  const int opened = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (opened == -1) return false;
  const bool flushed = fsync(opened) == 0;
  close(opened);
  return flushed;
}

/// A file that is gone with this object unless it has another name by then.
struct NewFile {
  explicit NewFile(fs::path path) : Path(std::move(path)) {}
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile() {
    std::error_code ignored;
    fs::remove(Path, ignored);
  }

  const fs::path Path;
};

}  // namespace

void ReplaceFile(const fs::path& target, std::string_view bytes, Durability durability) {
  const fs::path file = BehindLinks(target);
  const fs::path folder = file.parent_path();
  if (durability == Durability::Lasting) RemoveLeftovers(folder);
  CheckWritable(file);
  const NewFile newFile(folder / NewFileName(getpid()));
  std::ofstream out(newFile.Path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (!out) ThrowFileError(file, LastError());
  std::error_code error;
  const fs::file_status old = fs::status(file, error);
  if (fs::exists(old)) fs::permissions(newFile.Path, old.permissions(), error);
  if (durability == Durability::Lasting && !Flush(newFile.Path)) ThrowFileError(file, LastError());
  fs::rename(newFile.Path, file, error);
  if (error) ThrowFileError(file, error);
  if (durability == Durability::Lasting) Flush(folder);  // the file is in its place in any case
}

}  // namespace tarnwick
