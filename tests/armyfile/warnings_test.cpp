// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "armyfile/warnings.h"

#include "support/sample_army.h"

namespace tarnwick {

TEST(Warnings, TellWhatTheNextClickEndsOrLoses) {
  SampleArmy desk;
  ArmyListForm form;
  std::string& file = desk.Army.Management.ArmyFileName.Text;
  const auto told = [&] {
    return LeaderWarning(desk.Army) + DeleteWarning(desk.Army, desk.Store, form) +
           SetupWarning(desk.Work) + TerrainWarning(desk.Army) +
           BaseArmyWarning(desk.Army, desk.Store) + FolderWarning(desk.Army, desk.Store);
  };
  EXPECT_EQ(told(),
            "Units can be deployed once the army was saved and loaded; until then setups belong to "
            "no army.");
  desk.Folder.Copy(TEST_DATA "/armies");
  desk.Load("saved");
  form.ArmyList.AddItem("saved");
  form.ArmyList.ListIndex = 0;
  EXPECT_EQ(told(), "");
  file = "italy\\po\\saved";
  EXPECT_EQ(told(),
            "These setups belong to saved, Save puts them into saved.army. Units of this army can "
            "be deployed once it was saved and loaded.There is no folder italy/po.");
  desk.Folder.Write("italy/po/x", "");
  desk.Header.ArmyFile = "italy/po/saved";
  EXPECT_EQ(told(), "Load army does not list the armies of folder italy/po.");
  desk.ChooseModule(1);
  file = desk.Header.ArmyFile = "Tyre";
  EXPECT_EQ(told(),
            "Delete removes saved.army from the base game's folder"
            "Terrain is saved into Tyre.army of the base game's folder and not read back.");
  file = "gaul/Tyre";
  EXPECT_EQ(FolderWarning(desk.Army, desk.Store), "There is no folder gaul.");
  std::filesystem::remove(desk.Folder / "saved.army");
  file = "";
  EXPECT_EQ(told(),
            "There is no saved.army in the base game's folder; Delete would end the editor."
            "An army without a file name can be saved, but not loaded.");
  file = "Tyre";
  form.ArmyList.ListIndex = -1;
  desk.Header.ArmyFile = file;
  desk.ChooseModule(0);
  desk.Army.BaseArmyName = "Atlantis";
  EXPECT_EQ(told(), "The module has no Atlantis; saved now, this army cannot be loaded.");
  desk.NewArmy("");
  EXPECT_EQ(told(),
            "This army has lost its base army; saved now, it cannot be loaded. "
            "Ctrl+Z brings it back.");
  desk.Army.TotUnits = 0;
  EXPECT_EQ(told(), "This army has no base army; saved now, it cannot be loaded.");
  desk.Army.SelectedLeader = -1;
  file = "";
  desk.Army.LeaderCount = 6;
  EXPECT_EQ(told(), "");
  ++desk.Army.LeaderCount;
  EXPECT_EQ(told(), "All seven places are taken; another leader ends the editor.");

  EXPECT_EQ(LengthWarning(std::string(199, 'x'), 1), "");
  EXPECT_EQ(LengthWarning(std::string(196, 'x') + "\r\n\r\n", 2), "200 of 254");
}

TEST(Warnings, TellOfAQuantityThatEndsTheEditor) {
  SampleArmy desk;
  desk.NewArmy("Sample Army");
  const std::string told = "Points cannot go as far as -20000; leaving the box ends the editor.";
  for (const auto& [text, warning] :
       {std::pair("-20000", told), std::pair("-300", std::string())}) {
    desk.Army.Units.Buy[1].Text = text;
    desk.Army.Command.SpecBuy[1].Text = text;
    EXPECT_EQ(UnitsWarning(desk.Army, desk.Store), warning);
    EXPECT_EQ(CardsWarning(desk.Army), warning);
  }
}

}  // namespace tarnwick
