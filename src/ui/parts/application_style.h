// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include "base/controls.h"

namespace tarnwick {

/// Gives the application its own light palette, whatever the desktop's theme.
void ApplyStyle();

/// The one accent: the panel in front, the focus, selections.
QColor AccentColour();

/// How a colour of the classic palette is shown.
QColor ClassicColour(Colour colour);

}  // namespace tarnwick
