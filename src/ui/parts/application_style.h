// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace tarnwick {

/// Gives the application its own style, light palette and icon, whatever the desktop's theme.
void ApplyStyle();

// The window's colours beyond the palette.

QColor TextColour();
/// Of headings: grey while there is nothing under them.
QColor HeadingColour(bool filled);
/// The one accent: the panel in front, the focus, selections.
QColor AccentColour();
/// What is short, and lines that warn.
QColor WarningColour();
/// Units that fight mounted.
QColor MountedColour();
/// Around what can be clicked or typed into.
QColor BorderColour();
/// Around what only holds together.
QColor FrameColour();

}  // namespace tarnwick
