// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "catalog/profile_text.h"

#include <algorithm>
#include <utility>

#include "base/ansi.h"
#include "base/text.h"

namespace tarnwick {
namespace {

constexpr std::string_view blanks = " \t\v\f";
constexpr std::string_view lineEnds = "\r\n";

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// One pair of equal outer quotes goes; what is inside stays, blanks included.
std::string_view Unquote(std::string_view value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

/// Takes the first line off `rest`. The line comes without its end, which CR, LF and CR LF are.
std::string_view TakeLine(std::string_view& rest) {
  const std::string_view line = rest.substr(0, rest.find_first_of(lineEnds));
  rest.remove_prefix(line.size());
  if (!rest.empty()) rest.remove_prefix(rest.starts_with(CrLf) ? 2 : 1);
  return line;
}

bool EndsInLineEnd(std::string_view text) {
  return !text.empty() && lineEnds.find(text.back()) != std::string_view::npos;
}

struct NameAndValue {
  std::string_view Name;
  std::string_view Value;
};

std::optional<NameAndValue> ParseKeyLine(std::string_view line) {
  line = TrimBlanks(line);
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos || line.front() == ';') return std::nullopt;
  return NameAndValue{TrimBlanks(line.substr(0, equals)),
                      Unquote(TrimBlanks(line.substr(equals + 1)))};
}

std::string_view ParseHeaderName(std::string_view line) {
  line.remove_prefix(line.find('[') + 1);
  return TrimBlanks(line.substr(0, line.find(']')));
}

/// Where the line of the next section header begins at or behind `at`, or the end of the text.
/// Looking for brackets rather than line by line makes this as fast as memory is.
std::size_t FindHeader(std::string_view text, std::size_t at) {
  const std::size_t start = at;
  while ((at = text.find('[', at)) != std::string_view::npos) {
    std::size_t line = at;
    while (line > start && blanks.find(text[line - 1]) != std::string_view::npos)
      --line;
    if (line == start || lineEnds.find(text[line - 1]) != std::string_view::npos) return line;
    ++at;
  }
  return text.size();
}

}  // namespace

std::size_t ProfileText::NameHash::operator()(std::string_view name) const {
  std::size_t hash = 14695981039346656037U;  // FNV-1a
  for (const char c : name)
    hash = (hash ^ static_cast<unsigned char>(LowerCase(c))) * 1099511628211U;
  return hash;
}

bool ProfileText::SameName::operator()(std::string_view a, std::string_view b) const {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return LowerCase(x) == LowerCase(y); });
}

ProfileText::ProfileText(std::unique_ptr<char[]> bytes, std::size_t size)
    : bytes_(std::move(bytes)), text_(bytes_.get(), size) {
  FindSections();
}

ProfileText::ProfileText(std::string_view text)
    : bytes_(std::make_unique_for_overwrite<char[]>(text.size())),
      text_(bytes_.get(), text.size()) {
  std::copy(text.begin(), text.end(), bytes_.get());
  FindSections();
}

void ProfileText::FindSections() {
  std::size_t header = FindHeader(text_, 0);
  while (header < text_.size()) {
    std::string_view rest = text_.substr(header);
    const std::string_view name = ParseHeaderName(TakeLine(rest));
    const std::size_t lines = text_.size() - rest.size();
    header = FindHeader(text_, lines);
    sections_.try_emplace(name, Section{text_.substr(lines, header - lines), std::nullopt});
  }
}

std::optional<std::string_view> ProfileText::Find(std::string_view section, std::string_view key) {
  const auto found = sections_.find(Trim(section));
  if (found == sections_.end()) return std::nullopt;
  auto& [lines, values] = found->second;
  if (!values) {
    values.emplace();
    for (std::string_view rest = lines; !rest.empty();) {
      if (const auto line = ParseKeyLine(TakeLine(rest)))
        values->try_emplace(line->Name, line->Value);
    }
  }
  const auto value = values->find(Trim(key));
  if (value == values->end()) return std::nullopt;
  return value->second;
}

std::vector<ProfileText::Line> ProfileText::Lines() const {
  std::vector<Line> lines;
  ByName<ByName<bool>> known;
  ByName<bool>* keys = nullptr;  // of the section that can be found
  std::string_view section;
  int number = 0;
  for (std::string_view rest = text_; !rest.empty();) {
    const std::string_view line = TrimBlanks(TakeLine(rest));
    ++number;
    if (line.starts_with('[')) {
      section = ParseHeaderName(line);
      const auto [found, isNew] = known.try_emplace(section);
      keys = isNew ? &found->second : nullptr;
      lines.push_back({number, true, section, "", "", !isNew});
    } else if (const auto parsed = ParseKeyLine(line)) {
      const bool lost = keys == nullptr || !keys->try_emplace(parsed->Name, true).second;
      lines.push_back({number, false, section, parsed->Name, parsed->Value, lost});
    }
  }
  return lines;
}

std::string ProfileText::With(std::string_view section, std::string_view key,
                              std::string_view value) const {
  section = Trim(section);
  key = Trim(key);
  const auto lineOf = [value](std::string_view name) {
    return std::string(name).append("=").append(value).append(CrLf);
  };
  const auto withLineEnd = [](std::string_view text) {
    std::string ended(text);
    if (!text.empty() && !EndsInLineEnd(text)) ended += CrLf;
    return ended;
  };

  const auto found = sections_.find(section);
  if (found == sections_.end()) {
    return withLineEnd(text_).append("[").append(section).append("]").append(CrLf) + lineOf(key);
  }
  const std::string_view lines = found->second.Lines;
  const auto offset = static_cast<std::size_t>(lines.data() - text_.data());
  std::size_t insertAt = offset;
  for (std::string_view rest = lines; !rest.empty();) {
    const std::size_t lineAt = offset + lines.size() - rest.size();
    const auto line = ParseKeyLine(TakeLine(rest));
    if (!line) continue;
    insertAt = offset + lines.size() - rest.size();
    if (SameName()(line->Name, key)) {
      return std::string(text_.substr(0, lineAt)) + lineOf(line->Name) +
             std::string(text_.substr(insertAt));
    }
  }
  return withLineEnd(text_.substr(0, insertAt)) + lineOf(key) + std::string(text_.substr(insertAt));
}

std::string ProfileText::With(const std::vector<Entry>& entries) const {
  std::string text(text_);
  for (const Entry& entry : entries)
    text = ProfileText(text).With(entry.Section, entry.Key, entry.Value);
  return text;
}

}  // namespace tarnwick
