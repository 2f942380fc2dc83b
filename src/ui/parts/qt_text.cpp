// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/qt_text.h"

#include <QPlainTextEdit>
#include <QTextDocument>

#include "base/ansi.h"
#include "base/text.h"

namespace tarnwick {

QString ToQt(std::string_view ansi) {
  QString text = QString::fromStdString(Utf8FromAnsi(ansi));
  if (text.contains('\r')) {
    text.replace(QLatin1String(NL.data(), NL.size()), "\n");
    text.replace(QLatin1String(CrLf.data(), CrLf.size()), "\n");
  }
  return text;
}

std::string FromQt(const QString& text) {
  return ReplaceText("\n", CrLf, AnsiFromUtf8(text.toStdString()));
}

QString PlainText(const QPlainTextEdit& box) {
  QString text = box.document()->toRawText();
  text.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n');
  return text;
}

QString ButtonText(std::string_view ansi, const QString& key) {
  QString text = ToQt(ansi).replace("&", "&&");
  const qsizetype place = key.isEmpty() ? -1 : text.indexOf(key, 0, Qt::CaseInsensitive);
  return place < 0 ? text : text.insert(place, '&');
}

QString ElementName(const char* array, int index) {
  return QString("%1(%2)").arg(QLatin1String(array)).arg(index);
}

}  // namespace tarnwick
