// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "army_sheet/army_file.h"

#include "battlefield/setups.h"
#include "support/temp_folder.h"
#include "support/testing.h"

namespace tarnwick {

namespace fs = std::filesystem;

struct ArmyFile : testing::Test {
  ArmyFile() {
    Folder.Copy(SHIPPED_DATA);
    Folder.Write("working.setup", "[SETUP 1]\r\ndescription=in work\r\n");
  }
  LoadedArmy Load(const fs::path& file, const fs::path& program = "") const {
    return LoadArmyFile(file, program, Scratch.Path());
  }
  /// The name of the army that was loaded, or the trouble with it.
  std::string Outcome(const fs::path& file, const fs::path& program = "") const {
    const LoadedArmy army = Load(file, program);
    if (army.Trouble.empty()) return army.Work.Army.Management.ArmyName.Text;
    return (army.Whole ? "whole: " : "") + army.Trouble;
  }
  TempFolder Folder, Scratch, Elsewhere;
};

TEST_F(ArmyFile, IsLoadedAsInTheEditorAndLeavesItAlone) {
  const Lines before = Folder.Files();
  const LoadedArmy army = Load(Folder / "Trebia.army");
  EXPECT_EQ(Joined(army.Whole, army.Trouble, army.Work.Army.BrakkaMode), "1||0");
  EXPECT_EQ(Entries(army.Work.Field.Setup.setupList), (Lines{"1", "2"}));
  EXPECT_EQ(Outcome(Folder / "brakka/Fenmoot.army"), "The Matriarch Goes to War");
  EXPECT_TRUE(Load(Folder / "brakka/Fenmoot.army").Work.Army.BrakkaMode);
  EXPECT_EQ(Folder.Read("working.setup"), "[SETUP 1]\r\ndescription=in work\r\n");
  EXPECT_EQ(Folder.Files(), before);
}

TEST_F(ArmyFile, LiesInAnyFolder) {
  Elsewhere.Write("sent/Hannibal.army", Folder.Read("Trebia.army"));
  Elsewhere.Write("brakka/Fen.army", Folder.Read("brakka/Fenmoot.army"));
  const fs::path sent = Elsewhere / "sent/Hannibal.army", fen = Elsewhere / "brakka/Fen.army";
  const std::string trebia = "Hannibal at the Trebia", fenmoot = "The Matriarch Goes to War";
  const std::string unknown =
      "The army type [Carthage in Italy] is not present in armylist.dat. "
      "This army cannot be edited";
  EXPECT_EQ(Outcome(sent), unknown);
  for (const auto& [file, program, name] : {std::tuple(sent, "", trebia),
                                            {sent, "brakka", unknown},
                                            {fen, "", fenmoot},
                                            {fen, "brakka/", fenmoot},
                                            {fen, "brakka/../brakka/.", fenmoot}})
    EXPECT_EQ(Outcome(file, Folder / program), name) << program;
  EXPECT_EQ(Entries(Load(sent, Folder.Path()).Work.Field.Setup.setupList).size(), 2U);
  EXPECT_EQ(Outcome(Folder / "./brakka/./Fenmoot.army"), fenmoot);
  // The second module keeps setups, and looks for the version, in the folder above.
  Elsewhere.Write("Fen.army", "[SETUP 3]\r\ndescription=Reeds\r\nfield1=PH,,4,4,\r\n");
  const LoadedArmy setUp = Load(fen, Folder.Path());
  EXPECT_EQ(Entries(setUp.Work.Field.Setup.setupList), Lines{"3"});
  EXPECT_EQ(ReadSetup(setUp.Store, 3).Units[0], "PH,,4,4,");
}

TEST_F(ArmyFile, SaysWhatIsWrong) {
  const std::string trebia = Folder.Read("Trebia.army");
  const auto written = [&](const std::string& name, const std::string& find,
                           const std::string& by) {
    Folder.Write(name, std::string(trebia).replace(trebia.find(find), find.size(), by));
    return Outcome(Folder / name);
  };
  EXPECT_EQ(written("a.army", "unit7=HI", "unit7=XX"),
            "Unit number 7 not found in " + (Folder / "a.army").string());
  EXPECT_EQ(written("a.army", "1.2.1", "1.3.0"), "This army need version 1.3.0 or better");
  EXPECT_EQ(written("a.army", "numunits=23", "numunits=15"),
            "whole: You must buy at least 3 units of type LC or HC");
  EXPECT_EQ(written("a.army", "area1=CLEAR", "area1=LAVA"),
            "Run-time error: Subscript out of range");
  EXPECT_EQ(written("a.txt", "1.2.1", "1.2.1"), "The name of an army file ends in .army");
  EXPECT_EQ(written("\xC5\x81.army", "1.2.1", "1.2.1"), "Hannibal at the Trebia");
  EXPECT_EQ(Outcome(Folder / "none" / "none.army"), "There is no such file");
  EXPECT_EQ(Outcome(Folder / "brakka"), "It is no plain file");
  EXPECT_EQ(Outcome(""), "There is no such file");
}

}  // namespace tarnwick
