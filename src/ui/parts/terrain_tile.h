// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include <QAbstractButton>
#include <QIcon>

namespace tarnwick {

/// A square that shows a terrain picture: a piece of the palette, which can be dragged, or an area
/// of the battlefield, which pieces can be dropped on. A click, Enter or Space activates it.
class TerrainTile : public QAbstractButton {
 public:
  TerrainTile(const QString& name, QWidget* parent);

  /// Makes it a piece of the palette.
  void MakePiece(int kind) { kind_ = kind; }
  /// Makes it an area; `drop` takes the kind of the piece that was dropped.
  void MakeArea(std::function<void(int kind)> drop);

  void ShowPicture(const QIcon& picture);
  /// Marks a piece that was picked, or an area that a piece is held over.
  void Mark(bool marked);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Drag();

  std::optional<int> kind_;
  std::function<void(int)> drop_;
  QIcon picture_;
  QPoint pressedAt_;
  bool marked_ = false;
};

}  // namespace tarnwick
