// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/bindings.h"

#include <QSignalBlocker>

#include "ui/parts/colours.h"
#include "ui/parts/qt_text.h"
#include "ui/parts/widgets.h"

namespace tarnwick {
namespace {

void ShowVisible(QWidget* widget, bool visible) {
  if (widget->isHidden() == visible) widget->setVisible(visible);
}

/// Leaves other colours that a label has alone.
void ShowMounted(QLabel* widget, bool mounted) {
  const bool shown = widget->palette().color(widget->foregroundRole()) == MountedColour();
  if (shown != mounted) ShowTextColour(widget, mounted ? MountedColour() : TextColour());
}

void ShowChecked(QAbstractButton* button, bool checked) {
  if (button->isChecked() != checked) button->setChecked(checked);
}

template <typename Button>
void ShowCaption(Button* button, const QString& caption) {
  if (button->text() != caption) button->setText(caption);
}

/// Shows the entries of a list.
template <typename List>
void ShowEntries(List* widget, const ListBox& control) {
  QStringList texts;
  for (const ListEntry& entry : control.Entries)
    texts.append(ToQt(entry.Text));
  QStringList shown;
  for (int i = 0; i < widget->count(); ++i)
    shown.append(widget->model()->index(i, 0).data().toString());
  if (shown == texts) return;
  widget->clear();
  widget->addItems(texts);
}

/// A text that was pasted may have line breaks, which no line of a file can hold.
QString OneLine(QString text) {
  for (QChar& c : text) {
    if (c.category() == QChar::Other_Control) c = ' ';
  }
  return text;
}

/// −1 without a selection; the row that has the cursor need not be selected.
int SelectedRow(const QListWidget& widget) {
  const QList<QListWidgetItem*> selected = widget.selectedItems();
  return selected.isEmpty() ? -1 : widget.row(selected.front());
}

}  // namespace

void Bindings::Tie(QLabel* widget, const Label& control) {
  widget->setTextFormat(Qt::PlainText);
  Add([widget, &control] {
    ShowCaption(widget, ToQt(control.Caption));
    ShowMounted(widget, control.ForeColor == Colour::LightBlue);
    ShowVisible(widget, control.Visible);
  });
}

void Bindings::Tie(QAbstractButton* widget, const Label& control) {
  Add([widget, &control] {
    ShowCaption(widget, ButtonText(control.Caption));
    ShowVisible(widget, control.Visible);
  });
}

void Bindings::Tie(QLineEdit* widget, TextBox& control) {
  const auto show = [widget, &control] {
    const QString text = ToQt(control.Text);
    if (widget->text() != text) {
      const int cursor = widget->cursorPosition();
      widget->setText(text);
      widget->setCursorPosition(cursor);
    }
    ShowVisible(widget, control.Visible);
  };
  QObject::connect(widget, &QLineEdit::textEdited, widget, [&control, show](const QString& text) {
    control.Text = FromQt(OneLine(text));
    show();  // as the file will hold it
  });
  Add(show);
}

void Bindings::Tie(QPlainTextEdit* widget, TextBox& control) {
  QObject::connect(widget, &QPlainTextEdit::textChanged, widget,
                   [widget, &control] { control.Text = FromQt(PlainText(*widget)); });
  Add([widget, &control] {
    const QString text = ToQt(control.Text);
    if (PlainText(*widget) == text) return;
    const QSignalBlocker quiet(widget);
    QTextCursor cursor = widget->textCursor();
    const int position = qMin(cursor.position(), static_cast<int>(text.size()));
    widget->setPlainText(text);
    cursor.setPosition(position);
    widget->setTextCursor(cursor);
  });
}

void Bindings::Tie(QCheckBox* widget, CheckBox& control) {
  QObject::connect(widget, &QCheckBox::clicked, widget,
                   [&control](bool checked) { control.Value = checked; });
  Add([widget, &control] { ShowChecked(widget, control.Value); });
}

void Bindings::Tie(QComboBox* widget, ListBox& control) {
  QObject::connect(widget, &QComboBox::activated, widget,
                   [&control](int index) { control.ListIndex = index; });
  Add([widget, &control] {
    ShowEntries(widget, control);
    if (widget->currentIndex() != control.ListIndex) widget->setCurrentIndex(control.ListIndex);
    ShowVisible(widget, control.Visible);
  });
}

void Bindings::Tie(QListWidget* widget, ListBox& control) {
  QObject::connect(widget, &QListWidget::itemSelectionChanged, widget,
                   [widget, &control] { control.ListIndex = SelectedRow(*widget); });
  Add([widget, &control] {
    const QSignalBlocker quiet(widget);
    const int cursor = widget->currentRow();
    ShowEntries(widget, control);
    if (control.HasSelection()) {
      if (SelectedRow(*widget) != control.ListIndex) widget->setCurrentRow(control.ListIndex);
      return;
    }
    widget->clearSelection();
    const int row = qMin(cursor, widget->count() - 1);  // a player goes on from where they were
    if (widget->currentRow() != row) widget->setCurrentRow(row, QItemSelectionModel::NoUpdate);
  });
}

void Bindings::AddVisible(QWidget* widget, const bool& visible) {
  Add([widget, &visible] { ShowVisible(widget, visible); });
}

void Bindings::TieOptions(QButtonGroup* group, OptionButton* options, int count) {
  QObject::connect(group, &QButtonGroup::idClicked, group, [options, count](int id) {
    for (int i = 0; i < count; ++i)
      options[i].Value = i == id;
  });
  Add([group, options, count] {
    group->setExclusive(false);  // an exclusive group can't be without a ticked option
    for (int i = 0; i < count; ++i) {
      QAbstractButton* button = group->button(i);
      ShowCaption(button, ButtonText(options[i].Caption, button->property("key").toString()));
      ShowChecked(button, options[i].Value);
      ShowVisible(button, options[i].Visible);
    }
    group->setExclusive(true);
  });
}

void Bindings::Refresh() const {
  for (const auto& show : show_)
    show();
}

}  // namespace tarnwick
