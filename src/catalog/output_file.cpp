// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/output_file.h"

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "base/ansi.h"
#include "base/errors.h"
#include "base/text.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

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

}  // namespace

OutputFile::OutputFile(const fs::path& target) : target_(BehindLinks(target)), newFile_(target_) {
  CheckWritable(target_);
  newFile_ += ".new";
  out_.open(newFile_, std::ios::binary | std::ios::trunc);
  if (!out_) Fail();
}

OutputFile::~OutputFile() {
  if (closed_) return;
  out_.close();
  std::error_code ignored;
  fs::remove(newFile_, ignored);
}

void OutputFile::Write(std::string_view bytes) {
  if (!out_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()))) Fail();
}

void OutputFile::WriteLine(std::string_view line) {
  Write(line);
  Write(CrLf);
}

void OutputFile::Close() {
  out_.close();
  if (!out_) Fail();
  std::error_code error;
  const fs::file_status old = fs::status(target_, error);
  if (fs::exists(old)) fs::permissions(newFile_, old.permissions(), error);
  fs::rename(newFile_, target_, error);
  if (error) ThrowFileError(target_, error);
  closed_ = true;
}

void OutputFile::Fail() const {
  ThrowFileError(target_, LastError());
}

}  // namespace tarnwick
