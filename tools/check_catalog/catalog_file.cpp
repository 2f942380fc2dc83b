// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "check_catalog/catalog_file.h"

#include <algorithm>

#include "base/ansi.h"
#include "base/numbers.h"
#include "base/text.h"
#include "check_catalog/catalog_text.h"
#include "check_catalog/missing_file.h"

namespace tarnwick {
namespace {

std::string NameOf(std::string_view name) {
  return LowerCase(Trim(name));
}

int FieldCount(std::string_view row) {
  return static_cast<int>(std::ranges::count(row, ',')) + 1;
}

}  // namespace

CatalogFile::CatalogFile(const Disk& disk, std::string name, Findings& findings)
    : disk_(disk), name_(std::move(name)), findings_(findings) {
  const auto bytes = disk.Files.Bytes(disk.ProgramFolder / name_);
  isMissing_ = !bytes;
  if (isMissing_ || !CheckEncoding(name_, *bytes, findings_)) return;
  text_.emplace(std::string_view(*bytes));
  lines_ = text_->Lines();
  CheckLines(name_, lines_, findings_);
  std::erase_if(lines_, [](const ProfileText::Line& line) { return line.Lost; });
  for (const ProfileText::Line& line : lines_) {
    if (line.IsHeader) {
      sectionLines_[NameOf(line.Section)] = line.Number;
    } else {
      keyLines_[{NameOf(line.Section), NameOf(line.Key)}] = line.Number;
    }
  }
}

bool CatalogFile::IsMisplaced() const {
  return isMissing_ && !LookForFile(disk_.ProgramFolder, name_).Remedy.empty();
}

void CatalogFile::ReportMissing(Severity weight, const std::string& consequence) {
  const auto [what, remedy] = LookForFile(disk_.ProgramFolder, name_);
  Report(weight, "", "",
         "The file " + what + ": " + consequence + ". " +
             (!remedy.empty()            ? remedy
              : weight == Severity::Note ? "That is no fault."
                                         : "Write it."));
}

void CatalogFile::Report(Severity weight, std::string_view section, std::string_view key,
                         const std::string& sentence) {
  int line = 0;
  if (const auto place = keyLines_.find({NameOf(section), NameOf(key)}); place != keyLines_.end()) {
    line = place->second;
  } else if (const auto header = sectionLines_.find(NameOf(section));
             header != sectionLines_.end()) {
    line = header->second;
  }
  findings_.push_back({name_, line, weight, std::string(section), std::string(key), sentence});
}

std::string CatalogFile::Read(std::string_view section, std::string_view key) {
  askedSections_.insert(NameOf(section));
  askedKeys_.insert({NameOf(section), NameOf(key)});
  if (!text_) return "";
  return std::string(text_->Find(section, key).value_or("").substr(0, longestValue));
}

bool CatalogFile::Has(std::string_view section, std::string_view key) {
  return text_ && !text_->Find(section, key).value_or("").empty();
}

bool CatalogFile::HasSection(std::string_view name) const {
  return sectionLines_.contains(NameOf(name));
}

std::vector<std::string> CatalogFile::Sections() const {
  std::vector<std::string> names;
  for (const ProfileText::Line& line : lines_)
    if (line.IsHeader) names.emplace_back(line.Section);
  return names;
}

void CatalogFile::CheckUnreadSections(const std::string& sentence) {
  for (const std::string& name : Sections())
    if (!askedSections_.contains(NameOf(name))) Report(Severity::Note, name, "", sentence);
}

void CatalogFile::CheckUnreadKeys(Severity weight, const std::string& sentence) {
  for (const ProfileText::Line& line : lines_) {
    const Place place = {NameOf(line.Section), NameOf(line.Key)};
    if (!line.IsHeader && askedSections_.contains(place.first) && !askedKeys_.contains(place)) {
      Report(weight, line.Section, line.Key, sentence);
    }
  }
}

int CatalogSection::RowsThere(const std::string& word, int most) {
  int count = 0;
  while (count < most && file_->Has(name_, RowKey(word, count + 1)))
    ++count;
  return count;
}

int CatalogSection::CheckCount(const std::string& countKey, const std::string& word, int most) {
  const std::string text = Read(countKey);
  const int there = RowsThere(word, most);
  if (text.empty()) {
    Report(there > 0 ? Severity::Error : Severity::Warning, countKey,
           "The count is missing. Write " + countKey + "=" + std::to_string(there) + ".");
    return there;
  }
  if (!CheckLeading(countKey, "count", text, 0, most)) return there;
  const int count = LenientInt16(text).Value();
  if (there > count) {
    Report(Severity::Error, RowKey(word, count + 1),
           "The row is beyond " + countKey + "=" + std::to_string(count) +
               " and is never read. Write " + countKey + "=" + std::to_string(there) + ".");
  }
  return std::max(count, there);
}

std::vector<CatalogRow> CatalogSection::CheckRows(const std::string& countKey,
                                                  const std::string& word, int most) {
  const int count = CheckCount(countKey, word, most);
  std::vector<CatalogRow> rows;
  for (int i = 1; i <= count; ++i) {
    const std::string key = RowKey(word, i);
    if (const std::string text = Read(key); !text.empty()) {
      rows.push_back({key, text});
      continue;
    }
    int last = i;
    while (last < count && Read(RowKey(word, last + 1)).empty())
      ++last;
    Report(Severity::Error, countKey,
           "The count is " + std::to_string(count) + ", but " + key +
               (last == i ? " is" : " to " + RowKey(word, last) + " are") +
               " missing. Number the rows from 1 without gaps, or lower the count.");
    i = last;
  }
  return rows;
}

bool CatalogSection::CheckFields(const CatalogRow& row, const std::string& format, int least) {
  const int count = FieldCount(row.Text);
  const int expected = FieldCount(format);
  if (count == expected) return true;
  const std::string has = "Instead of " + std::to_string(expected) + " fields the row has " +
                          std::to_string(count) + ": " + format + ". ";
  if (count > expected) {
    Report(Severity::Warning, row.Key, has + "Take away what is beyond; it is never read.");
  } else if (count >= least) {
    Report(Severity::Note, row.Key, has + "What is left out is empty. Write the comma.");
  } else {
    Report(Severity::Error, row.Key, has + "Write all of them.");
  }
  return count >= least;
}

bool CatalogSection::CheckWhole(std::string_view key, const std::string& field,
                                const std::string& text, int least, int most) {
  const auto number = NumberIn(text);
  const bool whole = number && *number == Int(*number);
  if (whole && *number >= least && *number <= most) return true;
  const std::string expected =
      "whole number from " + std::to_string(least) + " to " + std::to_string(most) + ".";
  const char* remedy = !number           ? " Write it in digits alone."
                       : *number < least ? " Raise it."
                       : *number > most  ? " Lower it."
                                         : " Write it without a fraction.";
  Report(Severity::Error, key,
         "The " + field +
             (text.empty() ? " is missing. Write a " + expected
                           : " \"" + text + "\" is no " + expected + remedy));
  return false;
}

bool CatalogSection::CheckLeading(std::string_view key, const std::string& field,
                                  const std::string& text, int least, int most) {
  const double read = LenientNumber(text);
  const bool leads = text.find_first_of("0123456789") == 0 && read == Int(read);
  if (NumberIn(text) || !leads || read < least || read > most) {
    return CheckWhole(key, field, text, least, most);
  }
  const std::string number = NumberText(read);
  Report(
      Severity::Warning, key,
      "The " + field + " \"" + text + "\" is read as " + number + ". Write " + number + " alone.");
  return true;
}

}  // namespace tarnwick
