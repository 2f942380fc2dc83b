// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include <QIcon>
#include <QWidget>

#include "base/controls.h"
#include "catalog/disk.h"
#include "catalog/image_catalog.h"
#include "rules/army_state.h"

class QComboBox;
class QListWidgetItem;

namespace tarnwick {

// Pictures of units, by their rows in the image catalog; 0 is none. They are read when they are
// painted. Whoever shows one remembers which: looking for its file takes its time.

/// Gives the entries of a list of pictures, whose data are their rows, these pictures.
void ShowPictures(QComboBox* widget, const ListBox& list, const ArmyState& army, const Disk& disk);

/// Gives an entry of a list a picture.
void ShowPicture(QListWidgetItem* entry, const ArmyState& army, const Disk& disk, Int16 image);

/// A small picture, as large as its place allows.
class Thumbnail : public QWidget {
 public:
  using QWidget::QWidget;

  void Show(const ArmyState& army, const Disk& disk, Int16 image);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString key_;
  QIcon picture_;
};

/// A horseshoe: the unit fights mounted.
class Horseshoe : public QWidget {
 public:
  explicit Horseshoe(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tarnwick
