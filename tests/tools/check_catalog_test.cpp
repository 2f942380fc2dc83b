// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "base/text.h"
#include "check_catalog/catalog_checker.h"
#include "support/temp_folder.h"

namespace tarnwick {

Lines Check(const TempFolder& folder) {
  const auto canShow = [](const auto& file) { return TempFolder::ReadBytes(file) == "picture"; };
  Lines said;
  for (const auto& problem : CheckCatalogs(folder.Path(), canShow))
    said.push_back(ProblemText(problem));
  return said;
}

TEST(CatalogChecker, HasASentenceForEveryFault) {
  const TempFolder folder;
  EXPECT_EQ(Check(folder).front(), "specials.dat: The file is missing.");
  folder.Copy(TEST_DATA "/sound");
  EXPECT_EQ(Check(folder), Lines());
  // A sentence, "-" what goes from the file that it names, "+" what comes, what else is said then.
  std::ifstream faults(TEST_DATA "/faults.txt");
  int count = 0;
  const auto line = [&faults](std::size_t mark) {
    std::string text;
    std::getline(faults >> std::ws, text);
    return text.empty() ? text : ReplaceText("\\n", "\n", text.substr(mark));
  };
  for (std::string sentence; !(sentence = line(0)).empty(); ++count) {
    const std::string goes = line(1), comes = line(1), more = line(0);
    const std::string name = sentence.substr(0, sentence.find(':')), sound = folder.Read(name);
    ASSERT_NE(sound.find(goes), std::string::npos) << goes;
    folder.Write(name, std::string(sound).replace(sound.find(goes), goes.size(), comes));
    const Lines said = Check(folder);
    EXPECT_EQ(std::count(said.begin(), said.end(), sentence), 1) << testing::PrintToString(said);
    EXPECT_EQ(said.size(), more == "alone" ? 1U : 1U + std::stoul(more.substr(4))) << sentence;
    folder.Write(name, sound);
  }
  EXPECT_EQ(count, 50);
}

}  // namespace tarnwick
