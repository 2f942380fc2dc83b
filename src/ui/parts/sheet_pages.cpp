// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/sheet_pages.h"

#include <cmath>

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QPagedPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>
#include <QScreen>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <QUrl>

namespace tarnwick {
namespace {

/// How many dots a picture is wide and high: enough for print, not too many for the preview, which
/// leaves most of them out.
constexpr int printedDots = 128, previewedDots = 52;

/// The picture inside a data URL.
QImage DecodePicture(const QString& url, int dots) {
  QByteArray bytes = QByteArray::fromBase64(url.mid(url.indexOf(',') + 1).toLatin1());
  QBuffer buffer(&bytes);
  // The format that the page names: a picture must not turn out to be one that reads files.
  QImageReader reader(&buffer, url.startsWith("data:image/png") ? "png" : "svg");
  reader.setAutoDetectImageFormat(false);
  const QSize size = reader.size().scaled(dots, dots, Qt::KeepAspectRatio);
  reader.setScaledSize(size);
  QImage picture(dots, dots, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.drawImage((picture.width() - size.width()) / 2, (picture.height() - size.height()) / 2,
                    reader.read());
  return picture;
}

class SheetText : public QTextDocument {
 public:
  explicit SheetText(bool previewed) : dots_(previewed ? previewedDots : printedDots) {}

 protected:
  QVariant loadResource(int type, const QUrl& url) override {
    if (type != ImageResource || url.scheme() != "data") return {};
    const QImage picture = DecodePicture(url.toString(), dots_);
    addResource(type, url, picture);
    return picture;
  }

 private:
  int dots_;
};

/// Where the row stands on the endless page, with all that is in its cells.
QRectF RowArea(const QTextTable& table, int row) {
  const QTextDocument& text = *table.document();
  QRectF area;
  for (int column = 0; column < table.columns(); ++column) {
    const QTextTableCell cell = table.cellAt(row, column);
    const QTextBlock end = text.findBlock(cell.lastPosition()).next();
    for (QTextBlock block = text.findBlock(cell.firstPosition()); block != end;
         block = block.next())
      area |= text.documentLayout()->blockBoundingRect(block);
  }
  return area;
}

/// How far the row must go down not to be torn by the end of a page; 0 when it isn't, or when no
/// page can hold it.
qreal WayToNextPage(const QTextTable& table, int row) {
  const qreal page = table.document()->pageSize().height();
  const QRectF area = RowArea(table, row);
  const qreal pageEnd = (std::floor(area.top() / page) + 1) * page;
  return area.bottom() <= pageEnd || area.height() > page ? 0 : pageEnd - area.top();
}

/// Gives a row the room above it that it needs. Qt moves it on when its first line is pushed off
/// the page, and keeps that room, so this is for rows of a few lines.
void PushRow(const QTextTable& table, int row) {
  // Paddings are in dots of the screen, areas in dots of the paper.
  const QPaintDevice& device = *table.document()->documentLayout()->paintDevice();
  const qreal scale =
      QGuiApplication::primaryScreen()->logicalDotsPerInchY() / device.logicalDpiY();
  const qreal padding = WayToNextPage(table, row) * scale;
  for (int column = 0; column < table.columns(); ++column) {
    QTextTableCell cell = table.cellAt(row, column);
    QTextTableCellFormat format = cell.format().toTableCellFormat();
    format.setTopPadding(padding);
    cell.setFormat(format);
  }
}

/// Gives every row of the tables one page. A table of one row begins a page of its own if it must.
void KeepRowsWhole(QTextDocument& text) {
  for (QTextFrame* frame : text.rootFrame()->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(frame);
    for (int row = 0; table != nullptr && row < table->rows(); ++row) {
      if (WayToNextPage(*table, row) == 0) continue;
      if (table->rows() == 1) {
        QTextTableFormat format = table->format();
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        table->setFormat(format);
      } else {
        PushRow(*table, row);
      }
      text.markContentsDirty(0, text.characterCount());  // else only tables find their new places
    }
  }
}

}  // namespace

TerrainPictures ReadTerrainPictures() {
  TerrainPictures pictures;
  for (int kind = 0; std::string & picture : pictures) {
    QFile file(QString(":/terrain/%1.svg").arg(kind++));
    if (file.open(QIODevice::ReadOnly)) picture = file.readAll().toStdString();
  }
  return pictures;
}

bool PrintSheets(const std::string& html, QPagedPaintDevice& device, int first, int last) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  SheetText text(device.paintEngine()->type() == QPaintEngine::Picture);
  text.setDocumentMargin(0);
  text.documentLayout()->setPaintDevice(&device);
  text.setHtml(QString::fromStdString(html));
  const QSizeF page(device.width(), device.height());
  text.setPageSize(page);
  KeepRowsWhole(text);
  const int begin = first > 0 ? first - 1 : 0;
  const int end = last > 0 ? qMin(last, text.pageCount()) : text.pageCount();
  for (int i = begin; i < end; ++i) {
    if (i > begin) device.newPage();
    painter.save();
    painter.translate(0, -i * page.height());
    text.drawContents(&painter, QRectF(QPointF(0, i * page.height()), page));
    painter.restore();
  }
  return true;
}

std::string SheetPdf(const std::string& html, const QString& title, const QPageLayout& paper) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter pdf(&buffer);
  pdf.setPageLayout(paper);
  pdf.setTitle(title);
  pdf.setCreator("Velmora Tarnwick");
  PrintSheets(html, pdf);
  return buffer.data().toStdString();
}

}  // namespace tarnwick
