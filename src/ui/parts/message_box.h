// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <QMessageBox>

namespace tarnwick {

/// Shows a modal box over the active window and returns the button that closed it. The first of
/// Ok and Save that it has is its default.
QMessageBox::StandardButton ShowBox(QMessageBox::Icon icon, const std::string& text,
                                    QMessageBox::StandardButtons buttons = QMessageBox::Ok);

}  // namespace tarnwick
