// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace tarnwick {

// The window's colours.

inline QColor TextColour() {
  return {0x1B, 0x21, 0x24};
}

/// Of hints, and of headings while there is nothing under them.
inline QColor HintColour() {
  return {0x56, 0x60, 0x67};
}

/// The one accent: the panel in front, the focus, selections.
inline QColor AccentColour() {
  return {0x0B, 0x6B, 0x68};
}

/// What is short, and lines that warn.
inline QColor WarningColour() {
  return {0x9A, 0x34, 0x12};
}

/// Units that fight mounted.
inline QColor MountedColour() {
  return {0x55, 0x55, 0xFF};
}

/// Around what can be clicked or typed into.
inline QColor BorderColour() {
  return {0x78, 0x83, 0x89};
}

/// Around what only holds together.
inline QColor FrameColour() {
  return {0xC3, 0xCB, 0xCF};
}

}  // namespace tarnwick
