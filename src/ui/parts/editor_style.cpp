// SPDX-FileCopyrightText: 2026 The Velmora Tarnwick authors
// SPDX-License-Identifier: MIT
#include "ui/parts/editor_style.h"

#include <QAbstractButton>
#include <QPainter>
#include <QStyleOption>

#include "ui/parts/colours.h"

namespace tarnwick {
namespace {

constexpr double corner = 3;

/// Painting that leaves the painter as it was.
class Pen {
 public:
  Pen(QPainter* painter, const QColor& colour, double width) : painter_(painter) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
  }
  ~Pen() { painter_->restore(); }
  Pen(const Pen&) = delete;
  Pen& operator=(const Pen&) = delete;

 private:
  QPainter* painter_;
};

void DrawFocus(const QRect& around, QPainter* painter) {
  const Pen pen(painter, AccentColour(), 2);
  painter->drawRoundedRect(QRectF(around).adjusted(1, 1, -1, -1), corner, corner);
}

/// A box: its border, inside it `fill`.
void DrawBox(const QStyleOption& option, QPainter* painter, const QBrush& fill) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  const bool byEnter = button && (button->features & QStyleOptionButton::DefaultButton);
  {
    const Pen pen(painter, byEnter ? AccentColour() : BorderColour(), 1);
    painter->setBrush(fill);
    painter->drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
  }
  if (option.state & QStyle::State_HasFocus) DrawFocus(option.rect, painter);
}

/// A frame that holds things together.
void DrawFrame(const QRect& frame, QPainter* painter, const QBrush& fill) {
  const Pen pen(painter, FrameColour(), 1);
  painter->setBrush(fill);
  painter->drawRoundedRect(QRectF(frame).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

/// A frame below its title.
void DrawGroup(const QStyleOptionGroupBox& box, QPainter* painter) {
  const int titleHeight = box.fontMetrics.height();
  DrawFrame(box.rect.adjusted(0, titleHeight + 4, 0, 0), painter, box.palette.base());
  const Pen pen(painter, TextColour(), 1);
  QFont bold = painter->font();
  bold.setBold(true);
  painter->setFont(bold);
  painter->drawText(QRect(box.rect.topLeft(), QSize(box.rect.width(), titleHeight)),
                    Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, box.text.trimmed());
}

QBrush ButtonFill(const QStyleOption& option) {
  if (!(option.state & QStyle::State_Enabled)) return Qt::NoBrush;
  if (option.state & (QStyle::State_Sunken | QStyle::State_On)) return option.palette.midlight();
  return option.palette.base();
}

/// The mark of an option or check box.
void DrawMark(const QStyleOption& option, QPainter* painter, bool round) {
  const QRectF area = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  const bool on = option.state & QStyle::State_On;
  {
    const Pen pen(painter, on ? AccentColour() : BorderColour(), 1);
    painter->setBrush(ButtonFill(option));
    const double radius = round ? area.width() / 2 : 2;
    painter->drawRoundedRect(area, radius, radius);
  }
  if (!on) return;
  const Pen pen(painter, AccentColour(), round ? area.width() / 2 : 2);
  const auto at = [&](double x, double y) {
    return area.topLeft() + QPointF(x * area.width(), y * area.height());
  };
  if (round) {
    painter->drawPoint(area.center());
  } else {
    painter->drawPolyline(QPolygonF({at(.2, .5), at(.42, .72), at(.8, .28)}));
  }
}

/// The text of an option as its place allows: a long name is cut, the price behind it stays.
QString CutText(const QStyleOptionButton& option) {
  const auto width = [&](const QString& text) {
    return option.fontMetrics.size(Qt::TextShowMnemonic, text).width();
  };
  const QString& text = option.text;
  if (width(text) <= option.rect.width()) return text;
  const qsizetype price = text.lastIndexOf(' ', text.lastIndexOf(" [") - 1);
  const QString behind = price > 0 ? text.mid(price) : "";
  const int room = option.rect.width() - width(behind);
  return option.fontMetrics.elidedText(text.chopped(behind.size()), Qt::ElideRight, room) + behind;
}

}  // namespace

QSize EditorStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                    const QSize& contents, const QWidget* widget) const {
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  // Captions and rows that breathe.
  if (type == CT_PushButton) return size + QSize(16, 2);
  if (type == CT_ItemViewItem) return size + QSize(0, 4);
  return size;
}

void EditorStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (element != CE_RadioButtonLabel || button == nullptr) {
    QProxyStyle::drawControl(element, option, painter, widget);
    return;
  }
  QStyleOptionButton cut = *button;
  cut.text = CutText(cut);
  QProxyStyle::drawControl(element, &cut, painter, widget);
}

int EditorStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
  // What scrolls covers all but its frame, which must have room for the focus.
  const bool scrolls = widget != nullptr && widget->inherits("QAbstractScrollArea");
  if (metric == PM_DefaultFrameWidth && scrolls) return 2;
  return QProxyStyle::pixelMetric(metric, option, widget);
}

void EditorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  switch (element) {
    case PE_FrameFocusRect: {
      const auto* button = qobject_cast<const QAbstractButton*>(widget);
      // A push button shows it with its border.
      if (button != nullptr && button->inherits("QPushButton")) return;
      DrawFocus(button != nullptr ? button->rect() : option->rect, painter);
      return;
    }
    case PE_PanelButtonCommand:
      DrawBox(*option, painter, ButtonFill(*option));
      return;
    case PE_Frame:
    case PE_FrameLineEdit:
      if (widget != nullptr && widget->focusPolicy() == Qt::NoFocus) {
        DrawFrame(option->rect, painter, Qt::NoBrush);
      } else {
        DrawBox(*option, painter, Qt::NoBrush);
      }
      return;
    case PE_IndicatorRadioButton:
    case PE_IndicatorCheckBox:
      DrawMark(*option, painter, element == PE_IndicatorRadioButton);
      return;
    default:
      QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void EditorStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
  if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option)) {
    DrawGroup(*box, painter);
    return;
  }
  if (control != CC_ComboBox) {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    return;
  }
  DrawBox(*option, painter, ButtonFill(*option));
  QStyleOption arrow;
  arrow.state = option->state;
  arrow.palette = option->palette;
  arrow.rect = subControlRect(control, option, SC_ComboBoxArrow, widget);
  QProxyStyle::drawPrimitive(PE_IndicatorArrowDown, &arrow, painter, widget);
}

}  // namespace tarnwick
