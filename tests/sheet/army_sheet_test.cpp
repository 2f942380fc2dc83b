// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "sheet/army_sheet.h"

#include <regex>

#include "support/sample_army.h"

namespace tarnwick {

/// What a reader sees of a sheet: a line a row or paragraph, a bar behind each cell, side and bytes
/// of the pictures.
std::string Plain(std::string html) {
  const std::pair<const char*, const char*> steps[] = {
      {R"(<img alt='' width='(\d+)' height='\1' src='data:image/([^']*)'>)", "{$1 $2}"},
      {"\n", " "},
      {"</t[dh]>", "|"},
      {"</(tr|p|h1|h2|li)>|<br>", "\n"},
      {"<[^>]*>", ""},
      {" +", " "},
      {" ?([|\n]) ?", "$1"}};
  for (const auto& [what, by] : steps)
    html = std::regex_replace(html, std::regex(what), by);
  return html;
}

struct Sheet : testing::Test, SampleArmy {
  Sheet() {
    Folder.Copy(TEST_DATA "/armies");
    Terrain[0] = "c";
    Terrain[3] = "wo";
    Terrain[1] = "slo";
  }
  std::string Html() const { return ArmySheet(Work, Store, Terrain); }
  std::string Text() const { return Plain(Html()); }
  bool Says(const std::string& text) const { return Text().find(text) != std::string::npos; }
  TerrainPictures Terrain;
};

TEST_F(Sheet, ShowsTheWholeArmy) {
  EXPECT_EQ(Text(), "No army yet\n");
  Folder.Write("specials.dat",
               "[Line]\nspecial=WALL+ODD\n[PH]\nspecial=PIKES+WALL\n"
               "[SPECIALS]\nWALL=A wall.\nPIKES=Long.\nSHOCK=Fast.\n");
  Folder.Write("pictures/sk two.svg", "<svg/>");
  Folder.Write("pictures/ph.svg", "");
  Folder.Write("pictures/vet.PNG", "\x89PNG");
  Load("saved");
  Army.BaseUnits[1].Bought = 2;
  Army.BaseUnits[3].SpecialsKey = "PH";
  Army.Catalog.Images[1].Id = "pictures\\vet.PNG";
  EXPECT_EQ(Text(),
            "Tyre in arms\n"
            "Base army|Sample Army|Army points|78 spent, 422 left of 500|\n"
            "Leader|Arcas of Tyre, initiative 7, command 2, 150 points|"
            "Command points|179 spent, 21 left of 200|\n"
            "Author|A. Player|Troop quality|TQ: 11 (3) - TQ ratio: 1.83|\n"
            "Period|300 BC to 50 AC|Cards|2 RALLY, 3 FLANK|\n"
            "Type|personal, fantasy|Deck|10 cards, 5 units (50%)|\n"
            "Special rules|TRIBAL, FEROCITY, MOBILITY, LONGSWORD, FOW, DISCIPLINE|||\n"
            "First line\nsecond line\n"
            "5 units\n"
            "||Unit|TQ|Size|Missile|Special abilities|Points|\n"
            "2|{22 png;base64,iVBORw==}|HI Vet Veteran|2.5|4|A|WALL, ODD|32|\n"
            "2|{22 svg+xml;base64,PHN2Zy8+}|SK Long javelin|3|1|J||8|\n"
            "1||PH Pike|4.5|4||PIKES, WALL|20|\n"
            "PIKES Long.\nWALL A wall.\n"
            "Battlefield\n"
            "{32 svg+xml;base64,Yw==}\nclear|{32 svg+xml;base64,Yw==}\nclear|"
            "{32 svg+xml;base64,Yw==}\nclear|\n"
            "{32 svg+xml;base64,d28=}\nwood|{32 svg+xml;base64,Yw==}\nclear|"
            "{32 svg+xml;base64,Yw==}\nclear|\n"
            "{32 svg+xml;base64,Yw==}\nclear|{32 svg+xml;base64,Yw==}\nclear|"
            "{32 svg+xml;base64,c2xv}\nslope|\n||\n"
            "Setup 2 a\nb\n"
            "Left|Centre|Right|\n"
            "1&nbsp; SK TQ 3 Sz 1 J\n2&nbsp;|3&nbsp;\n4&nbsp;\n5&nbsp;\n6&nbsp;\n7&nbsp;|"
            "8&nbsp;\n9&nbsp;|\n||\n");
}

TEST_F(Sheet, SaysWhatIsMissingAndHowTheLimitsStand) {
  NewArmy("Strict Army");
  Army.Management.ArmyName.Text = "";
  EXPECT_TRUE(
      Says("An army without a name\nThis army is not complete:\n"
           "You must buy at least 1 units of type HI\nPlease select a Leader\n"));
  EXPECT_TRUE(Says("\nLeader|none|")) << Text();
  EXPECT_TRUE(Says("No units yet.\n"));
  EXPECT_TRUE(Says("|\n|Limits\nLimit|need|have||\nHI|1|0|not met|\n"));
  Army.BaseUnits[1] = ParseIdentity("HI,,4,4,");
  Army.BaseUnits[1].Bought = -1;  // as a negative quantity leaves it
  Army.TotUnits = 1;
  TickOption(Army.Command.LeaderName, 0);
  Army.SelectedLeader = 0;
  Army.Management.ArmyFileName.Text = "strict";
  EXPECT_TRUE(Says("strict\nThis army")) << Text();
  EXPECT_TRUE(Says("-1 units\n")) << Text();
  Army.BaseUnits[1].Bought = 1;
  Army.BaseArmyName = "";
  EXPECT_TRUE(Says("strict\nBase army|none|")) << Text();
  EXPECT_TRUE(Says("1 unit\n"));
  EXPECT_TRUE(Says("HI|1|1|met|\n"));
}

TEST_F(Sheet, ShowsTextsAsTextsAndReadsNoPictureElsewhere) {
  Load("saved");
  Army.Management.ArmyName.Text = "<b>\"A\" & \xC4\x07</b>";
  Field.AreaTerrain[4] = "<LAVA>";
  EXPECT_TRUE(Says("&lt;b&gt;&quot;A&quot; &amp; \xC3\x84 &lt;/b&gt;\n"));
  EXPECT_TRUE(Says("|&lt;lava&gt;|"));
  const std::pair<const char*, const char*> files[] = {
      {"out.svg", "<svg/>"},
      {"program/in.svg", "<svg>"},
      {"program/in.txt", "<svg/>"},
      {"program/folder.svg/x", ""},
      {"program/large.png", ""},
      {"program/href.svg", "<svg><image xlink:href = '/secret.png'/></svg>"},
      {"program/packed.svg", "\x1F\x8B"},
      {"program/ours.svg", "<a href='#a' href=\"data:x\">"}};
  for (const auto& [name, bytes] : files)
    Folder.Write(name, bytes);
  Folder.Write("program/large.png", std::string(4'000'001, 'x'));
  std::filesystem::create_symlink(Folder / "out.svg", Folder / "program/link.svg");
  Store.ProgramFolder = Folder / "program";
  for (const char* id :
       {"../out.svg", "x/..\\../out.svg", "../program/none.svg", "in.txt", "none.svg", "",
        "folder.svg", "large.png", "href.svg", "packed.svg", "link.svg"}) {
    Army.Catalog.Images[3].Id = id;
    EXPECT_TRUE(Says("\n2||SK")) << id;
  }
  Army.Catalog.Images[3].Id = "ours.svg";
  EXPECT_FALSE(Says("\n2||SK"));
  Army.Catalog.Images[3].Id = "in.svg";
  EXPECT_TRUE(Says("\n2|{22 svg+xml;base64,PHN2Zz4=}|SK"));
}

TEST(SheetPage, PutsEachSheetOnAPageOfItsOwn) {
  const std::string html = SheetPage("A & B", {"one", "two"});
  EXPECT_NE(html.find("<title>A &amp; B</title>"), std::string::npos);
  EXPECT_NE(html.find("<div>one</div>\n<div style='page-break-before: always'>two</div>"),
            std::string::npos);
}

}  // namespace tarnwick
