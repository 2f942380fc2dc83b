// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/picture_form.h"

#include <QImageReader>
#include <QKeyEvent>

namespace tarnwick {
namespace {

constexpr QSize smallestPicture(384, 384);
constexpr QSize margins(32, 32);

}  // namespace

PictureForm::PictureForm() {
  setObjectName("PictureForm");
  setAlignment(Qt::AlignCenter);
  setWordWrap(true);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  setMinimumSize(smallestPicture + margins);
  setAttribute(Qt::WA_QuitOnClose, false);
  setAttribute(Qt::WA_ShowWithoutActivating);
}

void PictureForm::ShowPicture(const std::filesystem::path& file) {
  path_ = QString::fromStdU16String(file.u16string());
  clear();
  Load();
  setWindowTitle(QString::fromStdU16String(file.stem().u16string()));
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
}

void PictureForm::Load() {
  QImageReader reader(path_);
  const QSize size = reader.size().scaled(this->size() - margins, Qt::KeepAspectRatio);
  reader.setScaledSize(size * devicePixelRatio());
  QPixmap picture = QPixmap::fromImageReader(&reader);
  picture.setDevicePixelRatio(devicePixelRatio());
  if (!picture.isNull()) {
    setPixmap(picture);
  } else if (pixmap().isNull()) {  // else the file is gone since, and what it was stays
    setText(path_ + "\n" + reader.errorString());
  }
}

void PictureForm::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  Load();
}

void PictureForm::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QLabel::keyPressEvent(event);
  }
}

}  // namespace tarnwick
