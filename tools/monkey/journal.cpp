// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "monkey/journal.h"

#include <algorithm>
#include <cstdlib>
#include <unistd.h>

namespace tarnwick {

void Journal::Write(Entry entry, std::string text) {
  std::ranges::replace_if(
      text, [](unsigned char c) { return c < ' '; }, ' ');
  const std::string line = static_cast<char>(entry) + text + '\n';
  // Without its reader a life is worth nothing.
  if (write(file_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) _exit(1);
}

}  // namespace tarnwick
