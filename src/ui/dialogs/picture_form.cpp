// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/picture_form.h"

#include <QImageReader>

namespace tarnwick {
namespace {

constexpr QSize pictureSize(384, 384);

}  // namespace

PictureForm::PictureForm() {
  setObjectName("PictureForm");
  setAlignment(Qt::AlignCenter);
  setWordWrap(true);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  setFixedSize(pictureSize + QSize(32, 32));
  setAttribute(Qt::WA_QuitOnClose, false);
}

void PictureForm::ShowPicture(const std::filesystem::path& file) {
  const QString path = QString::fromStdU16String(file.u16string());
  QImageReader reader(path);
  const QSize size = reader.size().scaled(pictureSize, Qt::KeepAspectRatio);
  reader.setScaledSize(size * devicePixelRatio());
  QPixmap picture = QPixmap::fromImageReader(&reader);
  picture.setDevicePixelRatio(devicePixelRatio());
  if (picture.isNull()) {
    setText(path + "\n" + reader.errorString());
  } else {
    setPixmap(picture);
  }
  setWindowTitle(QString::fromStdU16String(file.stem().u16string()));
  show();
  raise();
  activateWindow();
}

}  // namespace tarnwick
