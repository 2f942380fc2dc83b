// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/message_box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGridLayout>
#include <QScreen>
#include <QShowEvent>
#include <QStyle>

#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

/// A message box that leaves the row of its window in sight where the focus is: that is what it
/// speaks of, as a rule.
class MessageBox : public QMessageBox {
 public:
  MessageBox(Icon icon, const std::string& text, StandardButtons buttons, QWidget* window)
      : QMessageBox(icon, "Velmora Tarnwick", ToQt(text), buttons, window) {
    setTextFormat(Qt::PlainText);
    setDefaultButton(buttons & Ok ? Ok : Save);
    // Desktops have other words for it.
    if (QAbstractButton* discard = button(Discard)) discard->setText("Discard");
    if (auto* grid = qobject_cast<QGridLayout*>(layout())) {  // a width that shows the whole title
      grid->addItem(new QSpacerItem(TextWidth(this, 36), 0), grid->rowCount(), 0, 1, -1);
    }
  }

 protected:
  void showEvent(QShowEvent* event) override {
    QMessageBox::showEvent(event);
    if (const QWidget* focus = parentWidget() != nullptr ? parentWidget()->focusWidget() : nullptr)
      LeaveInSight({focus->mapToGlobal(QPoint()), focus->size()});
  }

 private:
  /// Moves below the control, or above it; where neither fits into the screen, it stays.
  void LeaveInSight(const QRect& control) {
    constexpr int gap = 12;
    const QRect screenArea = parentWidget()->screen()->availableGeometry();
    const int height = frameGeometry().height() + style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int below = control.bottom() + gap;
    const int above = control.top() - gap - height;
    if (y() > control.bottom() || y() + height < control.top()) return;
    if (below + height <= screenArea.bottom()) {
      move(x(), below);
    } else if (above >= screenArea.top()) {
      move(x(), above);
    }
  }
};

}  // namespace

QMessageBox::StandardButton ShowBox(QMessageBox::Icon icon, const std::string& text,
                                    QMessageBox::StandardButtons buttons) {
  MessageBox box(icon, text, buttons, QApplication::activeWindow());
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace tarnwick
