// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include <QString>

class QPlainTextEdit;

namespace tarnwick {

/// A text of the state as Qt has it; any of the state's line breaks becomes "\n".
QString ToQt(std::string_view ansi);

/// A text of a widget as the state holds it; line breaks become CR LF.
std::string FromQt(const QString& text);

/// The text of a box of several lines; a no-break space stays one.
QString PlainText(const QPlainTextEdit& box);

/// A text for a button, whose own "&" marks nothing; the first `key` in it, if any, presses the
/// button together with Alt.
QString ButtonText(std::string_view ansi, const QString& key = "");

/// The object name of an array's element: "Buy(3)".
QString ElementName(const char* array, int index);

}  // namespace tarnwick
