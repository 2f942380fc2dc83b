// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Gives the application its own style, light palette and icon, whatever the desktop's theme.
void ApplyStyle();

}  // namespace tarnwick
