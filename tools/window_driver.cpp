// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "window_driver.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDrag>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace tarnwick {
namespace {

/// What a platform with dragging would do with a piece that is pressed.
void CarryOver(QWidget& source, QPoint grip, QWidget& target,
               const WindowDriver::Script& onTheWay) {
  const QPoint away = grip + QPoint(QApplication::startDragDistance() + 1, 0);
  for (int i = 0; i < 2; ++i) {  // a list sees that it is one at the second move
    QMouseEvent move(QEvent::MouseMove, away, source.mapToGlobal(away), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&source, &move);
  }
  const auto* drag = source.findChild<QDrag*>();
  if (drag == nullptr) drag = source.parent()->findChild<QDrag*>("", Qt::FindDirectChildrenOnly);
  if (drag == nullptr || !target.acceptDrops()) return;
  const QPoint middle = target.rect().center();
  QDragEnterEvent enter(middle, Qt::CopyAction, drag->mimeData(), Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &enter);
  onTheWay();
  if (!enter.isAccepted()) return;
  QDropEvent drop(middle, Qt::CopyAction, drag->mimeData(), Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &drop);
}

/// Brings a place on a widget into view as a user would, where it stands on something that scrolls.
void ScrollTo(QWidget& widget, QPoint position) {
  for (QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
    auto* scroll = qobject_cast<QScrollArea*>(parent);
    if (scroll == nullptr) continue;
    const QPoint place = widget.mapTo(scroll->widget(), position);
    scroll->ensureVisible(place.x(), place.y());
  }
}

/// A thing in a picture.
QString Seen(const QWidget& widget) {
  QString seen = widget.objectName() + " \"" + WindowDriver::TextOf(widget) + "\"";
  if (widget.property("alignment").toInt() & Qt::AlignRight) seen += " >";
  if (widget.property("default").toBool()) seen += " (Enter)";
  if (!widget.isEnabled()) seen += " (idle)";
  if (!widget.toolTip().isEmpty()) seen += " [" + widget.toolTip() + "]";
  seen = seen.replace("\n", "\\n").replace(" \"\"", "").trimmed();
  return seen.isEmpty() ? "-" : seen;
}

/// What a window holds. Things are in a row when they begin above the end of the highest of them.
QString PictureOf(const QWidget& window, const QString& indent) {
  if (const auto* scroll = qobject_cast<const QScrollArea*>(&window)) {
    return PictureOf(*scroll->viewport(), indent);
  }
  auto parts = window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  parts.removeIf([](const QWidget* part) { return part->isWindow() || !part->isVisible(); });
  const auto fromAbove = [](const QWidget* part) { return std::pair(part->y(), part->x()); };
  const auto fromLeft = [](const QWidget* part) { return std::pair(part->x(), part->y()); };
  std::ranges::sort(parts, {}, fromAbove);
  QString picture;
  QRegion taken;
  for (auto row = parts.begin(), below = row; row != parts.end(); row = below) {
    const int bottom = (*row)->geometry().bottom();
    below = std::find_if(row, parts.end(), [&](const QWidget* part) { return part->y() > bottom; });
    std::ranges::sort(row, below, {}, fromLeft);
    QStringList seen;
    QString held;
    for (auto part = row; part != below; ++part) {
      const QRect place = (*part)->geometry();
      seen.append(Seen(**part) + (taken.intersects(place) ? " (covers another)" : ""));
      taken += place;
      if ((*part)->layout() != nullptr || (*part)->inherits("QScrollArea"))
        held += PictureOf(**part, indent + "  ");
    }
    picture += indent + seen.join(" | ") + "\n" + held;
  }
  return picture;
}

}  // namespace

WindowDriver::WindowDriver() {
  Watch();
}

void WindowDriver::Watch() {
  // A timer of its own each time: one that is being worked off does not fire again, and a dialog
  // may open over the one that a script is working.
  QTimer::singleShot(5, &timers_, [this] {
    Watch();
    AnswerModal();
  });
}

QWidget* WindowDriver::FindWidget(const QString& name, bool seen) const {
  QWidget* front = !busyWith_.empty() ? busyWith_.last() : QApplication::activeModalWidget();
  const QList<QWidget*> windows = front ? QList{front} : QApplication::topLevelWidgets();
  for (QWidget* window : windows) {
    if (!window->isVisible()) continue;
    if (window->objectName() == name) return window;
    for (auto* found : window->findChildren<QWidget*>(name)) {
      if (found->isVisible() || !seen) return found;
    }
  }
  return nullptr;
}

/// The window that a user would be typing into. Without a window manager nobody makes the one
/// below active again when a dialog closes, so this does.
QWindow* WindowDriver::FrontWindow() const {
  if (!busyWith_.empty() && !busyWith_.last()->isVisible()) {
    Fail(busyWith_.last()->objectName() + " closed before the end of its script");
  }
  QWidget* front = QApplication::activePopupWidget();
  if (front == nullptr) front = QApplication::activeModalWidget();
  if (front == nullptr) front = QApplication::activeWindow();
  const QList<QWidget*> windows = QApplication::topLevelWidgets();
  for (int i = 0; front == nullptr && i < windows.size(); ++i) {
    if (windows[i]->isVisible()) front = windows[i];
  }
  if (!front->isActiveWindow() && QApplication::activePopupWidget() == nullptr) {
    front->activateWindow();
    QTest::qWait(1);
  }
  return front->windowHandle();
}

void WindowDriver::Fail(const QString& reason) {
  std::fprintf(stderr, "%s\n", qPrintable(reason));
  std::abort();
}

int WindowDriver::Rows(const QString& array) {
  int rows = 0;
  for (const QWidget* widget : QApplication::allWidgets())
    rows += widget->objectName().startsWith(array + "(") && !widget->isHidden();
  return rows;
}

QString WindowDriver::TextOf(const QWidget& widget) {
  for (const char* property : {"text", "title", "plainText", "currentText"}) {
    if (!widget.property(property).isValid()) continue;
    static const QRegularExpression keyMark("&(.)");
    QString text = widget.property(property).toString();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool marked = label ? label->buddy() != nullptr
                              : widget.inherits("QAbstractButton") || widget.inherits("QGroupBox");
    return marked ? text.replace(keyMark, "\\1") : text;
  }
  return "";
}

std::pair<QStringList, int> WindowDriver::EntriesOf(const QWidget& widget) {
  const auto* list = qobject_cast<const QListWidget*>(&widget);
  const auto* open = qobject_cast<const QComboBox*>(&widget);
  const QAbstractItemModel& model = list ? *list->model() : *open->model();
  QStringList texts;
  for (int i = 0; i < model.rowCount(); ++i)
    texts.append(model.index(i, 0).data().toString());
  if (open != nullptr) return {texts, open->currentIndex()};
  const auto selected = list->selectedItems();
  return {texts, selected.isEmpty() ? -1 : list->row(selected.front())};
}

QString WindowDriver::Picture(const QString& name) const {
  const QWidget& window = Find(name);
  return (name + " " + window.windowTitle()).trimmed() + "\n" + PictureOf(window, "  ");
}

void WindowDriver::ClickAt(QWidget& widget, QPoint position) {
  if (!widget.isEnabled()) Fail(widget.objectName() + " is idle");
  QPoint there;
  const QWidget* hit = nullptr;
  // A user waits until a window that has just opened is laid out.
  for (int tries = 0; tries < 50 && !widget.isAncestorOf(hit); ++tries) {
    if (tries > 0) QTest::qWait(10);
    ScrollTo(widget, position);
    there = widget.mapTo(widget.window(), position);
    hit = widget.window()->childAt(there);
  }
  if (!widget.isAncestorOf(hit)) {
    Fail(widget.objectName() + " is covered by " + (hit ? hit->objectName() : "its window"));
  }
  QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, there);
  Settle();
}

void WindowDriver::ClickOn(QWidget& widget) {
  // Near the left edge, where option buttons have their mark.
  ClickAt(widget, QPoint(qMin(12, widget.width() / 2), widget.height() / 2));
}

bool WindowDriver::CanDrag() {
  return QGuiApplication::platformName() != "offscreen";
}

void WindowDriver::Drag(const QString& from, const QString& to, const Script& onTheWay) {
  QWidget& source = Find(from);
  DragFrom(source, source.rect().center(), Find(to), onTheWay);
}

void WindowDriver::DragEntry(const QString& name, int row, const QString& to,
                             const Script& onTheWay) {
  auto& list = Find<QListWidget>(name);
  const QPoint grip = list.visualItemRect(list.item(row)).center();
  DragFrom(*list.viewport(), grip, Find(to), onTheWay);
}

void WindowDriver::DragFrom(QWidget& source, QPoint grip, QWidget& target, const Script& onTheWay) {
  QWindow* window = source.window()->windowHandle();
  const QPoint start = source.mapTo(source.window(), grip);
  const QPoint end = target.mapTo(target.window(), target.rect().center());
  QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
  if (!CanDrag()) {
    CarryOver(source, grip, target, onTheWay);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, end);
    return;
  }
  // The drag has an event loop of its own, in which these go on.
  QTimer::singleShot(50, window, [=] { QTest::mouseMove(window, (start + end) / 2); });
  QTimer::singleShot(100, window, [=] { QTest::mouseMove(window, end); });
  QTimer::singleShot(150, window, [=] {
    onTheWay();
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, end);
  });
  QTest::mouseMove(window, start + QPoint(QApplication::startDragDistance() + 2, 0));
  QTest::qWait(250);
}

void WindowDriver::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(FrontWindow(), key, modifiers);
  Settle();
}

void WindowDriver::PressIn(const QString& name, Qt::Key key) {
  Find(name).setFocus();
  Press(key);
}

void WindowDriver::Type(const QString& text) {
  for (const QChar c : text) {
    if (c == '\n') {
      Press(Qt::Key_Return);
    } else {
      QTest::sendKeyEvent(QTest::Click, FrontWindow(), Qt::Key_unknown, c, Qt::NoModifier);
    }
  }
  Settle();
}

void WindowDriver::Paste(const QString& text) {
  QApplication::clipboard()->setText(text);
  Press(Qt::Key_V, Qt::ControlModifier);
}

void WindowDriver::Enter(const QString& name, const QString& text) {
  Click(name);
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_Delete);
  Type(text);
}

void WindowDriver::Choose(const QString& name, int entry) {
  auto& list = Find<QComboBox>(name);
  Click(name);  // opens the list
  if (list.currentIndex() != entry) {
    Press(Qt::Key_Home);
    for (int i = 0; i < entry; ++i)
      Press(Qt::Key_Down);
  }
  Press(Qt::Key_Return);
}

void WindowDriver::ClickEntry(const QString& name, int row, bool twice) {
  auto& list = Find<QListWidget>(name);
  list.scrollToItem(list.item(row));
  const QPoint position = list.visualItemRect(list.item(row)).center();
  ClickAt(*list.viewport(), position);
  if (!twice) return;
  QTest::mouseDClick(list.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                     list.viewport()->mapTo(list.window(), position));
  Settle();
}

void WindowDriver::ClickEntry(const QString& name, const QString& text, bool twice) {
  auto& list = Find<QListWidget>(name);
  const auto found = list.findItems(text, Qt::MatchExactly);
  if (found.isEmpty()) Fail("No entry " + text + " in " + name);
  ClickEntry(name, list.row(found.front()), twice);
}

void WindowDriver::CloseDialog() {
  FrontWindow()->close();
  Settle();
}

QStringList WindowDriver::TakeMessages() {
  for (; !scripts_.empty(); scripts_.pop_front())
    messages_.append("(no dialog for a script)");
  for (; !answers_.empty(); answers_.pop_front())
    messages_.append("(no box to answer)");
  return std::exchange(messages_, {});
}

void WindowDriver::Settle() {
  QTest::qWait(1);
}

void WindowDriver::AnswerModal() {
  QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr || busyWith_.contains(modal) || !modal->isVisible()) return;
  busyWith_.append(modal);
  Settle();
  if (see_) see_(*modal);
  if (auto* box = qobject_cast<QMessageBox*>(modal)) {
    messages_.append(box->text());
    QAbstractButton* button = answers_.empty() ? nullptr : box->button(answers_.front());
    if (button != nullptr) answers_.pop_front();
    if (button == nullptr) button = box->button(QMessageBox::Ok);
    if (button == nullptr) button = box->button(QMessageBox::Cancel);
    busyWith_.removeLast();
    ClickAt(*button, button->rect().center());
    return;
  }
  if (scripts_.empty()) {
    OnDialog([this, modal] {
      messages_.append("(no script for " + modal->objectName() + ")");
      CloseDialog();
    });
  }
  const Script script = std::move(scripts_.front());
  scripts_.pop_front();
  script();
  if (modal->isVisible()) {
    messages_.append("(" + modal->objectName() + " left open)");
    modal->close();
  }
  busyWith_.removeLast();
}

}  // namespace tarnwick
