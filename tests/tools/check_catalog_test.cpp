// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "base/text.h"
#include "check_catalog/catalog_checker.h"
#include "support/temp_folder.h"

namespace tarnwick {

Lines Check(const TempFolder& folder) {
  const auto fault = [](const auto& file) {
    return TempFolder::ReadBytes(file).starts_with("<svg") ? "" : "can't be shown";
  };
  Lines said;
  for (const auto& finding : CheckCatalogs(folder.Path(), fault))
    said.push_back(FindingText(finding));
  return said;
}

/// Does to the file `name` what a line of faults.txt says: "-" what goes, which `goes` keeps, and
/// "+" what comes for it; "!" the file goes; "/" a folder comes; ">" its new name.
bool Spoil(const TempFolder& folder, const std::string& name, const std::string& line,
           std::string& goes) {
  const std::string text =
      ReplaceText("\\0", std::string(1, '\0'), ReplaceText("\\n", "\n", line.substr(1)));
  std::string bytes = folder.Has(name) && line[0] == '+' ? folder.Read(name) : "";
  switch (line[0]) {
    case '-':
      goes = text;
      break;
    case '+':
      EXPECT_NE(bytes.find(goes), std::string::npos) << line;
      folder.Write(name, bytes.replace(bytes.find(goes), goes.size(), text));
      break;
    case '!':
      std::filesystem::remove_all(folder / name);
      break;
    case '/':
      std::filesystem::create_directory(folder / name);
      break;
    case '>':
      std::filesystem::rename(folder / name, folder / text);
      break;
    default:
      return false;
  }
  return true;
}

TEST(CatalogChecker, HasASentenceForEveryFault) {
  // A file, what is done to it, what is said then, an empty line.
  std::ifstream faults(TEST_DATA "/faults.txt", std::ios::binary);
  int count = 0;
  for (std::string name, line, goes; std::getline(faults, name); ++count) {
    const TempFolder folder;
    folder.Copy(TEST_DATA "/sound");
    Lines expected;
    while (std::getline(faults, line) && !line.empty())
      if (!Spoil(folder, name, line, goes)) expected.push_back(line);
    EXPECT_EQ(Check(folder), expected) << name << " -" << goes;
  }
  EXPECT_EQ(count, 133);
}

}  // namespace tarnwick
