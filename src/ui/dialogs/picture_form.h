// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include <QLabel>

namespace tarnwick {

/// The window that shows one picture, as large as the window is made. It stays beside the main
/// window, which keeps the keyboard, and takes a further picture in the place of its first.
class PictureForm : public QLabel {
 public:
  PictureForm();

  /// Loads the picture, comes to the front and shows itself.
  void ShowPicture(const std::filesystem::path& file);

  QSize sizeHint() const override { return minimumSize(); }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Load();

  QString path_;
};

}  // namespace tarnwick
