// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <string_view>

namespace tarnwick {

/// A file that is written beside its target and takes the target's place when it is closed. Until
/// then, and whenever the output fails or the program dies, the target stays as it was.
class OutputFile {
 public:
  /// Throws FileError when the folder is missing or the target may not be written.
  explicit OutputFile(const std::filesystem::path& target);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  /// Drops what was written unless the file was closed.
  ~OutputFile();

  void Write(std::string_view bytes);
  /// Writes a line and its CR LF.
  void WriteLine(std::string_view line);
  /// Puts the file in the target's place. Throws FileError when anything could not be written.
  void Close();

 private:
  [[noreturn]] void Fail() const;

  std::filesystem::path target_;
  std::filesystem::path newFile_;
  std::ofstream out_;
  bool closed_ = false;
};

}  // namespace tarnwick
