// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/army_browser.h"

#include "base/text.h"
#include "support/sample_army.h"

namespace tarnwick {

struct ArmyBrowser : testing::Test, SampleArmy {
  /// Lists the armies and selects one by its name; the names come back.
  Lines Select(const std::string& name) {
    FillArmyList(Army, Store, Form);
    Form.ArmyList.Select(name);
    ShowArmyDetail(Army, Store, Form);
    return Entries(Form.ArmyList);
  }
  /// Chooses the selected army; what was said comes back, or else the army.
  std::string Choose() {
    return SelectArmy(Work, Store, Host, Form) ? Header.ArmyFile : Host.Heard().at(0);
  }

  ArmyListForm Form;
};

TEST_F(ArmyBrowser, ListsAndDescribesArmyFiles) {
  const std::string file = TempFolder::ReadBytes(TEST_DATA "/armies/saved.army");
  for (const char* name : {"Zama.army", "alesia.army", "\xC3\x89lan.army", "b.army", "c.ARMY",
                           "d.army.new", "brakka\\e.army", "brakka/troll.army", "folder.army/x"}) {
    Folder.Write(name, ReplaceText("TQ=11", "TQ=", ReplaceText("e=30", "e=30 %", file)));
  }
  EXPECT_EQ(Select("b"), (Lines{"alesia", "b", "Zama", "\xC9lan"}));
  const std::string detail =
      "\n\rName: Tyre in arms\n\rBase: Sample Army\n\rUnits: 3\n\rRoute %: 30\n\rPoints: 28\n\r"
      "TQ points: 0\n\rRally cards: 2\n\rFlank cards: 3\n\rLeader: Arcas of Tyre\n\r"
      "  command: 2\n\r  initiative: 7";
  EXPECT_EQ(Form.ArmyDetailLabel.Caption, detail);
  EXPECT_EQ(Choose(), "b");
  Army.BrakkaMode = true;
  // Armies of the second module are weighed by their namesakes in the program folder.
  Folder.Write("troll.army", "[EDITOR]\nversion=9.5\n");
  EXPECT_EQ(Select("troll"), Lines{"troll"});
  EXPECT_EQ(Form.ArmyDetailLabel.Caption, detail + "\n\r\n\r*** Required editor version: 9.5");
  EXPECT_EQ(Choose(), "This army need version 9.5 or better");
  EXPECT_EQ(Header.ArmyFile, "b");
}

TEST_F(ArmyBrowser, WeighsVersionsAsOneRoundedNumber) {
  const auto choose = [this](const std::string& version) {
    Folder.Write("x.army", "[EDITOR]\nversion=" + version + "\n[ARMY]\nbase=Host\n");
    Select("x");
    return Choose();
  };
  for (const char* version : {"1.2.1", "1.1.11", "1.2", "1.2.1.9", "1.2.1b", "1.2.14e-1", "new"})
    EXPECT_EQ(choose(version), "x") << version;
  for (const std::string version : {"1.3.0", "1.1.15", "1.2.2", "1.2.15e-1", "2"})
    EXPECT_EQ(choose(version), "This army need version " + version + " or better");
}

TEST_F(ArmyBrowser, ChoosesOnlyWhatThisEditorMade) {
  Folder.Write("other.army", "some other program's\n");
  Folder.Write("own.army", "[ARMY]\nbase=Host\n");  // of no version
  const std::string foreign = "This army has not been created whit this editor";
  EXPECT_EQ(Choose(), foreign);
  Select("other");
  EXPECT_EQ(Choose(), foreign);
  Select("own");
  EXPECT_EQ(Choose(), "own");
  Form.ArmyList.ListIndex = -1;
  ShowArmyDetail(Army, Store, Form);  // what was shown last stays
  EXPECT_NE(Form.ArmyDetailLabel.Caption, "");
  EXPECT_EQ(Choose(), "Please select one army");
  Select("");
  EXPECT_EQ(Choose(), foreign);  // listing the armies again forgets the one that was shown
}

TEST_F(ArmyBrowser, DeletesInTheProgramFolderAfterAQuestion) {
  Folder.Write("a.army", "");
  Folder.Write("brakka/a.army", "[ARMY]\n");
  Army.BrakkaMode = true;
  DelArmy_Click(Army, Store, Host, Form);  // nothing is selected
  Host.Answers = {false, true, true};
  Select("a");
  DelArmy_Click(Army, Store, Host, Form);
  EXPECT_TRUE(Folder.Has("a.army"));
  DelArmy_Click(Army, Store, Host, Form);
  EXPECT_FALSE(Folder.Has("a.army") || Form.ArmyList.HasSelection());
  EXPECT_EQ(Select("a"), Lines{"a"});
  std::filesystem::create_directory(Folder / "a.army");  // no file
  EXPECT_EQ(
      ErrorOf([this] { DelArmy_Click(Army, Store, Host, Form); }),
      "File " + (Folder / "a.army").string() + " cannot be deleted: No such file or directory");
  EXPECT_TRUE(Folder.Has("a.army"));
  EXPECT_EQ(Host.Heard(), Lines(3, "Do You really want to delete the army a ?"));
}

}  // namespace tarnwick
