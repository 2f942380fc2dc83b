// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// The least that a program with a window does: shows an empty window, or one with the text given as
// the argument, and ends when it has been painted. start.sh holds the editor's start against it.

#include <utility>

#include <QApplication>
#include <QPainter>
#include <QWidget>

#include "first_paint.h"

namespace tarnwick {
namespace {

class Window : public QWidget {
 public:
  explicit Window(QString text) : text_(std::move(text)) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    if (!text_.isEmpty()) QPainter(this).drawText(rect(), Qt::AlignCenter, text_);
  }

 private:
  QString text_;
};

}  // namespace
}  // namespace tarnwick

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  QApplication application(argc, argv);
  Window window(QApplication::arguments().value(1));
  const EndAtFirstPaint end;
  window.show();
  return QApplication::exec();
}
