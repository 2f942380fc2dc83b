// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/army_browser.h"

#include <string>

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

struct ArmyBrowser : testing::Test {
  void Select(const std::string& name) {
    Form.ArmyList.Select(name);
    ShowArmyDetail(Work.Army, Form);
  }

  std::string Entries() const {
    std::string names;
    for (const ListEntry& entry : Form.ArmyList.Entries)
      names += entry.Text + ";";
    return names;
  }

  TempFolder Folder;
  WorkingArmy Work{Folder.Path()};
  FakeHost Host;
  ArmyListForm Form;
};

TEST_F(ArmyBrowser, ListsAndDescribesArmyFiles) {
  for (const char* name : {"zama.army", "Alesia.army", "\xC3\x89lan.army", "b.army", "c.ARMY",
                           "d.army.new", "brakka/troll.army"}) {
    Folder.Write(name, "[ARMY]\nbase=Host\n");
  }
  Folder.Write("folder.army/x", "");
  FillArmyList(Work.Army, Form);
  EXPECT_EQ(Entries(), "Alesia;b;zama;\xC9lan;");
  Folder.Write("b.army",
               "[EDITOR]\nversion=1.2.1\n[LEADER]\nname=Ana\ninitiative=7\ncommand=2\n"
               "[ARMY]\nname=The B\nbase=Host\nnumunits=12\nroute=30 %\npoints=90\nTQ=\nrally=2\n");
  Select("b");
  EXPECT_EQ(Form.ArmyDetailLabel.Caption,
            "\n\rName: The B\n\rBase: Host\n\rUnits: 12\n\rRoute %: 30\n\rPoints: 90\n\r"
            "TQ points: 0\n\rRally cards: 2\n\rFlank cards: \n\rLeader: Ana\n\r  command: 2\n\r"
            "  initiative: 7");
  EXPECT_TRUE(SelectArmy(Work, Host, Form));
  EXPECT_EQ(Work.Header.ArmyFile, "b");
  Work.Army.BrakkaMode = true;
  FillArmyList(Work.Army, Form);
  EXPECT_EQ(Entries(), "troll;");
}

TEST_F(ArmyBrowser, WeighsVersionsAsOneNumber) {
  const struct {
    const char* Version;
    bool Accepted;
  } versions[] = {{"1.2.1", true},   {"0.9.9", true},  {"", true},      {"1.3.0", false},
                  {"1.1.15", false}, {"1.1.11", true}, {"1.2", true},   {"1.2.1.9", true},
                  {"2", false},      {"new", true},    {"1.2.1b", true}};
  for (const auto& [version, accepted] : versions) {
    SCOPED_TRACE(version);
    Folder.Write("x.army", std::string("[EDITOR]\nversion=") + version + "\n[ARMY]\nbase=Host\n");
    FillArmyList(Work.Army, Form);
    Select("x");
    const std::string end = std::string("\n\r\n\r*** Required editor version: ") + version;
    EXPECT_EQ(Form.ArmyDetailLabel.Caption.ends_with(end), !accepted);
    EXPECT_EQ(SelectArmy(Work, Host, Form), accepted);
    const std::string refusal = std::string("This army need version ") + version + " or better";
    EXPECT_EQ(Host.Heard(), accepted ? Lines() : Lines{refusal});
  }
  // The second module's files are weighed by their namesakes in the program folder.
  Folder.Write("brakka/y.army", "[EDITOR]\nversion=9\n[ARMY]\nbase=Host\n");
  Work.Army.BrakkaMode = true;
  FillArmyList(Work.Army, Form);
  Select("y");
  EXPECT_TRUE(SelectArmy(Work, Host, Form));
}

TEST_F(ArmyBrowser, ChoosesOnlyWhatThisEditorMade) {
  Folder.Write("other.army", "some other program's\n");
  Folder.Write("own.army", "[ARMY]\nbase=Host\n");
  FillArmyList(Work.Army, Form);
  const Lines foreign = {"This army has not been created whit this editor"};
  EXPECT_FALSE(SelectArmy(Work, Host, Form));
  EXPECT_EQ(Host.Heard(), foreign);
  Select("other");
  EXPECT_FALSE(SelectArmy(Work, Host, Form));
  EXPECT_EQ(Host.Heard(), foreign);
  Select("own");
  Form.ArmyList.ListIndex = -1;
  EXPECT_FALSE(SelectArmy(Work, Host, Form));
  EXPECT_EQ(Host.Heard(), Lines{"Please select one army"});
  EXPECT_EQ(Work.Header.ArmyFile, "");
}

TEST_F(ArmyBrowser, DeletesInTheProgramFolderAfterAQuestion) {
  Folder.Write("a.army", "[ARMY]\n");
  Folder.Write("brakka/a.army", "[ARMY]\n");
  Work.Army.BrakkaMode = true;
  FillArmyList(Work.Army, Form);
  DelArmy_Click(Work.Army, Host, Form);  // nothing is selected
  Select("a");
  Host.Answers = {false, true};
  DelArmy_Click(Work.Army, Host, Form);
  EXPECT_TRUE(Folder.Has("a.army"));
  DelArmy_Click(Work.Army, Host, Form);
  const std::string question = "Do You really want to delete the army a ?";
  EXPECT_EQ(Host.Heard(), (Lines{question, question}));
  EXPECT_FALSE(Folder.Has("a.army"));
  EXPECT_TRUE(Folder.Has("brakka/a.army"));
  EXPECT_EQ(Entries(), "a;");
  Select("a");
  Host.Answers = {true};
  EXPECT_THROW(DelArmy_Click(Work.Army, Host, Form), FileError);
}

}  // namespace
}  // namespace tarnwick
