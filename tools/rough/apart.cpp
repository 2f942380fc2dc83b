// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "apart.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <filesystem>
#include <grp.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace tarnwick {
namespace {

using Clock = std::chrono::steady_clock;

constexpr uid_t nobody = 65534;

enum Status { done = 0, told = 1, broken = 3 };

void Check(int result) {
  if (result == -1) throw std::system_error(errno, std::generic_category());
}

Status Lead(const std::function<std::string()>& life, std::string& said) {
  try {
    said = life();
    return done;
  } catch (const std::exception& error) {  // as the window does
    said = error.what();
    return told;
  } catch (const Broken& fault) {
    said = fault.What;
    return broken;
  }
}

[[noreturn]] void LeadAndExit(const std::function<std::string()>& life, int pipe) {
  std::string said;
  const Status status = Lead(life, said);
  const char* rest = said.data();
  for (std::size_t left = said.size(); left > 0;) {
    const ssize_t written = write(pipe, rest, left);
    if (written <= 0) break;
    rest += written;
    left -= static_cast<std::size_t>(written);
  }
  _exit(status);
}

/// Reads what the child says until it is gone; false when it takes too long.
bool Listen(int pipe, Clock::time_point end, std::string& said) {
  char bytes[4096];
  for (;;) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
    pollfd ready{pipe, POLLIN, 0};
    if (left.count() <= 0 || poll(&ready, 1, static_cast<int>(left.count())) == 0) return false;
    const ssize_t count = read(pipe, bytes, sizeof bytes);
    if (count <= 0) return true;
    said.append(bytes, static_cast<std::size_t>(count));
  }
}

}  // namespace

void Require(bool condition, const std::string& what) {
  if (!condition) throw Broken{what};
}

pid_t Fork() {
  std::fflush(stdout);
  const pid_t child = fork();
  Check(child);
  if (child == 0) prctl(PR_SET_PDEATHSIG, SIGKILL);
  return child;
}

Ending LeadApart(const std::function<std::string()>& life, int mostSeconds) {
  int ends[2];
  Check(pipe(ends));
  const auto start = Clock::now();
  const pid_t child = Fork();
  if (child == 0) {
    close(ends[0]);
    LeadAndExit(life, ends[1]);
  }
  close(ends[1]);
  Ending ending;
  const bool ended = Listen(ends[0], start + std::chrono::seconds(mostSeconds), ending.Said);
  close(ends[0]);
  if (!ended) kill(child, SIGKILL);
  int status = 0;
  rusage usage{};
  Check(wait4(child, &status, 0, &usage));
  ending.Seconds = std::chrono::duration<double>(Clock::now() - start).count();
  ending.PeakMegabytes = usage.ru_maxrss / 1024;
  if (!ended) {
    ending.Said = "hangs: stopped after " + std::to_string(mostSeconds) + " s";
  } else if (WIFSIGNALED(status)) {
    ending.Said = std::string("crashes: ") + strsignal(WTERMSIG(status));
  } else if (WEXITSTATUS(status) == done) {
    ending.How = Ending::Kind::Done;
  } else if (WEXITSTATUS(status) == told) {
    ending.How = Ending::Kind::Told;
  }
  return ending;
}

void BecomeOrdinary() {
  if (geteuid() != 0) return;
  Check(setgroups(0, nullptr));
  Check(setresgid(nobody, nobody, nobody));
  Check(setresuid(nobody, nobody, nobody));
}

void GiveToOrdinary(const std::string& folder) {
  if (geteuid() != 0) return;
  Check(chown(folder.c_str(), nobody, nobody));
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
    Check(lchown(entry.path().c_str(), nobody, nobody));
}

}  // namespace tarnwick
