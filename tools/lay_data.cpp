// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// For the build: brings the shipped data to the program folder that the editor runs in, or writes
// the list of them for a package.

#include <cstdio>
#include <exception>
#include <string>

#include "catalog/shipped_files.h"

int main(int argc, char* argv[]) {
  if (argc != 2 && argc != 3) {
    std::fputs("usage: lay-data DATA [PROGRAM_FOLDER]\n", stderr);
    return 2;
  }
  try {
    const std::string list = tarnwick::ListFiles(argv[1]);
    if (argc == 2) {
      std::fputs(list.c_str(), stdout);
    } else {
      for (const std::string& file : tarnwick::LayFiles(argv[1], list, argv[2]))
        std::printf("Held back: %s\n", file.c_str());
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "lay-data: %s\n", error.what());
    return 1;
  }
  return 0;
}
