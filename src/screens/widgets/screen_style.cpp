// The style of everything that the desktop's style would draw with a fixed number of pixels.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QIcon>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>
#include <optional>

#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/key_painter.h"
#include "screens/widgets/look.h"
#include "screens/widgets/outlined_parts.h"

namespace kav {
namespace {

/// The height of the text in what is drawn; 0 if it is not known.
int TextHeight(const QStyleOption* option, const QWidget* widget) {
  if (option != nullptr) return option->fontMetrics.height();
  return widget != nullptr ? widget->fontMetrics().height() : 0;
}

/// How much of the text's height a measure takes at least; 0 for those that the desktop decides.
double TextShare(QStyle::PixelMetric metric) {
  switch (metric) {
    case QStyle::PM_IndicatorWidth:
    case QStyle::PM_IndicatorHeight:
    case QStyle::PM_ExclusiveIndicatorWidth:
    case QStyle::PM_ExclusiveIndicatorHeight:
      return 0.75;
    case QStyle::PM_RadioButtonLabelSpacing:
    case QStyle::PM_CheckBoxLabelSpacing:
    case QStyle::PM_HeaderMargin:
      return 0.3;
    case QStyle::PM_TabBarTabHSpace:
      return 1.4;
    case QStyle::PM_TabBarTabVSpace:
      return 0.4;
    case QStyle::PM_ScrollBarExtent:
      return 0.8;
    case QStyle::PM_FocusFrameHMargin:
      return 0.25;
    case QStyle::PM_FocusFrameVMargin:
      return 0.12;
    case QStyle::PM_MessageBoxIconSize:
      return 2;
    case QStyle::PM_TextCursorWidth:
      return 1.0 / 30;
    default:
      return 0;
  }
}

/// What stands before a message: a character on a disc.
struct Sign {
  char16_t character;
  Colour disc;
  Colour text = Colour::SignText;
};

std::optional<Sign> SignOf(QStyle::StandardPixmap icon) {
  switch (icon) {
    case QStyle::SP_MessageBoxCritical:
      return Sign{u'×', Colour::StopSign};
    case QStyle::SP_MessageBoxWarning:
      return Sign{u'!', Colour::WarningSign, Colour::WarningSignText};
    case QStyle::SP_MessageBoxQuestion:
      return Sign{u'?', Colour::QuestionSign};
    case QStyle::SP_MessageBoxInformation:
      return Sign{u'i', Colour::QuestionSign};
    default:
      return std::nullopt;
  }
}

QIcon DrawSign(const Sign& sign, int size) {
  QPixmap picture(size, size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ColourNow(sign.disc));
  painter.drawEllipse(picture.rect());
  QFont font = ScreenFont(size * 7 / 10);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(ColourNow(sign.text));
  painter.drawText(picture.rect(), Qt::AlignCenter, QString(QChar(sign.character)));
  painter.end();
  return picture;
}

class TextMeasuredStyle final : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

 private:
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override {
    const int text = option->fontMetrics.height();
    if (type == CT_MenuBarItem) return size + QSize(text, text / 2);
    if (type == CT_ComboBox) return size + QSize(2 * text, text / 2);
    if (type == CT_LineEdit) return size + QSize(text / 2, text / 2);
    if (type == CT_PushButton) return size + QSize(text, text / 2);
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type == CT_MenuItem && entry != nullptr) return EntrySize(*entry, size, widget);
    return QProxyStyle::sizeFromContents(type, option, size, widget);
  }

  QSize EntrySize(const QStyleOptionMenuItem& entry, const QSize& size,
                  const QWidget* widget) const {
    // The menu itself adds the column of the shortcuts, and so it would be there twice.
    QStyleOptionMenuItem alone = entry;
    alone.reservedShortcutWidth = 0;
    const QSize usual = QProxyStyle::sizeFromContents(CT_MenuItem, &alone, size, widget);
    const int text = entry.fontMetrics.height();
    // The column for ticks is drawn as wide as an entry is high, but counted with fewer pixels.
    const QSize all = usual + QSize(text, text / 4);
    return all - QSize(UnusedColumn(&entry, all.height()), 0);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    if (metric == PM_MenuBarItemSpacing) return 0;
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    const double share = TextShare(metric);
    // A font is not loaded to be multiplied by nothing: that takes as long as much of a start.
    if (share == 0) return usual;
    return std::max(usual, qRound(TextHeight(option, widget) * share));
  }

  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override {
    const QRect usual = QProxyStyle::subElementRect(element, option, widget);
    if (element == SE_TabBarTabText) return WithRoomForText(usual, option);
    if (element != SE_LineEditContents) return usual;
    const int margin = option->fontMetrics.height() / 6;
    return usual.adjusted(margin, 0, -margin, 0);
  }

  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override {
    const std::optional<Sign> sign = SignOf(icon);
    if (!sign) return QProxyStyle::standardIcon(icon, option, widget);
    return DrawSign(*sign, pixelMetric(PM_MessageBoxIconSize, option, widget));
  }

  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    if (control != CC_ComboBox) {
      return QProxyStyle::subControlRect(control, option, part, widget);
    }
    const int text = option->fontMetrics.height();
    const int arrow = text * 3 / 2;
    switch (part) {
      case SC_ComboBoxEditField:
        return option->rect.adjusted(text / 3, 0, -arrow, 0);
      case SC_ComboBoxArrow:
        return option->rect.adjusted(option->rect.width() - arrow, 0, 0, 0);
      default:
        return option->rect;
    }
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (DrawOutlined(element, *option, *painter)) return;
    if (element == PE_PanelLineEdit) return DrawPanel(*option, *painter);
    if (element == PE_FrameFocusRect && option->state.testFlag(State_Item)) {
      return DrawRowFocus(*option, *painter);
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (DrawOutlined(element, *option, *painter)) return;
    if (element == CE_ComboBoxLabel) return DrawChoice(option, painter, widget);
    if (element == CE_MenuItem) return DrawEntry(option, painter, widget);
    const auto* button = dynamic_cast<const QAbstractButton*>(widget);
    if (element != CE_PushButton || button == nullptr) {
      return QProxyStyle::drawControl(element, option, painter, widget);
    }
    const KeyColours colours{ColourNow(Colour::FunctionKey), ColourNow(Colour::FunctionKeyText)};
    PaintKey(*painter, *button, colours, button->font());
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    // With a bar to scroll it by: the arrows of a menu are too small for fingers.
    if (hint == SH_ComboBox_Popup) return 0;
    // A light shadow makes texts on dark paper stand out rather than back. (Elsewhere this decides
    // how large a box with a text is.)
    if (hint == SH_EtchDisabledText && qobject_cast<const QMenu*>(widget) != nullptr) return 0;
    // The desktop's own are darker than a window, and not to be seen on dark paper.
    if (hint == SH_Table_GridLineColor && SchemeNow() != ColourScheme::Light) {
      return static_cast<int>(ColourNow(Colour::GridLine).rgba());
    }
    return QProxyStyle::styleHint(hint, option, widget, result);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    if (control == CC_ScrollBar) return DrawScrollBar(option, painter, widget);
    if (control != CC_ComboBox) {
      return QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
    DrawField(*option, *painter);
    DrawArrow(subControlRect(control, option, SC_ComboBoxArrow, widget), *option, *painter);
  }

  /// The pixels before the text of a menu's entry that are for ticks, in a menu without any.
  int UnusedColumn(const QStyleOption* option, int height) const {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const bool hasColumn = baseStyle()->name() == QLatin1String("fusion");
    if (entry == nullptr || !hasColumn || entry->menuHasCheckableItems || entry->maxIconWidth > 0 ||
        entry->menuItemType == QStyleOptionMenuItem::Separator) {
      return 0;
    }
    constexpr int kNarrowest = 21;
    const int column = std::max(height * 79 / 100, kNarrowest);
    return std::max(column - entry->fontMetrics.height() / 3, 0);
  }

  void DrawEntry(const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (entry == nullptr) return QProxyStyle::drawControl(CE_MenuItem, option, painter, widget);
    QStyleOptionMenuItem shown = *entry;
    shown.rect.adjust(-UnusedColumn(option, option->rect.height()), 0, 0, 0);
    if (!entry->state.testFlag(State_Enabled)) {
      shown.palette.setColor(QPalette::Text, ColourNow(Colour::DisabledText));
    }
    painter->save();
    painter->setClipRect(option->rect);
    QProxyStyle::drawControl(CE_MenuItem, &shown, painter, widget);
    painter->restore();
  }

  /// `usual`, or where the text of a tab needs what is kept free around it, all of the tab.
  static QRect WithRoomForText(const QRect& usual, const QStyleOption* option) {
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    if (tab == nullptr) return usual;
    const int text = tab->fontMetrics.size(Qt::TextShowMnemonic, tab->text).width();
    return text <= usual.width() ? usual : tab->rect.adjusted(1, 0, -1, 0);
  }

  /// A text that is too long for its field is seen to be.
  void DrawChoice(const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    const auto* chosen = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (chosen == nullptr)
      return QProxyStyle::drawControl(CE_ComboBoxLabel, option, painter, widget);
    QStyleOptionComboBox shown = *chosen;
    const int room =
        subControlRect(CC_ComboBox, chosen, SC_ComboBoxEditField, widget).width() - kChoiceMargin;
    shown.currentText = shown.fontMetrics.elidedText(shown.currentText, Qt::ElideRight, room);
    QProxyStyle::drawControl(CE_ComboBoxLabel, &shown, painter, widget);
  }

  /// Marks the row of a list that the keys work on: around its letters, or where it is no higher
  /// than they are, beside them. The desktop's own mark is a veil over them.
  static void DrawRowFocus(const QStyleOption& option, QPainter& painter) {
    const int text = option.fontMetrics.height();
    const int line = std::max(1, text / 20);
    const bool isSelected = option.state.testFlag(State_Selected);
    const QColor colour =
        option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Highlight);
    // Clear of the edge of a selected row, beyond which the paper may have the same colour.
    const QRect outer = option.rect.adjusted(line, line, -line, -line);
    const bool isHigh = option.rect.height() >= text + 6 * line;
    const int side = isHigh ? line : 2 * line;
    painter.fillRect(QRect(outer.left(), outer.top(), side, outer.height()), colour);
    painter.fillRect(QRect(outer.right() + 1 - side, outer.top(), side, outer.height()), colour);
    if (!isHigh) return;
    painter.fillRect(QRect(outer.left(), outer.top(), outer.width(), line), colour);
    painter.fillRect(QRect(outer.left(), outer.bottom() + 1 - line, outer.width(), line), colour);
  }

  /// The box of a line, or the paper alone of one that outlines itself.
  static void DrawPanel(const QStyleOption& option, QPainter& painter) {
    const auto* panel = qstyleoption_cast<const QStyleOptionFrame*>(&option);
    const bool isFlat = panel != nullptr && panel->features.testFlag(QStyleOptionFrame::Flat);
    if (!isFlat) return DrawField(option, painter);
    painter.fillRect(option.rect, PaperOf(option));
  }

  static QColor PaperOf(const QStyleOption& option) {
    const bool isEnabled = option.state.testFlag(State_Enabled);
    return option.palette.color(isEnabled ? QPalette::Base : QPalette::Window);
  }

  /// The box of what is typed or chosen.
  static void DrawField(const QStyleOption& option, QPainter& painter) {
    const int text = option.fontMetrics.height();
    const bool hasFocus = option.state.testFlag(State_HasFocus);
    const double line = std::max(1.0, text / 20.0) * (hasFocus ? 2 : 1);
    const QRectF outline = QRectF(option.rect).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(PaperOf(option));
    painter.setPen(
        QPen(option.palette.color(hasFocus ? QPalette::Highlight : QPalette::Mid), line));
    painter.drawRoundedRect(outline, text * 0.2, text * 0.2);
    painter.restore();
  }

  /// The arrow of a drop-down list.
  static void DrawArrow(const QRect& area, const QStyleOption& option, QPainter& painter) {
    DrawArrow(area, option, painter, option.fontMetrics.height() * 0.25, 0);
  }

  /// An arrow down, turned by `degrees`; from its middle it reaches `size` pixels to each side.
  static void DrawArrow(const QRect& area, const QStyleOption& option, QPainter& painter,
                        double size, int degrees) {
    QPainterPath arrow(QPointF(-size, -size / 2));
    arrow.lineTo(QPointF(0, size / 2));
    arrow.lineTo(QPointF(size, -size / 2));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(area).center());
    painter.rotate(degrees);
    painter.setPen(QPen(option.palette.color(QPalette::Text), std::max(1.0, size / 3)));
    painter.drawPath(arrow);
    painter.restore();
  }

  void DrawScrollBar(const QStyleOptionComplex* option, QPainter* painter,
                     const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (bar == nullptr)
      return QProxyStyle::drawComplexControl(CC_ScrollBar, option, painter, widget);
    const bool isUpright = bar->orientation == Qt::Vertical;
    const int extent = isUpright ? bar->rect.width() : bar->rect.height();
    const auto place = [&](SubControl part) {
      return subControlRect(CC_ScrollBar, option, part, widget);
    };
    painter->fillRect(bar->rect, bar->palette.color(QPalette::Window));
    const bool isHeld = bar->activeSubControls.testFlag(SC_ScrollBarSlider);
    const QColor slider = bar->palette.color(QPalette::Mid);
    const double gap = std::max(1.0, extent / 8.0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(isHeld ? slider.darker(125) : slider);
    painter->drawRoundedRect(QRectF(place(SC_ScrollBarSlider)).adjusted(gap, gap, -gap, -gap), gap,
                             gap);
    painter->restore();
    constexpr int kQuarter = 90;
    DrawArrow(place(SC_ScrollBarSubLine), *bar, *painter, extent / 4.0,
              isUpright ? 2 * kQuarter : kQuarter);
    DrawArrow(place(SC_ScrollBarAddLine), *bar, *painter, extent / 4.0, isUpright ? 0 : -kQuarter);
  }
};

}  // namespace

QStyle* ScreenStyle() {
  static QPointer<QStyle> style;
  if (!style) {
    style = new TextMeasuredStyle(QStyleFactory::create(QApplication::style()->name()));
    style->setParent(QCoreApplication::instance());
  }
  return style;
}

}  // namespace kav
