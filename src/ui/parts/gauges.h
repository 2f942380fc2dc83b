// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include <QWidget>

namespace tarnwick {

/// How much of something is used up, as a bar that stays within its ends.
class ShareBar : public QWidget {
 public:
  explicit ShareBar(QWidget* parent);

  /// `share`: 0 is nothing, 1 is all of it.
  void Show(double share);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double share_ = 0;
};

/// A tick for what is met, a ring for what is short, nothing for what nobody knows.
class Mark : public QWidget {
 public:
  explicit Mark(QWidget* parent);

  void Show(std::optional<bool> met);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::optional<bool> met_;
};

}  // namespace tarnwick
