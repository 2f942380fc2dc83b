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

namespace tarnwick {

/// The picture of a row of the image catalog; it is read when it is painted. 0 is none.
QIcon UnitPicture(const ArmyState& army, const Disk& disk, Int16 image);

/// Gives the entries of a list of pictures, whose data are their rows, these pictures.
void ShowPictures(QComboBox* widget, const ListBox& list, const ArmyState& army, const Disk& disk);

/// A small picture, as large as its place allows.
class Thumbnail : public QWidget {
 public:
  using QWidget::QWidget;

  void Show(const QIcon& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
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
