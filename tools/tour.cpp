// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// Drives the real window through a whole army on the shipped catalogs and leaves a picture of
// every panel and dialog, the pictures of the guide and of the README, and the saved army. With no
// display it uses the offscreen platform, which has all but dragging; xvfb-run gives it a display
// that nobody sees.

#include <cstdio>
#include <filesystem>
#include <fstream>

#include <QApplication>
#include <QLabel>

#include "album.h"
#include "ui/editor.h"
#include "ui/parts/application_style.h"
#include "window_driver.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

class Tour {
 public:
  Tour(MainForm& form, fs::path pictures) : form_(form), album_(std::move(pictures)) {
    driver_.OnSight([this](QWidget& dialog) { TakePicture(dialog, dialog.objectName()); });
  }

  void Run() {
    Start();
    TakePicture(form_, "start");
    ChooseArmy();
    BuyUnits();
    LookAtUnits();
    ChooseLeader();
    BuyCards();
    Describe();
    PlaceTerrain();
    Save();
    Load();
    Deploy();
    SaveAgainAndDelete();
    LookAtTheSheet();
    LookAtBrakka();
  }

 private:
  void TakePicture(QWidget& window, const QString& name) { album_.Take(window, name); }

  /// Takes a picture of a dialog, panel or label for the guide.
  void Illustrate(const QString& name, const QString& part) {
    album_.Illustrate(name, driver_.Find(part));
  }

  /// The program has said just this since the last time.
  void Expect(const QStringList& messages) {
    const QStringList said = driver_.TakeMessages();
    for (const QString& message : said)
      std::printf("  \"%s\"\n", qPrintable(message));
    if (said != messages) Fail("expected \"" + messages.join("\", \"") + "\"");
  }

  void ExpectText(const QString& label, const QString& text) {
    if (driver_.Find<QLabel>(label).text() != text) {
      Fail(label + " shows " + driver_.Find<QLabel>(label).text() + ", not " + text);
    }
  }

  void Buy(int line, const QString& quantity) {
    driver_.Enter(QString("Buy(%1)").arg(line), quantity);
    driver_.Press(Qt::Key_Return);
  }

  /// Corrects a refused entry: the box still has the focus, its text is selected.
  void Correct(const QString& quantity) {
    driver_.Type(quantity);
    driver_.Press(Qt::Key_Return);
  }

  /// Drags a piece, or picks it and puts it down where the platform knows no dragging.
  void Drag(
      const QString& piece, const QString& area, const std::function<void()>& see = [] {}) {
    if (WindowDriver::CanDrag()) {
      driver_.Drag(piece, area, see);
    } else {
      std::puts("  (no dragging on the offscreen platform: clicks)");
      driver_.Click(piece);
      driver_.Click(area);
    }
  }

  void Start();
  void ChooseArmy();
  void BuyUnits();
  void LookAtUnits();
  void ChooseLeader();
  void BuyCards();
  void Describe();
  void PlaceTerrain();
  void Save();
  void Load();
  void Deploy();
  void SaveAgainAndDelete();
  void LookAtTheSheet();
  void LookAtBrakka();

  MainForm& form_;
  Album album_;
  WindowDriver driver_;
};

void Tour::Start() {
  if (!form_.Start()) Fail(driver_.TakeMessages().join("\n"));
  form_.resize(1280, 800);
  form_.show();
}

void Tour::ChooseArmy() {
  std::puts("A new army out of the catalog");
  driver_.OnDialog([this] {
    driver_.Click("Command1");
    driver_.ClickEntry("ArmyList", 0);
    Illustrate("new-army", "ArmySelectionForm");
    driver_.ClickEntry("ArmyList", 0, true);
  });
  driver_.Click("NewArmyBtn");
  Expect({"Please select one army"});
  driver_.Enter("ArmyName", "Hannibal at the Ticinus");
  driver_.Enter("ArmyFileName", "Ticinus");
  TakePicture(form_, "army-management");
  Illustrate("army", "EditFrame(4)");
}

void Tour::BuyUnits() {
  std::puts("Units: one purchase beyond the maximum, one beyond the points");
  driver_.Click("ShowUnitsBtn");
  Buy(0, "4");
  Buy(1, "5");
  Expect({"You can only buy 4 units"});
  Correct("3");
  Buy(4, "2");
  Buy(8, "3");
  Buy(9, "3");
  TakePicture(form_, "units-infantry");
  Illustrate("units", "EditFrame(0)");
  Illustrate("missing", "Frame1");
  const QWidget& lastButton = driver_.Find("GuideBtn");
  album_.Illustrate("buttons", *lastButton.parentWidget(), &lastButton);
  driver_.Click("VerifyBtn");
  Expect({"You must buy at least 3 units of type LC or HC"});

  driver_.Click("ViewOption(1)");
  Buy(0, "3");
  Buy(3, "2");
  Buy(5, "4");
  Buy(6, "1");
  Expect({"Insufficient points left - max 0"});
  Correct("0");
  Buy(5, "2");
  Buy(6, "1");
  TakePicture(form_, "units-mounted");
  Illustrate("mounted", "EditFrame(0)");
  ExpectText("TotalCost", "Points left: 45 of 400");
}

void Tour::LookAtUnits() {
  std::puts("What was bought, a unit's special abilities and its picture");
  driver_.Click("ViewOption(2)");
  TakePicture(form_, "units-bought");
  driver_.OnDialog([this] {
    Illustrate("abilities", "specForm");
    driver_.Click("Command1");
  });
  driver_.Click("specLabel(0)");
  driver_.Click("ViewBtn(0)");
  auto& picture = driver_.Find("PictureForm");
  TakePicture(picture, "picture");
  picture.close();
  driver_.Click("VerifyBtn");
  Expect({"Please select a Leader"});
}

void Tour::ChooseLeader() {
  std::puts("A leader of the player's own");
  driver_.Click("ShowCommandBtn");
  driver_.Click("LeaderName(0)");
  driver_.OnDialog([this] {
    driver_.Enter("LeaderName", "Gisgo");
    driver_.Choose("InitiativeBox", 1);
    driver_.Choose("CommandBox", 1);
    driver_.Press(Qt::Key_Tab);
    driver_.Choose("CommandBox", 0);
    Illustrate("leader", "LeaderMgmtForm");
    TakePicture(driver_.Find("LeaderMgmtForm"), "leader");
    driver_.Click("Command1");
  });
  driver_.Click("LeaderBtn");
  Expect({"Only leaders with initiative = 7 can have 2 command points"});
  driver_.Click("LeaderName(5)");
}

void Tour::BuyCards() {
  std::puts("Special cards");
  driver_.Enter("SpecBuy(0)", "2");
  driver_.Enter("SpecBuy(1)", "9");
  driver_.Press(Qt::Key_Tab);
  Expect({"You can only buy 4 cards"});
  Correct("1");
  TakePicture(form_, "command");
  Illustrate("command", "EditFrame(1)");
  driver_.Click("ShowUnitsBtn");
  driver_.Click("VerifyBtn");
  Expect({"Army is OK"});
}

void Tour::Describe() {
  std::puts("Description, period, type and special rules");
  driver_.Click("ShowDetailBtn");
  driver_.Click("ArmyDesc");
  driver_.Type("The river at the winter solstice.\nMago waits in the brushwood.");
  driver_.Enter("FromData", "218");
  driver_.Enter("ToData", "300");
  driver_.Press(Qt::Key_Tab);
  Expect({"the date must be successive to 218"});
  Correct("201");
  driver_.Click("Discipline");
  driver_.Click("Mobility");
  TakePicture(form_, "detail");
  Illustrate("detail", "EditFrame(2)");
}

void Tour::PlaceTerrain() {
  std::puts("Terrain: by a drag, by clicks, by keys, and one piece too dear");
  driver_.Click("ShowTerrainBtn");
  Drag("TerrImg(1)", "Area(1)", [this] { TakePicture(form_, "terrain-drag"); });
  ExpectText("ArmyPts", "15");
  Drag("TerrImg(5)", "Area(4)");
  Expect({"Not enough points"});
  Drag("TerrImg(0)", "Area(1)");
  driver_.Click("TerrImg(3)");
  driver_.Click("Area(3)");
  driver_.Find("TerrImg(3)").setFocus();
  driver_.Press(Qt::Key_Space);
  driver_.Find("Area(5)").setFocus();
  driver_.Press(Qt::Key_Return);
  ExpectText("ArmyPts", "5");
  TakePicture(form_, "terrain");
  Illustrate("terrain", "EditFrame(3)");
}

void Tour::Load() {
  std::puts("Loading it again");
  driver_.OnDialog([this] {
    driver_.Click("Command1");
    driver_.ClickEntry("ArmyList", "Ticinus");
    TakePicture(driver_.Find("ArmyListForm"), "browser");
    Illustrate("load", "ArmyListForm");
    driver_.ClickEntry("ArmyList", "Ticinus", true);
  });
  driver_.Click("LoadBtn");
  Expect({"This army has not been created whit this editor"});
  ExpectText("TotalCost", "Points left: 5 of 400");
  TakePicture(form_, "loaded");
  Illustrate("summary", "Frame1");
}

void Tour::Deploy() {
  std::puts("Two setups with their deployment");
  driver_.Click("ShowSetup");
  driver_.Click("Command6");
  driver_.Enter("description", "Mago in ambush.\nThe horse on the wings.");
  driver_.ClickEntry("unitList", 0);
  driver_.Click("assignBtn(3)");
  driver_.ClickEntry("unitList", 3);
  driver_.Click("assignBtn(0)");
  TakePicture(form_, "setup-1");
  Illustrate("setup", "EditFrame(6)");
  driver_.Click("Command6");
  driver_.ClickEntry("unitList", 1);
  driver_.Click("assignBtn(7)");
  TakePicture(form_, "setup-2");
  driver_.Click("Command3");
  driver_.Click("NewMonsterBtn");
  TakePicture(form_, "monster-laboratory");
}

void Tour::SaveAgainAndDelete() {
  std::puts("Saving with the setups, and deleting a copy");
  driver_.Click("QuickSave");
  Expect({"Do you want to replace the existing Ticinus.army file ?", "Army Saved"});
  driver_.Click("ShowSaveFrame");
  driver_.Enter("ArmyFileName", "Copy");
  driver_.Click("SaveBtn");
  Expect({"Army Saved"});
  driver_.OnDialog([this] {
    driver_.ClickEntry("ArmyList", "Copy");
    driver_.Click("DelArmy");
    driver_.ClickEntry("ArmyList", "Ticinus", true);
  });
  driver_.Click("LoadBtn");
  Expect({"Do You really want to delete the army Copy ?"});
  ExpectText("TotalCost", "Points left: 5 of 400");
}

void Tour::LookAtTheSheet() {
  std::puts("The army on paper");
  driver_.OnDialog([this] {
    TakePicture(driver_.Find("SheetForm"), "sheet");
    Illustrate("sheet", "SheetForm");
    driver_.CloseDialog();
  });
  driver_.Press(Qt::Key_P, Qt::ControlModifier);
}

void Tour::LookAtBrakka() {
  std::puts("The second module's monsters, and what deleting an army would do there");
  driver_.Click("ShowSaveFrame", "modOption(1)");
  driver_.OnDialog([this] {
    driver_.ClickEntry("ArmyList", "Fenmoot");
    Illustrate("delete", "ArmyListForm");
    driver_.ClickEntry("ArmyList", "Fenmoot", true);
  });
  driver_.Click("LoadBtn");
  driver_.Click("ViewOption(1)");
  TakePicture(form_, "brakka");
  Illustrate("brakka", "EditFrame(0)");
  driver_.Click("ViewOption(2)");
  form_.resize(1280, 560);
  WindowDriver::Settle();
  album_.Keep(form_.grab(), "window.png");
}

void Tour::Save() {
  std::puts("Saving, and not replacing what was saved");
  driver_.Click("ShowSaveFrame");
  driver_.Click("SaveBtn");
  Expect({"Army Saved"});
  driver_.AnswerNext(QMessageBox::Cancel);
  driver_.Press(Qt::Key_S, Qt::ControlModifier);
  Expect({"Do you want to replace the existing Ticinus.army file ?"});
  TakePicture(form_, "saved");
  driver_.Click("ShowSetup");
  Illustrate("too-early", "SetupWarning");
  driver_.Click("ShowSaveFrame");
}

/// Stands in every folder that a tour has made.
constexpr const char* mark = ".tour";

/// Whether nothing is lost with the folder.
bool MayReplace(const fs::path& out) {
  if (!fs::exists(out)) return true;
  return fs::is_directory(out) && (fs::is_empty(out) || fs::exists(out / mark));
}

bool LiesIn(const fs::path& file, const fs::path& folder) {
  const fs::path way = fs::weakly_canonical(file).lexically_relative(fs::weakly_canonical(folder));
  return !way.empty() && *way.begin() != "..";
}

void LayOut(const fs::path& data, const fs::path& out) {
  fs::remove_all(out);
  fs::create_directories(out);
  std::ofstream(out / mark) << "The next tour throws this folder away.\n";
  fs::copy(data, out / "program", fs::copy_options::recursive);
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  if (argc != 3 || !fs::is_directory(argv[1])) {
    std::fputs(
        "usage: tour DATA OUT\n  DATA  the folder of the catalogs\n"
        "  OUT   takes the pictures and the saved army; made anew\n",
        stderr);
    return 2;
  }
  if (qEnvironmentVariableIsEmpty("DISPLAY")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
  QApplication application(argc, argv);
  ApplyStyle();

  const fs::path out = fs::absolute(argv[2]).lexically_normal();
  try {
    if (!MayReplace(out) || LiesIn(argv[1], out)) {
      std::fprintf(stderr, "tour: %s holds what no tour has made; name a new or an empty folder\n",
                   out.c_str());
      return 2;
    }
    LayOut(argv[1], out);
  } catch (const fs::filesystem_error& error) {
    std::fprintf(stderr, "tour: %s\n", error.what());
    return 1;
  }
  Editor editor(out / "program");
  Tour(editor.Form, out).Run();
  std::printf("Pictures and the program folder with the saved army are in %s\n", out.c_str());
  return 0;
}
