// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <sys/types.h>

namespace tarnwick {

/// How a piece of an editor's life ended that was led in a process of its own.
struct Ending {
  enum class Kind {
    Done,
    Told,   ///< by a run-time error, which the window names before it ends the program
    Fault,  ///< by a signal, by being stopped after a time, or by what `Broken` says
  };
  Kind How = Kind::Fault;
  std::string Said;  ///< what the life came to, the error, or what is wrong
  double Seconds = 0;
  long PeakMegabytes = 0;

  bool Is(Kind how) const { return How == how; }
};

/// Thrown by a life that finds something wrong.
struct Broken {
  std::string What;
};

/// Throws `Broken` unless `condition` holds.
void Require(bool condition, const std::string& what);

/// A child of this process, which does not outlive it. Throws std::system_error.
pid_t Fork();

/// Leads a life in a process of its own, which is stopped after so many seconds.
Ending LeadApart(const std::function<std::string()>& life, int mostSeconds = 20);

/// Root becomes nobody here, for good: modes of files mean nothing to root. Others stay who they
/// are.
void BecomeOrdinary();

/// Lets nobody own all of a folder when root has made it.
void GiveToOrdinary(const std::string& folder);

}  // namespace tarnwick
