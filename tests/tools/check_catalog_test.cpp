// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/text.h"
#include "check_catalog/catalog_checker.h"
#include "support/temp_folder.h"

namespace tarnwick {
namespace {

using Files = std::map<std::string, std::string>;

/// A small program folder without a fault.
const Files soundFiles = {
    {"armylist.dat",
     "[Armies]\ntotal=2\nname1=Host\nname2=Band\n"
     "[Host]\npoints=100\ncommand_pts=100\ntot_units=3\nunit1=HI,,5,4,,10,6,Wall\n"
     "unit2=SK,,3,1,J,4,8,\nunit3=LM,Dra,4.5,2,,30,1,Big\ntot_limits=2\nlimit1=HI+MI,4,\n"
     "limit2=SK,2,\ntot_leader=2\nleader1=Ana of Ur,4,1,40\nleader2=Bel,7,2,150\ntot_special=4\n"
     "special1=RALLY,8,4\nspecial2=FLANK,6,3\nspecial3=MISSILE,5,3\nspecial4=CALTROP,4,3\n"
     "[Band]\npoints=50\ncommand_pts=40\ntot_units=1\nunit1=SK,,3,1,J,4,8,\ntot_limits=0\n"
     "tot_leader=1\nleader1=Cyr,4,1,40\ntot_special=4\nspecial1=RALLY,8,4\nspecial2=FLANK,6,3\n"
     "special3=MISSILE,5,3\nspecial4=COHESION,4,3\n"},
    {"specials.dat",
     "[SPECIALS]\nWALL=Shields locked.\nMOUNTED=Ridden.\n[Wall]\nspecial=WALL\n[Big]\n"
     "special=MOUNTED+WALL\n"},
    {"images.dat",
     "[IMAGES]\ntotal=3\nimage1=a.svg,HI,,,Line\nimage2=b.svg,SK,,J,Boy\nimage3=c.svg,LM,Dra,,"
     "Worm\n"},
    {"brakka/armylist.dat", "[Armies]\ntotal=0\n"},
    {"brakka/images_brakka.dat", "[IMAGES]\ntotal=1\nimage1=d.svg,SM,,,Imp\n"},
    {"a.svg", "picture"},
    {"b.svg", "picture"},
    {"c.svg", "picture"},
    {"brakka/d.svg", "picture"},
};

std::vector<std::string> Check(const Files& files) {
  const TempFolder folder;
  for (const auto& [name, bytes] : files)
    folder.Write(name, bytes);
  std::vector<std::string> texts;
  for (const auto& problem : CheckCatalogs(folder.Path(), [](const auto& file) {
         return TempFolder::ReadBytes(file) == "picture";
       })) {
    texts.push_back(ProblemText(problem));
  }
  return texts;
}

TEST(CatalogChecker, SaysNothingOfSoundCatalogs) {
  EXPECT_EQ(Check(soundFiles), std::vector<std::string>());
  Files twice = soundFiles;  // a limit that names its type twice counts each unit twice
  std::string& list = twice["armylist.dat"];
  list = ReplaceText("limit2=SK,2,", "limit2=SK+SK,16,", list);
  EXPECT_EQ(Check(twice), std::vector<std::string>());
}

/// In `File`, `Find` becomes `Replace`; then this is what the checker says, besides whatever else
/// the change brings about.
struct Fault {
  const char* File;
  const char* Find;
  const char* Replace;
  const char* Said;
};

const Fault faults[] = {
    {"armylist.dat", "total=2", "total=3", "armylist.dat: [Armies] name3: The row is missing."},
    {"armylist.dat", "total=2", "total=1",
     "armylist.dat: [Armies] name2: The row is beyond the count and is never read."},
    {"armylist.dat", "total=2", "total=two",
     "armylist.dat: [Armies] total: The count \"two\" is no whole number from 0 to 32767."},
    {"armylist.dat", "total=2\n", "", "armylist.dat: [Armies] total: The count is missing."},
    {"armylist.dat", "name2=Band", "name2=hOST",
     "armylist.dat: [Armies] name2: The name is \"Host\" again, but for its case."},
    {"armylist.dat", "name2=Band", "name2=Bandits",
     "armylist.dat: [Bandits] tot_units: The army has no section of its name, or no units."},
    {"armylist.dat", "name2=Band", "name2=Band\nname2=Host",
     "armylist.dat: [Armies] name2: The key stands here a second time and is never read."},
    {"armylist.dat", "[Band]", "[Band]\n[Host]\nx=1\n[Bond]",
     "armylist.dat: [Host] x: The key stands here a second time and is never read."},
    {"armylist.dat", "unit2=SK,,3,1,J,4,8,", "unit2=SK,,3,1,J,4",
     "armylist.dat: [Host] unit2: The row has not 8 fields."},
    {"armylist.dat", "J,4,8,\nunit3", "J,4.5,8,\nunit3",
     "armylist.dat: [Host] unit2: The cost \"4.5\" is no whole number from 0 to 32767."},
    {"armylist.dat", "J,4,8,\nunit3", "J,4,0,\nunit3",
     "armylist.dat: [Host] unit2: The maximum \"0\" is no whole number from 1 to 32767."},
    {"armylist.dat", "unit2=SK,,3", "unit2=Sk,,3",
     "armylist.dat: [Host] unit2: The type \"Sk\" is unknown."},
    {"armylist.dat", "unit2=SK,,3", "unit2=CO,Old,3",
     "armylist.dat: [Host] unit2: The class \"Old\" of CO is unknown: Vet, Con or Rec."},
    {"armylist.dat", "unit2=SK,,3", "unit2=SK,,good",
     "armylist.dat: [Host] unit2: The TQ \"good\" is no number."},
    {"armylist.dat", "unit2=SK,,3,1", "unit2=SK,,3,",
     "armylist.dat: [Host] unit2: The size \"\" is no number."},
    {"armylist.dat", "unit2=SK,,3,1,J", "unit2=SK,,3,1,A",
     R"(armylist.dat: [Host] unit2: The missile "A" is saved as "AF" and never found again.)"},
    {"armylist.dat", "unit2=SK,,3,1,J", "unit2=SK,,3,1,S",
     "armylist.dat: [Host] unit2: No picture fits the row; a unit of it could not be saved."},
    {"armylist.dat", "unit2=SK,,3,1,J,4,8,", "unit2=HI,,5,4,,9,8,",
     "armylist.dat: [Host] unit2: Loading an army can't tell the row from unit1."},
    {"armylist.dat", "10,6,Wall", "10,6,Wale",
     "armylist.dat: [Host] unit1: The special abilities \"Wale\" are not in specials.dat."},
    {"armylist.dat", "limit2=SK,2,", "limit2=SM,2,",
     "armylist.dat: [Host] limit2: The limit \"SM,2,\" names a type or class that none counts."},
    {"armylist.dat", "limit2=SK,2,", "limit2=SK,few,",
     "armylist.dat: [Host] limit2: The minimum \"few\" is no whole number from 1 to 32767."},
    {"armylist.dat", "limit2=SK,2,", "limit2=SK,9,",
     "armylist.dat: [Host] tot_limits: The limits can't be met within the maxima."},
    {"armylist.dat", "points=100", "points=47",
     "armylist.dat: [Host] points: The limits can't be met within the points: they cost 48 at "
     "least."},
    {"armylist.dat", "tot_limits=2", "tot_limits=8",
     "armylist.dat: [Host] tot_limits: The count \"8\" is no whole number from 0 to 7."},
    {"armylist.dat", "command_pts=100", "command_pts=39",
     "armylist.dat: [Host] command_pts: No leader can be paid."},
    {"armylist.dat", "leader2=Bel", "leader2=Anabel",
     "armylist.dat: [Host] leader2: Loading an army takes the leader for \"Ana of Ur\"."},
    {"armylist.dat", "leader2=Bel,7,2", "leader2=Bel,7,two",
     "armylist.dat: [Host] leader2: The command \"two\" is no whole number from 0 to 32767."},
    {"armylist.dat", "tot_leader=2", "tot_leader=8",
     "armylist.dat: [Host] tot_leader: The count \"8\" is no whole number from 0 to 7."},
    {"armylist.dat",
     "tot_special=4\nspecial1=RALLY,8,4\nspecial2=FLANK,6,3\nspecial3=MISSILE,5,3\nspecial4="
     "CALTROP",
     "tot_special=3\nspecial1=RALLY,8,4\nspecial2=FLANK,6,3\nspecial3=MISSILE",
     "armylist.dat: [Host] tot_special: The window has its place for just four cards."},
    {"armylist.dat", "CALTROP", "TRAP",
     "armylist.dat: [Host] special4: The card \"TRAP\" is never loaded with an army."},
    {"armylist.dat", "CALTROP", "RALLY",
     "armylist.dat: [Host] special4: The card \"RALLY\" is offered twice."},
    {"armylist.dat", "name2=Band", "name2=Band\nnote=\xE2\x82\xAC",
     "armylist.dat: [Armies] note: The line holds characters that are not Windows-1252."},
    {"specials.dat", "special=MOUNTED+WALL", "special=MOUNTED++WALL",
     "specials.dat: [Big] special: Nothing explains the code \"\"."},
    {"specials.dat", "special=WALL", "special=W+W+W+W+W+W+W+W+W+W+W",
     "specials.dat: [Wall] special: The group has more than ten codes."},
    {"specials.dat", "WALL=Shields", "MOAT=Shields",
     "specials.dat: [Wall] special: Nothing explains the code \"WALL\"."},
    {"images.dat", "image2=b.svg,SK,,J,Boy", "image2=b.svg,SK,,J",
     "images.dat: [IMAGES] image2: The row has not 5 fields."},
    {"images.dat", "image2=b.svg", "image2=x.svg",
     "images.dat: [IMAGES] image2: The picture x.svg is missing."},
    {"images.dat", "image2=b.svg", "image2=images.dat",
     "images.dat: [IMAGES] image2: The picture images.dat cannot be read."},
    {"images.dat", "image2=b.svg", "image2=A.SVG",
     "images.dat: [IMAGES] image2: The picture is that of image1 too; loading an army finds the "
     "first."},
    {"images.dat", "total=3", "total=201",
     "images.dat: [IMAGES] total: The count \"201\" is no whole number from 0 to 200."},
    {"brakka/images_brakka.dat", "total=1", "total=199",
     "brakka/images_brakka.dat: [IMAGES] total: Both catalogs together have more than 200 rows."},
};

TEST(CatalogChecker, HasASentenceForEveryFault) {
  for (const Fault& fault : faults) {
    SCOPED_TRACE(fault.Said);
    Files files = soundFiles;
    const std::string sound = files[fault.File];
    const std::size_t place = sound.find(fault.Find);
    ASSERT_NE(place, std::string::npos);
    files[fault.File].replace(place, std::string(fault.Find).size(), fault.Replace);
    const std::vector<std::string> said = Check(files);
    EXPECT_EQ(std::count(said.begin(), said.end(), fault.Said), 1) << testing::PrintToString(said);
  }
}

TEST(CatalogChecker, MeasuresTextsViewsAndFolders) {
  const auto says = [](const Files& files, const std::string& sentence) {
    const std::vector<std::string> said = Check(files);
    return std::find(said.begin(), said.end(), sentence) != said.end();
  };
  Files files = soundFiles;
  files["specials.dat"] += "LONG=" + std::string(255, 'x') + "\n";
  EXPECT_TRUE(says(files,
                   "specials.dat: [Big] LONG: The value is longer than 254 bytes; the rest "
                   "is never read."));

  std::string crowd;
  for (int i = 2; i <= 24; ++i) {
    crowd += "unit" + std::to_string(i) + "=SK,," + std::to_string(i + 2) + ",1,J,4,8,\n";
  }
  files = soundFiles;
  std::string& list = files["armylist.dat"];
  list =
      ReplaceText("tot_units=1\n", "tot_units=23\n" + ReplaceText("unit24=", "no=", crowd), list);
  EXPECT_EQ(Check(files), std::vector<std::string>());
  list = ReplaceText("tot_units=23\n", "tot_units=24\n", ReplaceText("no=", "unit24=", list));
  EXPECT_EQ(Check(files), std::vector<std::string>{
                              "armylist.dat: [Band] tot_units: The infantry view has more than 23 "
                              "rows."});

  EXPECT_TRUE(says({}, "brakka/armylist.dat: The file is missing."));
}

}  // namespace
}  // namespace tarnwick
