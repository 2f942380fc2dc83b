// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/army_browser.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

class ArmyBrowser : public testing::Test {
 protected:
  /// Lists the armies, by name, and selects one.
  std::string Select(const std::string& name) {
    FillArmyList(work_.Army, disk_, form_);
    form_.ArmyList.Select(name);
    ShowArmyDetail(work_.Army, disk_, form_);
    std::string names;
    for (const ListEntry& entry : form_.ArmyList.Entries)
      names += entry.Text + ";";
    return names;
  }

  /// Whether the selected army is chosen, and what is said then.
  std::string Choose() {
    const bool chosen = SelectArmy(work_, disk_, host_, form_);
    const Lines said = host_.Heard();
    EXPECT_EQ(chosen, said.empty());
    return chosen ? "chosen" : said.front();
  }

  TempFolder folder_;
  Disk disk_{folder_.Path()};
  WorkingArmy work_;
  FakeHost host_;
  ArmyListForm form_;
};

TEST_F(ArmyBrowser, ListsAndDescribesArmyFiles) {
  for (const char* name : {"Zama.army", "alesia.army", "\xC3\x89lan.army", "b.army", "c.ARMY",
                           "d.army.new", "brakka\\e.army", "brakka/troll.army", "folder.army/x"}) {
    folder_.Write(name,
                  "[EDITOR]\nversion=1.2.1\n[LEADER]\nname=Ana\ninitiative=7\ncommand=2\n[ARMY]\n"
                  "name=The B\nbase=Host\nnumunits=12\nroute=30 %\npoints=90\nTQ=\nrally=2\n");
  }
  EXPECT_EQ(Select("b"), "alesia;b;Zama;\xC9lan;");
  const std::string detail =
      "\n\rName: The B\n\rBase: Host\n\rUnits: 12\n\rRoute %: 30\n\rPoints: 90\n\r"
      "TQ points: 0\n\rRally cards: 2\n\rFlank cards: \n\rLeader: Ana\n\r  command: 2\n\r"
      "  initiative: 7";
  EXPECT_EQ(form_.ArmyDetailLabel.Caption, detail);
  EXPECT_EQ(Choose() + work_.Header.ArmyFile, "chosenb");
  work_.Army.BrakkaMode = true;
  // Armies of the second module are weighed by their namesakes in the program folder.
  folder_.Write("troll.army", "[EDITOR]\nversion=9.5\n");
  EXPECT_EQ(Select("troll"), "troll;");
  EXPECT_EQ(form_.ArmyDetailLabel.Caption, detail + "\n\r\n\r*** Required editor version: 9.5");
  EXPECT_EQ(Choose() + work_.Header.ArmyFile, "This army need version 9.5 or betterb");
}

TEST_F(ArmyBrowser, WeighsVersionsAsOneNumber) {
  const auto choose = [this](const std::string& version) {
    folder_.Write("x.army", "[EDITOR]\nversion=" + version + "\n[ARMY]\nbase=Host\n");
    Select("x");
    return Choose();
  };
  for (const char* version : {"1.2.1", "0.9.9", "1.1.11", "1.2", "1.2.1.9", "1.2.1b", "new"})
    EXPECT_EQ(choose(version), "chosen") << version;
  for (const std::string version : {"1.3.0", "1.1.15", "1.2.2", "2"})
    EXPECT_EQ(choose(version), "This army need version " + version + " or better");
}

TEST_F(ArmyBrowser, ChoosesOnlyWhatThisEditorMade) {
  folder_.Write("other.army", "some other program's\n");
  folder_.Write("own.army", "[ARMY]\nbase=Host\n");  // of no version
  const std::string foreign = "This army has not been created whit this editor";
  EXPECT_EQ(Choose(), foreign);
  Select("other");
  EXPECT_EQ(Choose(), foreign);
  Select("own");
  EXPECT_EQ(Choose(), "chosen");
  form_.ArmyList.ListIndex = -1;
  EXPECT_EQ(Choose(), "Please select one army");
  Select("");
  EXPECT_EQ(Choose(), foreign);  // listing the armies again forgets the one that was shown
}

TEST_F(ArmyBrowser, DeletesInTheProgramFolderAfterAQuestion) {
  folder_.Write("a.army", "");
  folder_.Write("brakka/a.army", "[ARMY]\n");
  work_.Army.BrakkaMode = true;
  DelArmy_Click(work_.Army, disk_, host_, form_);  // nothing is selected
  host_.Answers = {false, true, true};
  Select("a");
  DelArmy_Click(work_.Army, disk_, host_, form_);
  EXPECT_TRUE(folder_.Has("a.army"));
  DelArmy_Click(work_.Army, disk_, host_, form_);
  EXPECT_FALSE(folder_.Has("a.army") || form_.ArmyList.HasSelection());
  EXPECT_EQ(Select("a"), "a;");
  std::filesystem::create_directory(folder_ / "a.army");  // no file
  EXPECT_THROW(DelArmy_Click(work_.Army, disk_, host_, form_), FileError);
  EXPECT_TRUE(folder_.Has("a.army"));
  const std::string question = "Do You really want to delete the army a ?";
  EXPECT_EQ(host_.Heard(), (Lines{question, question, question}));
}

}  // namespace
}  // namespace tarnwick
