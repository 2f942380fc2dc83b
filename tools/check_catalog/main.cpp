// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
// For catalog authors: reads a program folder and prints every problem of its catalogs.

#include <cstdio>
#include <filesystem>

#include <QCoreApplication>
#include <QImageReader>

#include "base/ansi.h"
#include "check_catalog/catalog_checker.h"

int main(int argc, char* argv[]) {
  if (argc != 2 || !std::filesystem::is_directory(argv[1])) {
    std::fputs(
        "usage: check-catalog FOLDER\n"
        "Prints what is wrong with the catalogs in a program folder, a line each: file, section,\n"
        "key, sentence. The exit status is 1 when there is anything.\n",
        stderr);
    return 2;
  }
  const QCoreApplication application(argc, argv);
  const auto problems = tarnwick::CheckCatalogs(argv[1], [](const std::filesystem::path& picture) {
    return !QImageReader(QString::fromStdU16String(picture.u16string())).read().isNull();
  });
  for (const auto& problem : problems) {
    std::puts(tarnwick::Utf8FromAnsi(tarnwick::ProblemText(problem)).c_str());
  }
  return problems.empty() ? 0 : 1;
}
