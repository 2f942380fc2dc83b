// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include <QDialog>
#include <QStringList>

class QListWidget;
class QTextBrowser;

namespace tarnwick {

/// The window with the guide: its contents and the section chosen there. It stays beside the main
/// window and knows nothing of the army.
class GuideWindow : public QDialog {
 public:
  /// `folder` holds README.md, whose links are the contents, and the sections.
  explicit GuideWindow(const std::filesystem::path& folder);

  /// Shows a section, such as "units.md", and comes to the front.
  void Open(const QString& section);

 private:
  void ReadContents();
  void ShowSection(const QString& section);
  /// Marks the section in the contents and makes its text pleasant to read.
  void ShowSource(const QUrl& source);

  QString folder_;
  QStringList sections_;  ///< files, in the order of the contents
  QListWidget* contents_;
  QTextBrowser* text_;
};

}  // namespace tarnwick
