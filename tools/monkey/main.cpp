// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstdlib>

#include "monkey/monkey.h"

int main(int argc, char* argv[]) {
  const int seconds = argc == 3 || argc == 4 ? std::atoi(argv[2]) : 0;
  if (seconds <= 0) {
    std::fputs(
        "usage: monkey DATA SECONDS [SEED]\n  DATA     the folder of the shipped catalogs\n"
        "  SECONDS  how long it goes on, with one seed after the other\n"
        "  SEED     the first of them; 1\n",
        stderr);
    return 2;
  }
  const unsigned seed = argc == 4 ? static_cast<unsigned>(std::strtoul(argv[3], nullptr, 10)) : 1;
  return tarnwick::RunMonkey(argv[1], seconds, seed) == 0 ? 0 : 1;
}
