// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace tarnwick {

/// Gives the application its own light palette, whatever the desktop's theme.
void ApplyStyle();

/// The one accent: the panel in front, the focus, selections.
QColor AccentColour();

}  // namespace tarnwick
