// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/widgets.h"

#include <utility>

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QMouseEvent>
#include <QRadioButton>
#include <QTextCursor>
#include <QValidator>
#include <QWheelEvent>

#include "base/ansi.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "catalog/profile_files.h"
#include "ui/parts/colours.h"
#include "ui/parts/qt_text.h"

namespace tarnwick {
namespace {

/// File systems take 255 bytes as a name, of which the ending needs some.
constexpr std::size_t longestFileName = 246;

bool IsQuantity(const QString& text) {
  try {
    RoundToInt16(Int(LenientNumber(FromQt(text))));
    return true;
  } catch (const OverflowError&) {
    return false;
  }
}

bool IsFileName(const QString& text) {
  return Utf8FromAnsi(FromQt(text)).size() <= longestFileName;
}

/// Takes no keystroke after which the text would not be `Valid`.
template <bool (*Valid)(const QString&)>
class Validator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& /*cursor*/) const override {
    return Valid(text) ? Acceptable : Invalid;
  }
};

class DescriptionBox : public QPlainTextEdit {
 public:
  DescriptionBox(int lineBreakSize, QWidget* parent)
      : QPlainTextEdit(parent), lineBreakSize_(lineBreakSize) {
    connect(this, &QPlainTextEdit::textChanged, this, &DescriptionBox::CutInsertion);
  }

 private:
  int StoredSize(QChar c) const {
    if (c.isLowSurrogate()) return 0;  // the second half of a character
    return c == '\n' ? lineBreakSize_ : 1;
  }

  /// Takes off the end of what was typed or pasted, which the cursor stands behind, as much as the
  /// line of the file can't hold.
  void CutInsertion() {
    const QString text = PlainText(*this);
    int excess = -static_cast<int>(longestValue);
    for (const QChar c : text)
      excess += StoredSize(c);
    QTextCursor cursor = textCursor();
    int end = cursor.position();
    while (excess > 0 && end > 0)
      excess -= StoredSize(text[--end]);
    if (end == cursor.position()) return;
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    cursor.joinPreviousEditBlock();  // undo takes back what was typed and the cut at once
    cursor.removeSelectedText();
    cursor.endEditBlock();
  }

  int lineBreakSize_;
};

class DropDown : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

/// Acts at a double click on the empty part of a list, of which the list itself says nothing.
class EmptyPartClick : public QObject {
 public:
  EmptyPartClick(QListWidget* list, std::function<void()> act)
      : QObject(list), list_(list), act_(std::move(act)) {
    list->viewport()->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*viewport*/, QEvent* event) override {
    if (event->type() != QEvent::MouseButtonDblClick) return false;
    const auto* click = static_cast<QMouseEvent*>(event);
    const bool empty = list_->itemAt(click->position().toPoint()) == nullptr;
    if (empty && click->button() == Qt::LeftButton) act_();
    return false;
  }

 private:
  QListWidget* list_;
  std::function<void()> act_;
};

}  // namespace

int TextWidth(const QWidget* widget, int characters) {
  return widget->fontMetrics().horizontalAdvance('0') * characters;
}

QLabel* NewLabel(const QString& name, const QString& caption, QWidget* parent) {
  auto* label = Named(new QLabel(caption, parent), name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

QLabel* NewTitle(const QString& caption, QWidget* parent) {
  auto* title = NewLabel("", caption, parent);
  QFont font = title->font();
  font.setPointSizeF(font.pointSizeF() * 1.4);
  font.setBold(true);
  title->setFont(font);
  return title;
}

QLabel* NewHeading(const QString& name, const QString& caption, QWidget* parent) {
  auto* heading = NewLabel(name, caption, parent);
  ShowBold(heading, true);
  return heading;
}

QLabel* NewHint(const QString& name, const QString& caption, QWidget* parent) {
  auto* hint = NewLabel(name, caption, parent);
  hint->setForegroundRole(QPalette::PlaceholderText);
  return hint;
}

void ShowBold(QWidget* widget, bool bold) {
  QFont font = widget->font();
  if (font.bold() == bold) return;
  font.setBold(bold);
  widget->setFont(font);
}

void ShowTextColour(QWidget* widget, const QColor& colour) {
  QPalette palette = widget->palette();
  if (palette.color(widget->foregroundRole()) == colour) return;
  palette.setColor(widget->foregroundRole(), colour);
  widget->setPalette(palette);
}

void ShowSpokenName(QWidget* widget, const QString& name) {
  if (widget->accessibleName() == name) return;
  widget->setAccessibleName(name);
  // Some systems take the entry for the name of a drop-down list; they say this behind it.
  if (widget->inherits("QComboBox")) widget->setAccessibleDescription(name);
}

QLabel* NewNumberLabel(const QString& name, QWidget* parent) {
  auto* label = NewLabel(name, "", parent);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

QLabel* NewWarning(const QString& name, QWidget* parent) {
  auto* warning = NewLabel(name, "", parent);
  warning->setWordWrap(true);
  ShowTextColour(warning, WarningColour());
  warning->hide();
  return warning;
}

void ShowWarning(QLabel* warning, std::string_view text) {
  const QString line = ToQt(text);
  if (warning->text() == line) return;
  warning->setText(line);
  warning->setVisible(!line.isEmpty());
}

QLineEdit* NewTextBox(const QString& name, QWidget* parent) {
  auto* box = Named(new QLineEdit(parent), name);
  box->setMaxLength(longestValue);
  return box;
}

QLineEdit* NewQuantityBox(const QString& name, QWidget* parent) {
  static const Validator<IsQuantity> validator;
  auto* box = NewTextBox(name, parent);
  box->setValidator(&validator);
  box->setAlignment(Qt::AlignRight);
  return box;
}

QLineEdit* NewFileNameBox(const QString& name, QWidget* parent) {
  static const Validator<IsFileName> validator;
  auto* box = NewTextBox(name, parent);
  box->setValidator(&validator);
  return box;
}

QComboBox* NewDropDown(const QString& name, QWidget* parent) {
  auto* list = Named(new DropDown(parent), name);
  list->setFocusPolicy(Qt::StrongFocus);  // the wheel is no way to come to it
  return list;
}

void OnDoubleClick(QListWidget* list, const std::function<void()>& act) {
  QObject::connect(list, &QListWidget::itemDoubleClicked, list, act);
  new EmptyPartClick(list, act);
}

QPlainTextEdit* NewDescriptionBox(const QString& name, int lineBreakSize, QWidget* parent) {
  auto* box = Named(new DescriptionBox(lineBreakSize, parent), name);
  box->setTabChangesFocus(true);
  return box;
}

QGroupBox* NewFrame(const QString& name, const QString& caption, QWidget* parent) {
  return Named(new QGroupBox(caption, parent), name);
}

QWidget* NewLineFrame(const QString& name, const QString& caption, QWidget* parent) {
  auto* frame = Named(new QWidget(parent), name);
  auto* layout = new QHBoxLayout(frame);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(NewHeading("", caption, frame));
  return frame;
}

QPushButton* NewIdleButton(const QString& name, const QString& caption, const QString& tip,
                           QWidget* parent) {
  auto* button = Named(new QPushButton(caption, parent), name);
  button->setEnabled(false);
  button->setToolTip(tip);
  return button;
}

QButtonGroup* NewOptions(const char* array, int count, QLayout* layout, QWidget* parent,
                         const QString& keys) {
  auto* group = new QButtonGroup(parent);
  for (int i = 0; i < count; ++i) {
    auto* option = Named(new QRadioButton(parent), ElementName(array, i));
    option->setProperty("key", keys.mid(i, 1));
    group->addButton(option, i);
    layout->addWidget(option);
  }
  return group;
}

}  // namespace tarnwick
