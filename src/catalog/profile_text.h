// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarnwick {

/// The text of a profile file: sections in square brackets, then lines of the form key=value.
/// Names match without regard to case; only the first section of a name counts, and in it the
/// first key of a name. Finding the sections is one pass at the start; the keys of a section are
/// found when it is first asked for.
class ProfileText {
 public:
  ProfileText() : ProfileText(nullptr, 0) {}
  ProfileText(std::unique_ptr<char[]> bytes, std::size_t size);
  explicit ProfileText(std::string_view text);

  /// The whole text.
  std::string_view Bytes() const { return text_; }

  /// The value without the blanks and the one pair of quotes around it, however long; nothing
  /// when there is no such section or key. Spaces around the names don't count; "" is the name of
  /// what has none, like "[]".
  std::optional<std::string_view> Find(std::string_view section, std::string_view key);

  /// A line that is not dropped: a section's header, or one of the form key=value. A lost one can't
  /// be found: no header stands before it, or an earlier line, or section, of its name does.
  struct Line {
    int Number = 0;  ///< from 1
    bool IsHeader = false;
    std::string_view Section;
    std::string_view Key;
    std::string_view Value;
    bool Lost = false;
  };

  /// All headers and key lines.
  std::vector<Line> Lines() const;

  /// A key with its new value.
  struct Entry {
    std::string Section;
    std::string Key;
    std::string Value;
  };

  /// The text with `key` set to `value`. An existing key keeps its place and spelling, a new one
  /// goes behind the last key of its section, a new section to the end. All other bytes stay;
  /// the lines written end with CR LF.
  [[nodiscard]] std::string With(std::string_view section, std::string_view key,
                                 std::string_view value) const;

  /// The same for several keys, one after the other.
  [[nodiscard]] std::string With(const std::vector<Entry>& entries) const;

 private:
  struct NameHash {
    std::size_t operator()(std::string_view name) const;
  };
  struct SameName {
    bool operator()(std::string_view a, std::string_view b) const;
  };
  template <typename T>
  using ByName = std::unordered_map<std::string_view, T, NameHash, SameName>;

  struct Section {
    std::string_view Lines;  ///< everything between its header line and the next one
    std::optional<ByName<std::string_view>> Values;
  };

  void FindSections();

  std::unique_ptr<char[]> bytes_;
  std::string_view text_;
  ByName<Section> sections_;
};

}  // namespace tarnwick
