// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
// For catalog authors: reads a program folder and prints what is wrong with its catalogs.

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include <QGuiApplication>
#include <QImageReader>

#include "base/ansi.h"
#include "check_catalog/catalog_checker.h"
#include "rules/army_state.h"

namespace {

constexpr const char* help =
    "usage: check-catalog FOLDER\n"
    "Reads the catalogs and pictures in a program folder, of both modules, with the editor's own\n"
    "reader and prints what is wrong with them, a line each, by file and line:\n"
    "\n"
    "  armylist.dat:12: error: [Army] unit2: what stands there, what is expected, how to mend it\n"
    "\n"
    "  error    the editor refuses something, loses something or ends\n"
    "  warning  it runs, but not as the author means\n"
    "  note     worth knowing\n"
    "\n"
    "  --help     prints this\n"
    "  --version  prints the version\n"
    "\n"
    "The exit status is 0 without errors, 1 with some, 2 when FOLDER can't be read\n"
    "or the arguments are wrong.\n";

/// What keeps the editor from showing a picture file.
std::string FaultOf(const std::filesystem::path& picture) {
  if (std::filesystem::is_empty(picture)) return "is empty";
  QImageReader reader(QString::fromStdU16String(picture.u16string()));
  const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
  if (reader.error() != QImageReader::UnknownError) {  // which stands for none, too
    return "can't be shown (" + reader.errorString().toStdString() + ")";
  }
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x)
      if (qAlpha(image.pixel(x, y)) != 0) return "";
  }
  return "shows nothing";
}

int Check(const std::string& folder) {
  const tarnwick::Findings findings = tarnwick::CheckCatalogs(folder, FaultOf);
  // Files are named from where the author stands, so that a program can jump to them.
  const std::string path = folder == "." ? "" : folder.ends_with('/') ? folder : folder + "/";
  for (const tarnwick::Finding& finding : findings) {
    const std::string text = tarnwick::Utf8FromAnsi(tarnwick::FindingText(finding));
    std::printf("%s%s\n", path.c_str(), text.c_str());
  }
  std::puts(tarnwick::SummaryText(findings).c_str());
  return tarnwick::HasErrors(findings) ? 1 : 0;
}

}  // namespace

int main(int argc, char* argv[]) {
  const std::string_view argument = argc == 2 ? argv[1] : "";
  if (argument == "--help") {
    std::fputs(help, stdout);
    return 0;
  }
  if (argument == "--version") {
    std::printf("check-catalog %s\n", tarnwick::VersionText({}).c_str());
    return 0;
  }
  if (argument.empty() || argument.starts_with("-")) {
    std::fputs(help, stderr);
    return 2;
  }
  std::error_code error;
  if (std::filesystem::directory_iterator(argument, error); error) {
    std::fprintf(stderr, "check-catalog: \"%s\" is no folder that can be read: %s\n", argv[1],
                 error.message().c_str());
    return 2;
  }
  // Pictures with text in them need one, and nobody sees it.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "*=false");
  const QGuiApplication application(argc, argv);
  return Check(std::string(argument));
}
