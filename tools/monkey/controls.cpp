// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT

// What the hands do with a control of each kind.

#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <QTest>

#include "monkey/hands.h"

namespace tarnwick {

void Hands::Click(QWidget& button) {
  const bool twice = dice_.OneIn(8);
  Note(twice ? "double-click" : "click", button);
  driver_.Click(button.objectName());
  if (!twice || !button.isVisible()) return;
  QTest::mouseDClick(button.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                     button.mapTo(button.window(), QPoint(1, 1)));
}

void Hands::Choose(QWidget& dropDown) {
  const int entry = dice_.Roll(std::max(1, static_cast<QComboBox&>(dropDown).count()));
  Note("choose", dropDown, QString::number(entry));
  driver_.Choose(dropDown.objectName(), entry);
}

void Hands::UseList(QWidget& widget) {
  auto& list = static_cast<QListWidget&>(widget);
  QList<int> rows;
  for (int row = 0; row < list.count(); ++row)
    if (!list.isRowHidden(row)) rows.append(row);
  if (rows.isEmpty()) {
    Note("click empty", list);
    WindowDriver::ClickAt(*list.viewport(), list.viewport()->rect().center());
    return;
  }
  const int row = dice_.Pick(rows);
  const bool twice = dice_.OneIn(2);
  Note(twice ? "double-click" : "click", list, QString::number(row));
  driver_.ClickEntry(list.objectName(), row, twice);
}

void Hands::Fill(QWidget& box) {
  const QString text = AnyText(dice_);
  constexpr Qt::Key ends[] = {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape, Qt::Key_unknown};
  const Qt::Key end = dice_.Pick(ends);
  const bool replace = !dice_.OneIn(4);
  Note(replace ? "fill" : "type into", box, "\"" + text + "\" " + QKeySequence(end).toString());
  driver_.Click(box.objectName());
  if (replace) driver_.Press(Qt::Key_A, Qt::ControlModifier);
  if (text.isEmpty()) driver_.Press(Qt::Key_Delete);
  if (text.size() < 12) {
    driver_.Type(text);
  } else {
    driver_.Paste(text);
  }
  Look();
  if (end != Qt::Key_unknown) driver_.Press(end);
}

void Hands::Read(QWidget& text) {
  auto& area = *static_cast<QAbstractScrollArea&>(text).viewport();
  const QPoint place(dice_.Roll(area.width()), dice_.Roll(area.height()));
  Note("click", text, QString("at %1,%2").arg(place.x()).arg(place.y()));
  WindowDriver::ClickAt(area, place);
  driver_.Press(Qt::Key_PageDown);
}

}  // namespace tarnwick
