// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <QDialog>

namespace tarnwick {

/// The special abilities of a unit.
class SpecialDialog : public QDialog {
 public:
  SpecialDialog(const std::string& text, QWidget* parent);
};

}  // namespace tarnwick
