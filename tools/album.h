// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include <QString>

class QPixmap;
class QWidget;

namespace tarnwick {

/// The tour can't go on: says why and ends the program.
[[noreturn]] void Fail(const QString& reason);

/// The pictures that the tour takes of the program's windows.
class Album {
 public:
  explicit Album(std::filesystem::path folder);

  /// Takes the next picture, "07-name.png", of a window as it is.
  void Take(QWidget& window, const QString& name);

  /// Takes a picture for the guide, "pictures/name.png", which the guide shows in its own size: a
  /// part of a window without the empty ground around it, and without what is below `last`.
  void Illustrate(const QString& name, QWidget& part, const QWidget* last = nullptr);

  /// Puts a picture into the album.
  void Keep(const QPixmap& picture, const QString& file) const;

 private:
  std::filesystem::path folder_;
  int count_ = 0;
};

}  // namespace tarnwick
