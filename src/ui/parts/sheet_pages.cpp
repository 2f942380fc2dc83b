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
  QImageReader reader(&buffer);
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
    const bool inside = type == ImageResource && url.scheme() == "data";
    return inside ? QVariant(DecodePicture(url.toString(), dots_)) : QVariant();
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

/// Pushes a row that a page would end in to the next page.
void PushRow(const QTextTable& table, int row) {
  QTextDocument& text = *table.document();
  const qreal page = text.pageSize().height();
  const QRectF area = RowArea(table, row);
  const qreal pageEnd = (std::floor(area.top() / page) + 1) * page;
  if (area.bottom() <= pageEnd || area.height() > page) return;
  // Paddings are in dots of the screen, areas in dots of the paper.
  const QPaintDevice& device = *text.documentLayout()->paintDevice();
  const qreal scale =
      QGuiApplication::primaryScreen()->logicalDotsPerInchY() / device.logicalDpiY();
  for (int column = 0; column < table.columns(); ++column) {
    QTextTableCell cell = table.cellAt(row, column);
    QTextTableCellFormat format = cell.format().toTableCellFormat();
    format.setTopPadding((pageEnd - area.top()) * scale);
    cell.setFormat(format);
  }
  text.markContentsDirty(0, text.characterCount());  // else only tables find their new places
}

/// Gives every row of the tables one page.
void KeepRowsWhole(const QTextDocument& text) {
  for (QTextFrame* frame : text.rootFrame()->childFrames()) {
    const auto* table = qobject_cast<QTextTable*>(frame);
    for (int row = 0; table != nullptr && row < table->rows(); ++row)
      PushRow(*table, row);
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

bool PrintSheets(const std::string& html, QPagedPaintDevice& device) {
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
  const int pages = text.pageCount();
  for (int i = 0; i < pages; ++i) {
    if (i > 0) device.newPage();
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
