// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// To be called before the application is made: when no window can be opened, that ends with a
/// sentence on standard error and exit status 1, where Qt would abort.
void ExplainMissingDisplay();

}  // namespace tarnwick
