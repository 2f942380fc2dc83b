// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "album.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

#include <QBitmap>
#include <QWidget>

#include "window_driver.h"

namespace tarnwick {
namespace {

/// So narrow that the guide need not scroll sideways, so low that it is soon scrolled past.
constexpr QSize guideSize(1256, 640);

constexpr int margin = 6;

}  // namespace

void Fail(const QString& reason) {
  std::fprintf(stderr, "tour: %s\n", qPrintable(reason));
  std::exit(1);
}

Album::Album(std::filesystem::path folder) : folder_(std::move(folder)) {
  std::filesystem::create_directory(folder_ / "pictures");
}

void Album::Take(QWidget& window, const QString& name) {
  WindowDriver::Settle();
  const QString file =
      QString("%1-%2.png").arg(++count_, 2, 10, QChar('0')).arg(name.isEmpty() ? "message" : name);
  Keep(window.grab(), file);
}

void Album::Illustrate(const QString& name, QWidget& part, const QWidget* last) {
  QWidget& window = *part.window();
  const QSize size = window.size();
  if (&part != &window) window.resize(guideSize);
  WindowDriver::Settle();
  const int height = last != nullptr ? last->geometry().bottom() + margin : part.height();
  const QPixmap picture = part.grab(QRect(0, 0, part.width(), height));
  const QImage image = picture.toImage();
  const QRgb ground = image.pixel(image.rect().bottomRight());
  const QImage mask = image.createMaskFromColor(ground, Qt::MaskInColor);
  const QRect seen = QRegion(QBitmap::fromImage(mask)).boundingRect();
  const QRect kept = seen.adjusted(-margin, -margin, margin, margin).intersected(image.rect());
  Keep(picture.copy(kept), "pictures/" + name + ".png");
  window.resize(size);
  WindowDriver::Settle();
}

void Album::Keep(const QPixmap& picture, const QString& file) const {
  if (!picture.save(QString::fromStdString((folder_ / file.toStdString()).string()))) {
    Fail("The picture " + file + " could not be written");
  }
}

}  // namespace tarnwick
