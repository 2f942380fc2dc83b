// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <map>

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

struct Fault {
  std::string Find, Replace;  ///< where the one stands first, the other takes its place
  std::string Said;
  std::size_t More = 0;  ///< how many further sentences the change brings about
};

/// By the place that they are in; the file's name goes up to the colon.
const std::map<std::string, std::vector<Fault>> faults = {
    {"brakka/armylist.dat: [Armies] total: ",
     {{"total=0\n", "", "The count is missing."},
      {"0", "0.5", "The count \"0.5\" is no whole number from 0 to 32767."}}},
    {"armylist.dat: [Armies] ",
     {{"total=2", "total=1", "name2: The row is beyond the count and is never read."},
      {"total=2", "total=3", "name3: The row is missing."},
      {"Band", "hOST", "name2: The name is \"Host\" again, but for its case."},
      {"Band", "Band\nname2=x", "name2: The key stands here a second time and is never read."},
      {"Band", "Band\nx=\x81", "x: The line holds characters that are not Windows-1252."}}},
    {"armylist.dat: [x] tot_units: ",
     {{"Band", "x", "The army has no section of its name, or no units."}}},
    {"armylist.dat: [Band] tot_units: ",
     {{"LM,Dra,24,1,,4,8,Rode", "SK,,24,1,J,4,8,", "The infantry view has more than 23 rows."},
      {"SK,,23,1,J,4,8,", "LM,Dra,23,1,,4,8,Rode", "The mounted view has more than 23 rows."}}},
    {"armylist.dat: [Host] unit2: ",
     {{"J,4,8,", "J,4", "The row has not 8 fields."},
      {"J,4,8,", "J,4.5,8,", "The cost \"4.5\" is no whole number from 0 to 32767."},
      {"J,4,8,", "J,4,0,", "The maximum \"0\" is no whole number from 1 to 32767."},
      {"SK,,3,1,J", "Sk,,3,1,J", "The type \"Sk\" is unknown.", 1},
      {"SK,,3,1,J", "CO,Old,3,1,J", "The class \"Old\" of CO is unknown: Vet, Con or Rec.", 1},
      {"SK,,3", "SK,,good", "The TQ \"good\" is no number."},
      {"SK,,3,1", "SK,,3,", "The size \"\" is no number."},
      {"SK,,3,1,J", "SK,,3,1,A", "The missile \"A\" is saved as \"AF\" and never found again.", 1},
      {"SK,,3,1,J", "SK,,3,1,S", "No picture fits the row; a unit of it could not be saved."},
      {"SK,,3,1,J,4", "HI,,5,4,,9", "Loading an army can't tell the row from unit1."}}},
    {"armylist.dat: [Host] limit2: ",
     {{"SK,2,", "SK,2,,", "The row has more than 3 fields."},
      {"SK,2,", "SK,few,", "The minimum \"few\" is no whole number from 1 to 32767."},
      {"SK,2,", "SM,2,", "The limit \"SM,2,\" names a type or class that none counts.", 1},
      {"SK,2,", "SK+SM,2,", "The limit \"SK+SM,2,\" names a type or class that none counts."}}},
    {"armylist.dat: [Host] leader2: ",
     {{"7,0,32767", "7,0,32767,", "The row has not 4 fields."},
      {"7,0", "6.5,0", "The initiative \"6.5\" is no whole number from 0 to 32767."},
      {"7,0", "7,two", "The command \"two\" is no whole number from 0 to 32767."},
      {"32767", "-1", "The cost \"-1\" is no whole number from 0 to 32767."},
      {"Bel", "Anabel", "Loading an army takes the leader for \"Ana X\"."}}},
    {"armylist.dat: [Host] special4: ",
     {{"CALTROP", "TRAP", "The card \"TRAP\" is never loaded with an army."},
      {"CALTROP", "RALLY", "The card \"RALLY\" is offered twice."},
      {"CALTROP,4,3", "CALTROP,4,0", "The maximum \"0\" is no whole number from 1 to 32767."}}},
    {"armylist.dat: [Host] ",
     {{"Wall", "Wale", "unit1: The special abilities \"Wale\" are not in specials.dat."},
      {"nts=100", "nts=65",
       "points: The limits can't be met within the points: they cost 66 at least."},
      {"SK,2", "SK,17", "tot_limits: The limits can't be met within the maxima."},
      {"pts=100", "pts=39", "command_pts: No leader can be paid."},
      {"special=4", "special=3", "tot_special: The window has its place for just four cards.", 1},
      {"limits=2", "limits=8", "tot_limits: The count \"8\" is no whole number from 0 to 7.", 1},
      {"leader=2", "leader=8", "tot_leader: The count \"8\" is no whole number from 0 to 7.", 2},
      {"s=4", "s=201", "tot_units: The count \"201\" is no whole number from 0 to 200.", 2}}},
    {"specials.dat: ",
     {{"WALL=", "WALL=x",
       "[SPECIALS] WALL: The value is longer than 254 bytes; the rest is never read."},
      {"MOUNTED+", "MOUNTED++", "[Big] special: Nothing explains the code \"\"."},
      {"+WALL", "+A+A+A+A+A+A+A+A+A+A", "[Big] special: The group has more than ten codes.", 9}}},
    {"images.dat: [IMAGES] ",
     {{"3", "201", "total: The count \"201\" is no whole number from 0 to 200.", 3},
      {"Boy", "", "image2: The row has no name for the choice list."},
      {"SK", "Sk", "image2: The type \"Sk\" is unknown.", 25},
      {"b.svg", "x.svg", "image2: The picture x.svg is missing."},
      {"b.svg", "images.dat", "image2: The picture images.dat cannot be read."},
      {"a.svg", "B.SVG",
       "image2: The picture is that of image1 too; loading an army finds the first.", 1}}},
    {"brakka/images_brakka.dat: [IMAGES] total: ",
     {{"1", "198", "Both catalogs together have more than 200 rows.", 197}}}};

TEST(CatalogChecker, HasASentenceForEveryFault) {
  const TempFolder folder;
  EXPECT_EQ(Check(folder).front(), "specials.dat: The file is missing.");
  folder.Copy(TEST_DATA "/sound");
  EXPECT_EQ(Check(folder), Lines());
  for (const auto& [place, ofPlace] : faults) {
    const std::string file = place.substr(0, place.find(':')), sound = folder.Read(file);
    for (const auto& [find, replace, sentence, more] : ofPlace) {
      ASSERT_NE(sound.find(find), std::string::npos) << find;
      folder.Write(file, std::string(sound).replace(sound.find(find), find.size(), replace));
      const Lines said = Check(folder);
      EXPECT_EQ(std::count(said.begin(), said.end(), place + sentence), 1) << sentence;
      EXPECT_EQ(said.size(), 1 + more) << sentence << testing::PrintToString(said);
    }
    folder.Write(file, sound);
  }
}

}  // namespace tarnwick
