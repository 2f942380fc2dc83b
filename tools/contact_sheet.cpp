// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
// Draws all unit pictures of a program folder, each with its row of the image catalogs, on one
// sheet.

#include <cstdio>
#include <filesystem>
#include <string_view>

#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>

#include "base/ansi.h"
#include "base/errors.h"
#include "catalog/image_catalog.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr int columns = 10;
constexpr QSize cell(132, 150);
constexpr int pictureSide = 96;

QString Text(const std::string& ansi) {
  return QString::fromStdString(Utf8FromAnsi(ansi));
}

QImage ReadPicture(const fs::path& file) {
  QImageReader reader(QString::fromStdU16String(file.u16string()));
  reader.setScaledSize(reader.size().scaled(pictureSide, pictureSide, Qt::KeepAspectRatio));
  return reader.read();
}

void DrawCell(QPainter& painter, const QRect& area, const ImageRec& image, const QImage& picture) {
  painter.drawImage(area.left() + (area.width() - pictureSide) / 2, area.top() + 4, picture);
  const QRect caption = area.adjusted(2, pictureSide + 8, -2, -2);
  painter.drawText(caption, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                   Text(image.Name + "\n" + image.Type + "," + image.Class + "," + image.Missile));
}

/// Stands in every sheet, so that no other picture is ever replaced.
constexpr const char* mark = "tarnwick contact-sheet";

bool MayReplace(const QString& target) {
  return !QFileInfo::exists(target) || QImageReader(target).text("Software") == mark;
}

constexpr bool brakka = true;  // its catalog takes in the base game's

bool DrawSheet(const Disk& disk, const ImageCatalog& catalog, const QString& target) {
  const int rows = (catalog.TotImages.Value() + columns - 1) / columns;
  QImage sheet(cell.width() * columns, cell.height() * rows, QImage::Format_RGB32);
  sheet.setText("Software", mark);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  QFont font = painter.font();
  font.setPixelSize(11);
  painter.setFont(font);
  for (int i = 0; i < catalog.TotImages.Value(); ++i) {
    const ImageRec& image = catalog.Images[i + 1];
    const QPoint corner(i % columns * cell.width(), i / columns * cell.height());
    DrawCell(painter, QRect(corner, cell), image, ReadPicture(PictureFile(disk, brakka, image.Id)));
  }
  painter.end();
  return sheet.save(target);
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  // No other format keeps the mark.
  if (argc != 3 || !std::string_view(argv[2]).ends_with(".png")) {
    std::fputs("usage: contact-sheet FOLDER NAME.png\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const Disk disk(argv[1]);
  ImageCatalog catalog;
  try {
    LoadImages(catalog, disk, brakka, "");
  } catch (const RuntimeError& error) {
    std::fprintf(stderr, "contact-sheet: the image catalogs of %s: %s\n", argv[1], error.what());
    return 1;
  }
  if (catalog.TotImages == 0) {
    std::fprintf(stderr, "contact-sheet: %s is no program folder: it has no images\n", argv[1]);
    return 2;
  }
  const QString target = QString::fromLocal8Bit(argv[2]);
  if (!MayReplace(target)) {
    std::fprintf(stderr, "contact-sheet: %s is there and is no contact sheet\n", argv[2]);
    return 2;
  }
  if (DrawSheet(disk, catalog, target)) return 0;
  std::fprintf(stderr, "contact-sheet: %s cannot be written\n", argv[2]);
  return 1;
}
