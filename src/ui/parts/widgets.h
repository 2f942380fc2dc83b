// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

class QButtonGroup;
class QComboBox;
class QLayout;
class QListWidget;

namespace tarnwick {

/// Gives a widget the name of its control.
template <typename Widget, typename Name>
Widget* Named(Widget* widget, const Name& name) {
  widget->setObjectName(name);
  return widget;
}

/// The width of `characters` digits in the widget's font.
int TextWidth(const QWidget* widget, int characters);

QLabel* NewLabel(const QString& name, const QString& caption, QWidget* parent);

/// The title of a panel.
QLabel* NewTitle(const QString& caption, QWidget* parent);

/// A label over a group of things, in bold.
QLabel* NewHeading(const QString& name, const QString& caption, QWidget* parent);

/// A label that steps back behind what it explains.
QLabel* NewHint(const QString& name, const QString& caption, QWidget* parent);

/// Sets what differs.
void ShowBold(QWidget* widget, bool bold);
/// What a screen reader calls the widget.
void ShowSpokenName(QWidget* widget, const QString& name);
void ShowTextColour(QWidget* widget, const QColor& colour);

/// A label whose number stands on the right.
QLabel* NewNumberLabel(const QString& name, QWidget* parent);

/// A line that warns of something, hidden while it has nothing to say.
QLabel* NewWarning(const QString& name, QWidget* parent);

/// What a warning says; "" hides it.
void ShowWarning(QLabel* warning, std::string_view text);

/// A box that takes what one line of a file can hold.
QLineEdit* NewTextBox(const QString& name, QWidget* parent);

/// A box for a quantity; it takes no keystroke that makes the number leave 16 bits.
QLineEdit* NewQuantityBox(const QString& name, QWidget* parent);

/// A box for the name of a file, in the program folder or one below it.
QLineEdit* NewFileNameBox(const QString& name, QWidget* parent);

/// A box of several lines that stops at what one line of a file can hold, when each of its line
/// breaks takes `lineBreakSize` bytes there.
QPlainTextEdit* NewDescriptionBox(const QString& name, int lineBreakSize, QWidget* parent);

/// A drop-down list. Without the focus it leaves the mouse wheel to what it stands on.
QComboBox* NewDropDown(const QString& name, QWidget* parent);

/// Runs `act` at a double click in the list, on its empty part too.
void OnDoubleClick(QListWidget* list, const std::function<void()>& act);

QGroupBox* NewFrame(const QString& name, const QString& caption, QWidget* parent);

/// A frame of one line, which begins with its caption.
QWidget* NewLineFrame(const QString& name, const QString& caption, QWidget* parent);

/// A button without an action of its own. `tip` says where the thing is done.
QPushButton* NewIdleButton(const QString& name, const QString& caption, const QString& tip,
                           QWidget* parent);

/// Option buttons `array`(0) to `array`(count − 1) in a layout, exclusive, with their indices as
/// ids. `keys` has the letter of each that chooses it together with Alt.
QButtonGroup* NewOptions(const char* array, int count, QLayout* layout, QWidget* parent,
                         const QString& keys = "");

}  // namespace tarnwick
