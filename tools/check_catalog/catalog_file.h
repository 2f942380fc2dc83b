// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalog/disk.h"
#include "catalog/profile_text.h"
#include "check_catalog/finding.h"

namespace tarnwick {

/// One catalog of a program folder, read with the editor's own reader. It knows the line of every
/// key, and which of them nobody has asked for.
class CatalogFile {
 public:
  /// `name` is relative to the program folder. What is wrong with the text is reported at once.
  CatalogFile(const Disk& disk, std::string name, Findings& findings);

  /// Whether there is a text that can be checked.
  bool IsOpen() const { return text_.has_value(); }

  /// Whether there is no such file, or none that can be read; that is not reported yet.
  bool IsMissing() const { return isMissing_; }
  /// Whether a folder lies in the place of the file, or one whose name is the same but for case.
  bool IsMisplaced() const;
  void ReportMissing(Severity weight, const std::string& consequence);
  void Report(Severity weight, std::string_view section, std::string_view key,
              const std::string& sentence);

  std::string Read(std::string_view section, std::string_view key);
  bool Has(std::string_view section, std::string_view key);
  bool HasSection(std::string_view name) const;
  std::vector<std::string> Sections() const;

  /// Sections, or keys of sections, that nobody has asked for.
  void CheckUnreadSections(const std::string& sentence);
  void CheckUnreadKeys(Severity weight, const std::string& sentence);

 private:
  using Place = std::pair<std::string, std::string>;  ///< section and key, in small letters

  const Disk& disk_;
  std::string name_;
  Findings& findings_;
  std::optional<ProfileText> text_;
  bool isMissing_ = false;
  std::vector<ProfileText::Line> lines_;  ///< those that can be found
  std::map<std::string, int> sectionLines_;
  std::map<Place, int> keyLines_;
  std::set<std::string> askedSections_;
  std::set<Place> askedKeys_;
};

/// A row that is there.
struct CatalogRow {
  std::string Key;
  std::string Text;
};

/// One section of a catalog.
class CatalogSection {
 public:
  CatalogSection(CatalogFile& file, std::string name) : file_(&file), name_(std::move(name)) {}

  const std::string& Name() const { return name_; }
  std::string Read(std::string_view key) { return file_->Read(name_, key); }
  void Report(Severity weight, std::string_view key, const std::string& sentence) {
    file_->Report(weight, name_, key, sentence);
  }

  /// The rows `word`1 to the count `countKey`, which is at most `most`. Reports those that are
  /// missing. Rows that follow the last one are given, too, as the count is meant to have them.
  std::vector<CatalogRow> CheckRows(const std::string& countKey, const std::string& word, int most);

  /// Whether `row` has at least the first `least` of the fields that `format` names with commas.
  bool CheckFields(const CatalogRow& row, const std::string& format, int least);

  /// Whether `text`, a field of the row `key`, is a whole number from `least` to `most`.
  bool CheckWhole(std::string_view key, const std::string& field, const std::string& text,
                  int least, int most);

  /// The same where the editor reads the leading number and drops the rest, which is warned of.
  bool CheckLeading(std::string_view key, const std::string& field, const std::string& text,
                    int least, int most);

 private:
  int RowsThere(const std::string& word, int most);
  int CheckCount(const std::string& countKey, const std::string& word, int most);

  CatalogFile* file_;
  std::string name_;
};

/// What a 16-bit number holds at the most.
inline constexpr int largest = 32767;

}  // namespace tarnwick
