// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// What the hands do with what opens on their way: dialogs, message boxes, menus.

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "monkey/hands.h"

namespace tarnwick {

void Hands::See(QWidget& window) {
  if (auto* box = qobject_cast<QMessageBox*>(&window)) {
    Answer(*box);
  } else {
    driver_.OnDialog([this, &window] { WorkOff(window); });
  }
}

void Hands::Answer(QMessageBox& box) {
  if (box.text().startsWith("Run-time error: ")) end_ = box.text();
  const auto buttons = box.buttons();
  QAbstractButton* button = box.defaultButton();
  if (dice_.OneIn(4)) button = dice_.Pick(buttons);
  journal_.Write(Entry::Seen, (box.text() + " -> " + button->text()).toStdString());
  journal_.WriteOnce(Entry::Used, messageBox);
  driver_.AnswerNext(box.standardButton(button));
}

void Hands::WorkOff(QWidget& dialog) {
  if (dialog.objectName() == "SaveSheetForm") return NameSheet(dialog);
  auto* armies = dialog.findChild<QListWidget*>("ArmyList");
  if (armies != nullptr && armies->count() > 0 && !dice_.OneIn(3)) ChooseArmy(*armies);
  for (int left = 12; left > 0 && dialog.isVisible() && end_.isEmpty(); --left)
    DoOneOf(kindsInDialogs, dialog);
  if (!dialog.isVisible() || !end_.isEmpty()) return;
  Note("close", dialog);
  driver_.CloseDialog();
}

void Hands::NameSheet(QWidget& dialog) {
  const QString name = QDir::homePath() + QString("/%1").arg(dice_.Roll(3));
  Note("name the sheet", dialog, name);
  driver_.Enter("fileNameEdit", name);
  driver_.Press(dice_.OneIn(3) ? Qt::Key_Escape : Qt::Key_Return);
  if (dialog.isVisible()) driver_.CloseDialog();
}

void Hands::ChooseArmy(QListWidget& list) {
  const int row = dice_.Roll(list.count());
  Note("double-click", list, QString::number(row));
  driver_.ClickEntry(list.objectName(), row, true);
}

void Hands::WatchMenus() {
  // Some menus have an event loop of their own.
  QTimer::singleShot(3, &timers_, [this] {
    WatchMenus();
    if (qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr && !inMenu_) UseMenu();
  });
}

void Hands::UseMenu() {
  inMenu_ = true;
  const QPointer<QWidget> menu = QApplication::activePopupWidget();
  const int entry = dice_.Roll(6);
  Note(QString("take entry %1 of a menu").arg(entry));
  for (int i = 0; i < entry && menu; ++i)
    QTest::keyClick(menu.data(), Qt::Key_Down);
  inMenu_ = false;
  if (menu) QTest::keyClick(menu.data(), entry == 0 ? Qt::Key_Escape : Qt::Key_Return);
  if (menu) menu->close();
}

}  // namespace tarnwick
