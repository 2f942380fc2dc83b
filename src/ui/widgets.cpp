// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/widgets.h"

#include <algorithm>

#include <QButtonGroup>
#include <QRadioButton>
#include <QTextCursor>
#include <QTextDocument>
#include <QValidator>

#include "base/ansi.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "ui/qt_text.h"

namespace tarnwick {
namespace {

/// What a line of a file gives back at the most, in bytes.
constexpr int longestValue = 254;

/// File systems take 255 bytes as a name, of which the ending needs some.
constexpr std::size_t longestFileName = 246;

class QuantityValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& /*cursor*/) const override {
    try {
      RoundToInt16(Int(LenientNumber(FromQt(text))));
      return Acceptable;
    } catch (const OverflowError&) {
      return Invalid;
    }
  }
};

/// Keeps out what would lead out of the folder or could not be stored everywhere.
class FileNameValidator : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& /*cursor*/) const override {
    return Utf8FromAnsi(FromQt(text)).size() <= longestFileName ? Acceptable : Invalid;
  }
};

class DescriptionBox : public QPlainTextEdit {
 public:
  DescriptionBox(int lineBreakSize, QWidget* parent)
      : QPlainTextEdit(parent), lineBreakSize_(lineBreakSize) {
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int position, int /*removed*/, int added) {
              inserted_ = added;
              insertedEnd_ = position + added;
            });
    connect(this, &QPlainTextEdit::textChanged, this, &DescriptionBox::CutInsertion);
  }

 private:
  int StoredSize() const {
    const QString text = PlainText(*this);
    return static_cast<int>(text.size() + text.count('\n') * (lineBreakSize_ - 1));
  }

  /// Takes off the end of what was typed or pasted as much as the line of the file can't hold.
  void CutInsertion() {
    while (inserted_ > 0 && StoredSize() > longestValue) {
      const int cut =
          std::min(inserted_, std::max(1, (StoredSize() - longestValue) / lineBreakSize_));
      const int end = insertedEnd_;
      const int left = inserted_ - cut;
      QTextCursor cursor(document());
      cursor.setPosition(end - cut);
      cursor.setPosition(end, QTextCursor::KeepAnchor);
      inserted_ = 0;                   // the removal below is no insertion to cut
      cursor.joinPreviousEditBlock();  // undo takes back what was typed and the cut at once
      cursor.removeSelectedText();
      cursor.endEditBlock();
      inserted_ = left;
      insertedEnd_ = end - cut;
    }
  }

  int lineBreakSize_;
  int inserted_ = 0;
  int insertedEnd_ = 0;
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

QLabel* NewNumberLabel(const QString& name, QWidget* parent) {
  auto* label = NewLabel(name, "", parent);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

QLineEdit* NewTextBox(const QString& name, QWidget* parent) {
  auto* box = Named(new QLineEdit(parent), name);
  box->setMaxLength(longestValue);
  return box;
}

QLineEdit* NewQuantityBox(const QString& name, QWidget* parent) {
  static const QuantityValidator validator;  // it has no state
  auto* box = NewTextBox(name, parent);
  box->setValidator(&validator);
  box->setAlignment(Qt::AlignRight);
  return box;
}

QLineEdit* NewFileNameBox(const QString& name, QWidget* parent) {
  static const FileNameValidator validator;
  auto* box = NewTextBox(name, parent);
  box->setValidator(&validator);
  return box;
}

QPlainTextEdit* NewDescriptionBox(const QString& name, int lineBreakSize, QWidget* parent) {
  auto* box = Named(new DescriptionBox(lineBreakSize, parent), name);
  box->setTabChangesFocus(true);
  return box;
}

QGroupBox* NewFrame(const QString& name, const QString& caption, QWidget* parent) {
  return Named(new QGroupBox(caption, parent), name);
}

QPushButton* NewIdleButton(const QString& name, const QString& caption, const QString& tip,
                           QWidget* parent) {
  auto* button = Named(new QPushButton(caption, parent), name);
  button->setEnabled(false);
  button->setToolTip(tip);
  return button;
}

QButtonGroup* NewOptions(const char* array, int count, QWidget* parent) {
  auto* group = new QButtonGroup(parent);
  for (int i = 0; i < count; ++i) {
    group->addButton(Named(new QRadioButton(parent), ElementName(array, i)), i);
  }
  return group;
}

}  // namespace tarnwick
