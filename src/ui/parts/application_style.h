// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Gives the application its own style and light palette, whatever the desktop's theme.
void ApplyStyle();

/// Gives all windows their icon. To read a picture begins with a search for plug-ins, which the
/// first window need not wait for.
void ShowIcon();

}  // namespace tarnwick
