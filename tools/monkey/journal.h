// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>
#include <utility>

namespace tarnwick {

/// What a line of the journal says.
enum class Entry : char {
  Step = 's',      ///< what is done next
  Seen = 'n',      ///< what the window answered
  Known = 'k',     ///< a panel, dialog or control is there to be used
  Used = 'u',      ///< and was used
  CameBack = 'c',  ///< the army was saved and loaded, and is the same
  Refused = 'r',   ///< it can't be saved or loaded, and the window says why
  Told = 't',      ///< the editor ended, as its window had said
  Fault = 'f'
};

/// The journal of an editor's life, which outlives it in another process: an entry a line.
class Journal {
 public:
  explicit Journal(int file) : file_(file) {}

  void Write(Entry entry, std::string text);
  /// The same, unless it was written before.
  void WriteOnce(Entry entry, const std::string& text) {
    if (once_.emplace(entry, text).second) Write(entry, text);
  }

 private:
  int file_;
  std::set<std::pair<Entry, std::string>> once_;
};

}  // namespace tarnwick
