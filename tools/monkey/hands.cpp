// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "monkey/hands.h"

#include <algorithm>
#include <numeric>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTest>
#include <QTimer>

namespace tarnwick {
namespace {

constexpr const char* keys[] = {
    "Tab",    "Tab",       "Shift+Tab",   "Return",    "Return",       "Esc",
    "Esc",    "Up",        "Down",        "Left",      "Right",        "PgUp",
    "PgDown", "Home",      "End",         "Space",     "Del",          "Backspace",
    "F1",     "Ctrl+Z",    "Ctrl+Z",      "Ctrl+Y",    "Ctrl+Shift+Z", "Ctrl+A",
    "Ctrl+C", "Ctrl+X",    "Ctrl+V",      "Ctrl+1",    "Ctrl+2",       "Ctrl+3",
    "Ctrl+4", "Ctrl+5",    "Ctrl+6",      "Ctrl+N",    "Ctrl+O",       "Ctrl+S",
    "Ctrl+P", "Ctrl+PgUp", "Ctrl+PgDown", "Ctrl+Q",    "Alt+Left",     "1",
    "3",      "9",         "Ctrl+Home",   "Shift+End", "Enter"};

constexpr QSize sizes[] = {{1280, 800}, {1000, 700}, {1920, 1080}, {640, 480}, {1280, 560}};

constexpr const char* panelButtons[] = {"ShowUnitsBtn",   "ShowCommandBtn", "ShowDetailBtn",
                                        "ShowTerrainBtn", "ShowSetup",      "ShowSaveFrame"};

QString ArrayOf(const QWidget& control) {
  return control.objectName().section('(', 0, 0);
}

bool IsPlace(const QWidget& widget) {
  return std::ranges::count(places, widget.objectName().toStdString()) > 0;
}

/// Nobody makes another window active without a window manager.
void Activate(QWidget& window) {
  if (window.isActiveWindow()) return;
  window.activateWindow();
  WindowDriver::Settle();
}

}  // namespace

const std::array<Hands::Kind, 8> Hands::kinds = {{{60, &Hands::UseControl},
                                                  {16, &Hands::PressKey},
                                                  {6, &Hands::ChangePanel},
                                                  {6, &Hands::TypeOn},
                                                  {6, &Hands::DragPiece},
                                                  {4, &Hands::OpenMenu},
                                                  {1, &Hands::Resize},
                                                  {6, &Hands::UseOtherWindow}}};

const std::array<Hands::Kind, 3> Hands::kindsInDialogs = {
    {{8, &Hands::UseControl}, {2, &Hands::PressKey}, {1, &Hands::TypeOn}}};

const std::array<Hands::Use, 6> Hands::uses = {{{"QAbstractButton", &Hands::Click},
                                                {"QComboBox", &Hands::Choose},
                                                {"QListWidget", &Hands::UseList},
                                                {"QLineEdit", &Hands::Fill},
                                                {"QPlainTextEdit", &Hands::Fill},
                                                {"QTextBrowser", &Hands::Read}}};

bool Hands::IsControl(const QWidget& widget) {
  const QString name = widget.objectName();
  return !name.isEmpty() && !name.startsWith("qt_") &&
         std::ranges::any_of(uses, [&](const Use& use) { return widget.inherits(use.Class); });
}

Hands::Hands(QWidget& form, Journal& journal, unsigned seed)
    : form_(form), journal_(journal), dice_(seed) {
  driver_.OnSight([this](QWidget& window) { See(window); });
  WatchMenus();
  // The first of each array comes into sight with any army; what is idle for good never does.
  for (const QWidget* control : form.findChildren<QWidget*>()) {
    const QString name = control->objectName();
    const bool first = !name.contains('(') || name.endsWith("(0)");
    if (first && IsControl(*control) && control->isEnabledTo(&form)) {
      journal_.WriteOnce(Entry::Known, name.toStdString());
    }
  }
}

void Hands::Begin() {
  Activate(form_);
  const char* const key = dice_.OneIn(3) ? "Ctrl+N" : "Ctrl+O";
  Press(key);
}

void Hands::Step() {
  Activate(form_);
  DoOneOf(kinds, form_);
  WindowDriver::Settle();
  while (QApplication::activePopupWidget() != nullptr)
    UseMenu();
  driver_.TakeMessages();  // the journal has them
}

void Hands::DoOneOf(std::span<const Kind> some, QWidget& window) {
  const auto add = [](int sum, const Kind& kind) { return sum + kind.Weight; };
  int roll = dice_.Roll(std::accumulate(some.begin(), some.end(), 0, add));
  const Kind* kind = some.data();
  for (; roll >= kind->Weight; ++kind)
    roll -= kind->Weight;
  (this->*kind->Do)(window);
}

void Hands::Look() {
  if (!end_.isEmpty()) return;  // what was told before it counts
  warnings_.clear();
  for (const QWidget* window : {&form_, QApplication::activeModalWidget()}) {
    if (window == nullptr) continue;
    for (const auto* label : window->findChildren<QLabel*>())
      if (label->objectName().endsWith("Warning")) warnings_ += label->text() + "\n";
  }
}

void Hands::Note(const QString& what) {
  Look();
  journal_.Write(Entry::Step, what.toStdString());
}

void Hands::Note(const char* what, const QWidget& control, const QString& more) {
  Note(QString("%1 %2 %3").arg(what, control.objectName(), more).trimmed());
  journal_.WriteOnce(Entry::Used, control.objectName().toStdString());
  for (const QWidget* place = &control; place != nullptr; place = place->parentWidget())
    if (IsPlace(*place)) journal_.WriteOnce(Entry::Used, place->objectName().toStdString());
}

void Hands::UseControl(QWidget& window) {
  QList<QWidget*> controls = Controls(window);
  if (controls.isEmpty()) return;
  if (dice_.OneIn(2)) {  // a long array counts no more than a single control
    QStringList arrays;
    for (const QWidget* control : controls)
      arrays.append(ArrayOf(*control));
    arrays.removeDuplicates();
    const QString array = dice_.Pick(arrays);
    controls.removeIf([&](const QWidget* control) { return ArrayOf(*control) != array; });
  }
  QWidget& control = *dice_.Pick(controls);
  const auto fits = [&](const Use& use) { return control.inherits(use.Class); };
  (this->*std::ranges::find_if(uses, fits)->Do)(control);
}

QList<QWidget*> Hands::Controls(const QWidget& window) {
  auto controls = window.findChildren<QWidget*>();
  controls.removeIf([](const QWidget* control) {
    return !IsControl(*control) || !control->isVisible() || !control->isEnabled();
  });
  for (const QWidget* control : controls)
    journal_.WriteOnce(Entry::Known, control->objectName().toStdString());
  return controls;
}

void Hands::Press(const QString& key) {
  Note("press " + key);
  const QKeyCombination pressed = QKeySequence(key)[0];
  driver_.Press(pressed.key(), pressed.keyboardModifiers());
}

void Hands::PressKey(QWidget& /*window*/) {
  Press(dice_.OneIn(4) ? QString("Alt+") + QChar('A' + dice_.Roll(26)) : dice_.Pick(keys));
}

void Hands::TypeOn(QWidget& window) {
  // A blank may close a dialog before the next letter.
  const QString text = AnyText(dice_).left(&window == &form_ ? 8 : 1);
  Note("type \"" + text + "\"");
  driver_.Type(text);
}

void Hands::ChangePanel(QWidget& /*form*/) {
  const char* const button = dice_.Pick(panelButtons);
  Note("click", driver_.Find(button));
  driver_.Click(button);
}

void Hands::DragPiece(QWidget& form) {
  const auto* units = form.findChild<QListWidget*>("unitList");
  if (driver_.Sees("TerrImg(0)")) {
    const QString piece = QString("TerrImg(%1)").arg(dice_.Roll(6));
    const QString area = QString("Area(%1)").arg(dice_.Roll(9));
    Note("drag", driver_.Find(piece), "to " + area);
    driver_.Drag(piece, area);
  } else if (units->isVisible() && units->count() > 0) {
    const int row = dice_.Roll(units->count());
    const QString place = QString(dice_.OneIn(2) ? "unit(%1)" : "assignBtn(%1)").arg(dice_.Roll(9));
    Note("drag", *units, QString("%1 to %2").arg(row).arg(place));
    driver_.DragEntry("unitList", row, place);
  } else {
    UseControl(form);
  }
}

void Hands::OpenMenu(QWidget& window) {
  QWidget& control = *dice_.Pick(Controls(window));
  Note("open the menu of", control);
  const QPoint middle = control.rect().center();
  // As the key for it does. A button of the mouse would be held down while the menu is open.
  QContextMenuEvent event(QContextMenuEvent::Keyboard, middle, control.mapToGlobal(middle));
  QApplication::sendEvent(&control, &event);
}

void Hands::Resize(QWidget& window) {
  const QSize size = dice_.Pick(sizes);
  Note(QString("resize to %1 by %2").arg(size.width()).arg(size.height()));
  window.resize(size);
}

void Hands::UseOtherWindow(QWidget& form) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window == &form || !window->isVisible() || !IsPlace(*window) || dice_.OneIn(3)) continue;
    Activate(*window);
    Note("look at", *window);
    UseControl(*window);
    if (dice_.OneIn(2)) window->close();
    return;
  }
  UseControl(form);
}

}  // namespace tarnwick
