// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "base/text.h"
#include "check_catalog/catalog_checker.h"
#include "support/temp_folder.h"

namespace tarnwick {

namespace fs = std::filesystem;

std::string Check(const TempFolder& folder) {
  const auto fault = [](const fs::path& file) {
    return TempFolder::ReadBytes(file).starts_with("<svg") ? "" : "can't be shown";
  };
  const Findings findings = CheckCatalogs(folder.Path(), fault);
  std::string said;
  for (const auto& finding : findings)
    said += FindingText(finding) + "\n";
  return said + SummaryText(findings) + "\n";
}

/// Whether `line` says what is done to a file: "-" what goes, which `goes` keeps, and "+" what
/// comes instead; "!" the file goes; "/" a folder comes; ">" its new name.
bool Spoil(const TempFolder& folder, const std::string& name, const std::string& line,
           std::string& goes) {
  const std::string text =
      ReplaceText("\\0", std::string(1, '\0'), ReplaceText("\\n", "\n", line.substr(1)));
  if (line[0] == '-') {
    goes = text;
  } else if (line[0] == '+') {
    std::string bytes = folder.Has(name) ? folder.Read(name) : "";
    EXPECT_NE(bytes.find(goes), std::string::npos) << line;
    folder.Write(name, bytes.replace(bytes.find(goes), goes.size(), text));
  } else if (line[0] == '>') {
    fs::rename(folder / name, folder / text);
  } else {
    return line == "!" ? fs::remove_all(folder / name) > 0
                       : line == "/" && fs::create_directory(folder / name);
  }
  return true;
}

TEST(CatalogChecker, HasASentenceForEveryFault) {
  // A file, what is done to it, what is said then, an empty line.
  std::ifstream faults(TEST_DATA "/faults.txt");
  int count = 0;
  for (std::string name, line, goes; std::getline(faults, name); ++count) {
    const TempFolder folder;
    folder.Copy(TEST_DATA "/sound");
    std::string expected;
    while (std::getline(faults, line) && !line.empty())
      if (!Spoil(folder, name, line, goes)) expected += line + "\n";
    EXPECT_EQ(Check(folder), expected) << name << " -" << goes;
  }
  EXPECT_EQ(count, 150);
}

TEST(CatalogChecker, SaysWhatTheTutorialShows) {
  const TempFolder folder;
  std::ifstream page(TUTORIAL ".md");
  for (std::string line; std::getline(page, line);) {
    if (!line.starts_with("```")) continue;
    const std::string kind = GetField(line, 1, " "), name = GetField(line, 2, " ");
    std::string text;
    while (std::getline(page, line) && line != "```")
      text += line + "\n";
    if (kind == "```text") {
      EXPECT_EQ(Check(folder), text);
    } else if (kind != "```sh") {  // the file, or what comes to its end
      folder.Write(name, (folder.Has(name) ? folder.Read(name) : "") + text);
      EXPECT_TRUE(TempFolder::ReadBytes(fs::path(TUTORIAL) / name).starts_with(folder.Read(name)));
    } else if (!name.empty()) {
      fs::remove_all(folder / name);
      fs::copy(fs::path(TUTORIAL) / name, folder / name);
    }
  }
}

}  // namespace tarnwick
