// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
// Army files as a sheet to read and print, and whether they load and verify.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QCommandLineParser>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPageLayout>
#include <QTemporaryDir>

#include "army_sheet/army_file.h"
#include "armyfile/army_summary.h"
#include "base/ansi.h"
#include "base/errors.h"
#include "catalog/file_replacement.h"
#include "sheet/army_sheet.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/sheet_pages.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

enum Status { fine, faulty, misused };

fs::path PathOf(const QString& text) {
  return text.toStdU16String();
}

/// One line, whatever is in the texts.
void Print(std::FILE* out, const QString& file, const std::string& ansi) {
  std::string line = file.toStdString() + ": " + Utf8FromAnsi(ansi);
  std::ranges::replace_if(
      line, [](unsigned char c) { return c < ' ' || c == 0x7F; }, '?');
  std::fprintf(out, "%s\n", line.c_str());
}

/// "375 of 400 army points"
std::string PointsText(const std::optional<Budget>& budget, const char* kind) {
  if (!budget) return "";
  return ", " + std::to_string(budget->Spent.Value()) + " of " + std::to_string(budget->Whole()) +
         kind;
}

std::string OkText(const WorkingArmy& work) {
  const ArmySummary summary = Summarize(work);
  return "OK, " + work.Army.BaseArmyName + PointsText(summary.Army, " army points") +
         PointsText(summary.Command, " command points");
}

/// The two things that the program does with armies.
class Job {
 public:
  Job(fs::path folder, fs::path scratch)
      : folder_(std::move(folder)), scratch_(std::move(scratch)) {}

  Status Check(const QStringList& files) const {
    Status status = fine;
    for (const QString& file : files) {
      const LoadedArmy army = Load(file);
      if (!army.Trouble.empty()) status = faulty;
      Print(stdout, file, army.Trouble.empty() ? OkText(army.Work) : army.Trouble);
    }
    return std::fflush(stdout) == 0 ? status : faulty;
  }

  Status Write(const QStringList& files, const QString& out, QPageSize::PageSizeId paper) const {
    const TerrainPictures terrain = ReadTerrainPictures();
    std::vector<std::string> sheets;
    std::string title;
    for (const QString& file : files) {
      const LoadedArmy army = Load(file);
      if (!army.Trouble.empty()) Print(stderr, file, army.Trouble);
      if (!army.Whole) continue;  // the others are told, too
      sheets.push_back(ArmySheet(army.Work, army.Store, terrain));
      title += (title.empty() ? "" : ", ") + SheetTitle(army.Work);
    }
    if (std::ssize(sheets) < files.size()) return faulty;
    const std::string html = SheetPage(title, sheets);
    const QPageLayout layout(QPageSize(paper), QPageLayout::Portrait, sheetMargins,
                             QPageLayout::Millimeter);
    const bool pdf = out.endsWith(".pdf");
    ReplaceFile(fs::absolute(PathOf(out)), pdf ? SheetPdf(html, ToQt(title), layout) : html,
                Durability::Lasting);
    return fine;
  }

 private:
  LoadedArmy Load(const QString& file) const {
    return LoadArmyFile(PathOf(file), folder_, scratch_);
  }

  fs::path folder_, scratch_;
};

Status Misuse(const QString& why) {
  std::fprintf(stderr, "army-sheet: %s; \"army-sheet --help\" tells more\n", qUtf8Printable(why));
  return misused;
}

Status Run(const QStringList& arguments) {
  const QCommandLineOption out("o", "The sheet to write; its name ends in .pdf or .html.", "OUT");
  const QCommandLineOption check("check", "No sheet, but a line for each file.");
  const QCommandLineOption folder(
      "folder",
      "The program folder with the catalogs. Without it, the folder that the file lies in. When "
      "one of both is named brakka, the program folder is the one above it, and the army is one of "
      "Brakka.",
      "DIR");
  const QCommandLineOption paper("paper", "The paper of a PDF, a4 or letter.", "SIZE", "a4");
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Writes armies to a sheet to read and print, or says of each whether it loads and verifies\n"
      "against its catalog. The exit status is 0 when all is well, 1 when a file does not load or\n"
      "verify or the sheet can't be written, 2 when the arguments are wrong.");
  parser.addPositionalArgument("FILE.army", "Army files.", "FILE.army...");
  parser.addOptions({out, check, folder, paper});
  const QCommandLineOption help = parser.addHelpOption(), version = parser.addVersionOption();

  if (!parser.parse(arguments)) return Misuse(parser.errorText());
  const QStringList files = parser.positionalArguments();
  const QString target = parser.value(out), size = parser.value(paper);
  if (parser.isSet(help) || parser.isSet(version)) {
    const QString text = parser.isSet(help)
                             ? parser.helpText()
                             : "army-sheet " + QString::fromStdString(VersionText({})) + "\n";
    std::fputs(qUtf8Printable(text), stdout);
    return fine;
  }
  if (files.isEmpty()) return Misuse("No army file is named");
  if (parser.isSet(check) == parser.isSet(out)) return Misuse("Either -o OUT or --check is needed");
  if (parser.isSet(out) && !target.endsWith(".pdf") && !target.endsWith(".html")) {
    return Misuse("The name of the sheet must end in .pdf or .html");
  }
  const QFileInfo written(target);
  if (written.exists() && !written.isFile()) return Misuse(target + " is no plain file");
  const QString program = parser.value(folder);
  if (parser.isSet(folder) && !QFileInfo(program).isDir()) {
    return Misuse("There is no folder \"" + program + "\"");
  }
  if (size != "a4" && size != "letter") return Misuse("The paper must be a4 or letter");
  const QTemporaryDir scratch;
  if (!scratch.isValid()) throw FileError(FromQt(scratch.errorString()));
  const Job job(PathOf(program), PathOf(scratch.path()));
  if (parser.isSet(check)) return job.Check(files);
  return job.Write(files, target, size == "a4" ? QPageSize::A4 : QPageSize::Letter);
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char* argv[]) {
  Q_INIT_RESOURCE(pictures);
  // A PDF has text in it, and nobody sees the display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "*=false");
  const QGuiApplication application(argc, argv);
  try {
    return tarnwick::Run(QCoreApplication::arguments());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "army-sheet: %s\n", tarnwick::Utf8FromAnsi(error.what()).c_str());
    return tarnwick::faulty;
  }
}
