// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "check_catalog/catalog_checker.h"
#include "support/fake_host.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

using Files = std::map<std::string, std::string>;

/// Just as many units as the views of an army have room for.
std::string FullViews() {
  std::string units = "tot_units=46\n";
  for (int i = 1; i <= 46; ++i) {
    const std::string number = std::to_string(i);
    units += "unit" + number;
    units += i <= 23 ? "=SK,," + number + ",1,J,4,8,\n" : "=LM,Dra," + number + ",1,,4,8,Rode\n";
  }
  return units;
}

/// A small program folder without a fault.
const Files soundFiles = {
    {"armylist.dat",
     "[Armies]\ntotal=2\nname1=Host\nname2=Band\n"
     "[Host]\npoints=100\ncommand_pts=100\ntot_units=4\nunit1=HI,,5,4,,10,6,Wall\n"
     "unit2=SK,,3,1,J,4,8,\nunit3=LM,Dra,4.5,2,,30,1,Big\nunit4=SK,,4,1,J,3,8,\ntot_limits=2\n"
     "limit1=HI+MI,6,\nlimit2=SK,2,\ntot_leader=2\nleader1=Ana X,4,1,40\nleader2=Bel,7,0,32767\n"
     "tot_special=4\nspecial1=RALLY,8,4\nspecial2=FLANK,6,3\nspecial3=MISSILE,5,3\n"
     "special4=CALTROP,4,3\n"
     "[Band]\npoints=50\ncommand_pts=40\n" +
         FullViews() +
         "tot_limits=1\nlimit1=SK+SK,16,\ntot_leader=1\nleader1=Cyr,4,1,40\ntot_special=4\n"
         "special1=RALLY,8,4\nspecial2=FLANK,6,3\nspecial3=MISSILE,5,3\nspecial4=COHESION,4,3\n"},
    {"specials.dat", "[SPECIALS]\nWALL=" + std::string(254, 'x') +
                         "\nMOUNTED=Ridden.\n[Wall]\nspecial=WALL\n[Big]\nspecial=MOUNTED+WALL\n["
                         "Rode]\nspecial=MOUNTED\n"},
    {"images.dat",
     "[IMAGES]\ntotal=3\nimage1=a.svg,HI,,,Line\nimage2=b.svg,SK,,J,Boy\n"
     "image3=c.svg,LM,Dra,,Worm\n"},
    {"brakka/armylist.dat", "[Armies]\ntotal=0\n"},
    {"brakka/images_brakka.dat", "[IMAGES]\ntotal=1\nimage1=d.svg,SM,,,Imp\n"},
};

Lines Check(const Files& files) {
  const TempFolder folder;
  for (const auto& [name, bytes] : files)
    folder.Write(name, bytes);
  for (const char* picture : {"a.svg", "b.svg", "c.svg", "brakka/d.svg"})
    folder.Write(picture, "picture");
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
      {"0", "x", "The count \"x\" is no whole number from 0 to 32767."},
      {"0", "0.5", "The count \"0.5\" is no whole number from 0 to 32767."},
      {"0", "-1", "The count \"-1\" is no whole number from 0 to 32767."}}},
    {"armylist.dat: [Armies] ",
     {{"total=2", "total=1", "name2: The row is beyond the count and is never read."},
      {"total=2", "total=3", "name3: The row is missing."},
      {"Band", "hOST", "name2: The name is \"Host\" again, but for its case."},
      {"Band", "Band\nname2=x", "name2: The key stands here a second time and is never read."},
      {"Band", "Band\nx=\xE2\x82\xAC", "x: The line holds characters that are not Windows-1252."},
      {"Band", "Band\n\x81=", "\x81: The line holds characters that are not Windows-1252."}}},
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
      {"CALTROP,4", "CALTROP,x", "The cost \"x\" is no whole number from 0 to 32767."},
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
      {"Boy", "Boy,", "image2: The row has not 5 fields."},
      {"Boy", "", "image2: The row has no name for the choice list."},
      {"SK", "Sk", "image2: The type \"Sk\" is unknown.", 25},
      {"b.svg", "x.svg", "image2: The picture x.svg is missing."},
      {"b.svg", "images.dat", "image2: The picture images.dat cannot be read."},
      {"a.svg", "B.SVG",
       "image2: The picture is that of image1 too; loading an army finds the first.", 1}}},
    {"brakka/images_brakka.dat: [IMAGES] total: ",
     {{"1", "198", "Both catalogs together have more than 200 rows.", 197}}}};

TEST(CatalogChecker, HasASentenceForEveryFault) {
  EXPECT_EQ(Check(soundFiles), Lines());
  for (const auto& [place, ofPlace] : faults) {
    for (const auto& [find, replace, sentence, more] : ofPlace) {
      Files files = soundFiles;
      std::string& bytes = files[place.substr(0, place.find(':'))];
      ASSERT_NE(bytes.find(find), std::string::npos) << find;
      bytes.replace(bytes.find(find), find.size(), replace);
      const Lines said = Check(files);
      EXPECT_EQ(std::count(said.begin(), said.end(), place + sentence), 1) << sentence;
      EXPECT_EQ(said.size(), 1 + more) << sentence << testing::PrintToString(said);
    }
  }
  EXPECT_EQ(Check({}).front(), "specials.dat: The file is missing.");
}

}  // namespace
}  // namespace tarnwick
