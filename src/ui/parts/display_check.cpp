// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/display_check.h"

#include <cstdio>
#include <cstdlib>

#include <QGuiApplication>

namespace tarnwick {
namespace {

QtMessageHandler usual = nullptr;

void Explain(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  const bool hasDisplay = QGuiApplication::primaryScreen() != nullptr;
  if (type != QtFatalMsg || hasDisplay) return usual(type, context, text);
  QStringList set;
  for (const char* variable : {"WAYLAND_DISPLAY", "DISPLAY", "QT_QPA_PLATFORM"}) {
    if (qEnvironmentVariableIsSet(variable))
      set.append(QString("%1=%2").arg(variable, qEnvironmentVariable(variable)));
  }
  const QString tried = set.isEmpty() ? "DISPLAY and WAYLAND_DISPLAY are not set"
                                      : "none could be opened with " + set.join(", ");
  std::fprintf(stderr, "Velmora Tarnwick needs a display: %s\n", qPrintable(tried));
  std::_Exit(1);
}

}  // namespace

void ExplainMissingDisplay() {
  usual = qInstallMessageHandler(Explain);
}

}  // namespace tarnwick
