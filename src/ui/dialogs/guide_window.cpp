// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/dialogs/guide_window.h"

#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextTable>
#include <QVBoxLayout>

#include "ui/parts/colours.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

/// Wide enough for the pictures.
constexpr QSize guideSize(1040, 760);

/// A line below each row, in place of a box around each cell.
void RuleLines(QTextTable& table) {
  QTextTableFormat format = table.format();
  format.setBorderCollapse(true);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_None);
  format.setCellPadding(4);
  format.setTopMargin(6);
  format.setBottomMargin(10);
  table.setFormat(format);
  for (int row = 0; row < table.rows(); ++row) {
    for (int column = 0; column < table.columns(); ++column) {
      QTextTableCell cell = table.cellAt(row, column);
      QTextTableCellFormat line = cell.format().toTableCellFormat();
      line.setBottomBorder(1);
      line.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
      line.setBottomBorderBrush(FrameColour());
      cell.setFormat(line);
    }
  }
}

}  // namespace

GuideWindow::GuideWindow(const std::filesystem::path& folder)
    : QDialog(nullptr, Qt::Window),
      folder_(QString::fromStdU16String(folder.u16string()) + "/"),
      contents_(Named(new QListWidget(this), "GuideContents")),
      text_(Named(new QTextBrowser(this), "GuideText")) {
  setObjectName("GuideForm");
  setWindowTitle("Guide");
  setAttribute(Qt::WA_QuitOnClose, false);
  auto* heading = NewHeading("", "&Contents", this);
  heading->setBuddy(contents_);
  contents_->setFixedWidth(TextWidth(contents_, 26));
  contents_->setAccessibleName("Contents");
  text_->setAccessibleName("Guide");
  auto* column = new QVBoxLayout;
  column->addWidget(heading);
  column->addWidget(contents_);
  auto* layout = new QHBoxLayout(this);
  layout->addLayout(column);
  layout->addWidget(text_, 1);
  resize(guideSize.boundedTo(screen()->availableSize()));
  ReadContents();
  connect(contents_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) ShowSection(sections_.at(row));
  });
  connect(text_, &QTextBrowser::sourceChanged, this, &GuideWindow::ShowSource);
  connect(new QShortcut(QKeySequence::Back, this), &QShortcut::activated, text_,
          &QTextBrowser::backward);
}

void GuideWindow::ReadContents() {
  QFile file(folder_ + "README.md");
  if (!file.open(QIODevice::ReadOnly)) return;
  static const QRegularExpression link(R"(\[(.+?)\]\(([^)]+\.md)\))");
  for (auto found = link.globalMatch(QString::fromUtf8(file.readAll())); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    contents_->addItem(match.captured(1));
    sections_.append(match.captured(2));
  }
}

void GuideWindow::Open(const QString& section) {
  ShowSection(section);
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  text_->setFocus();
}

void GuideWindow::ShowSection(const QString& section) {
  const QString path = folder_ + section;
  const QUrl source = QUrl::fromLocalFile(path);
  if (!QFile::exists(path)) {
    text_->setPlainText("The guide is not there: " + path);
  } else if (text_->source() != source) {  // else the reader stays at his line
    text_->setSource(source);
  }
}

void GuideWindow::ShowSource(const QUrl& source) {
  const QSignalBlocker shown(contents_);
  contents_->setCurrentRow(static_cast<int>(sections_.indexOf(source.fileName())));
  QTextDocument& text = *text_->document();
  text.setDocumentMargin(16);
  for (QTextFrame* frame : text.rootFrame()->childFrames())
    if (auto* table = qobject_cast<QTextTable*>(frame)) RuleLines(*table);
}

}  // namespace tarnwick
