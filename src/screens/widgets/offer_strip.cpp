#include "screens/widgets/offer_strip.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

#include "screens/widgets/access_view.h"
#include "screens/widgets/app_texts.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/look.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

// By the height of the letters.
constexpr double kStripHeight = 2;
constexpr double kGap = 0.4;
/// Of a key, what is not left to be seen below it.
constexpr double kRest = 0.25;
constexpr double kBesideCaption = 1;  ///< what a button takes besides its caption

/// Letters get lower by this share at most before texts are cut.
constexpr double kSmallest = 0.75;

constexpr const char* kStripName = "kav_offer_strip";

/// Screen readers speak up for what is asked.
class StripAccess final : public QAccessibleWidget {
 public:
  explicit StripAccess(QWidget& strip)
      : QAccessibleWidget(&strip, QAccessible::AlertMessage, ToQt(kOfferName)) {}

  QString text(QAccessible::Text kind) const override {
    const auto* strip = static_cast<const OfferStrip*>(object());
    return kind == QAccessible::Description && strip != nullptr ? strip->Question()
                                                                : QAccessibleWidget::text(kind);
  }
};

QAccessibleInterface* MakeStripAccess(const QString&, QObject* object) {
  auto* strip = dynamic_cast<OfferStrip*>(object);
  return strip != nullptr ? new StripAccess(*strip) : nullptr;
}

void OfferStripsToScreenReaders() {
  static const bool kIsOffered = [] {
    QAccessible::installFactory(MakeStripAccess);
    return true;
  }();
  (void)kIsOffered;
}

QString Caption(QString text) {
  return text.replace(u'&', QStringLiteral("&&"));
}

bool IsCommand(const QKeyEvent& key) {
  return (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

/// Whether `key`, pressed in the field, is for the strip.
bool LeadsHere(const QKeyEvent& key) {
  return key.modifiers() == Qt::NoModifier &&
         (key.key() == Qt::Key_Down || key.key() == Qt::Key_Escape);
}

QPushButton* NewButton(QWidget& strip, const QString& name) {
  auto* button = new DialogButton({});
  button->setStyle(ScreenStyle());
  button->setAutoDefault(false);
  button->setAccessibleName(name);
  button->setParent(&strip);
  button->installEventFilter(&strip);
  return button;
}

}  // namespace

OfferStrip::OfferStrip(QWidget* screen)
    : label_(new QLabel(this)), close_(NewButton(*this, ToQt(kGiveUpOffer))) {
  // Before it has a parent: a screen reader that listens asks for the children of a window as they
  // come.
  OfferWidgetsToScreenReaders();
  OfferStripsToScreenReaders();
  setAccessibleName(ToQt(kOfferName));
  setObjectName(QLatin1String(kStripName));
  hide();
  label_->setStyle(ScreenStyle());
  label_->setTextFormat(Qt::PlainText);
  close_->setText(QStringLiteral("×"));
  close_->setToolTip(ToQt(kGiveUpOffer));
  connect(close_, &QPushButton::clicked, this, [this] { GiveUp(); });
  setParent(screen);
  screen->installEventFilter(this);
}

void OfferStrip::Offers(const QWidget& field, std::u16string_view question,
                        std::vector<Offer> offers, std::function<void()> giveUp) {
  Drop();
  for (auto* part : parentWidget()->findChildren<QWidget*>()) {
    if (part == &field) field_ = part;
  }
  if (field_ == nullptr) return;
  field_->installEventFilter(this);
  if (auto* line = qobject_cast<QLineEdit*>(field_.data())) {
    connect(line, &QLineEdit::textChanged, this, [this] { Drop(); });
  }
  question_ = ToQt(question);
  offers_ = std::move(offers);
  giveUp_ = std::move(giveUp);
  answers_.reserve(offers_.size());
  for (std::size_t i = 0; i < offers_.size(); ++i) AddAnswer(i);
  if (!answers_.empty()) setTabOrder(answers_.back(), close_);
  LayOut();
  raise();
  show();
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void OfferStrip::AddAnswer(std::size_t index) {
  const QString text = ToQt(offers_[index].text);
  QPushButton* button = NewButton(*this, text);
  const QString key = ToQt(KeyOfOffer(index + 1));
  button->setToolTip(text + QStringLiteral(" (") + key + u')');
  button->setAccessibleDescription(question_ + u' ' + key);
  connect(button, &QPushButton::clicked, this, [this, index] { Take(index); });
  if (!answers_.empty()) setTabOrder(answers_.back(), button);
  button->show();
  answers_.push_back(button);
}

void OfferStrip::Drop() {
  if (field_ == nullptr) return;
  QWidget& field = *std::exchange(field_, nullptr);
  field.removeEventFilter(this);
  disconnect(&field, nullptr, this, nullptr);
  // Hidden while it has the keyboard, it would hand it to any widget.
  const QWidget* focus = window()->focusWidget();
  if (focus != nullptr && isAncestorOf(focus)) field.setFocus(Qt::OtherFocusReason);
  hide();
  // One of them may be telling that it was pressed.
  for (QPushButton* button : answers_) {
    button->hide();
    button->deleteLater();
  }
  answers_.clear();
  offers_.clear();
  giveUp_ = nullptr;
  above_ = nullptr;
}

void OfferStrip::StandBelow(const QWidget& widget) {
  if (field_ == nullptr) return;
  above_ = &widget;
  LayOut();
}

void OfferStrip::Take(std::size_t index) {
  if (index >= offers_.size()) return;
  const std::function<void()> take = std::move(offers_[index].take);
  Drop();
  if (take) take();
}

void OfferStrip::GiveUp() {
  const std::function<void()> giveUp = std::move(giveUp_);
  Drop();
  if (giveUp) giveUp();
}

void OfferStrip::Enter() {
  if (!answers_.empty()) answers_.front()->setFocus(Qt::TabFocusReason);
}

/// Moves the keyboard to the answer, or the cross, `step` beside the one that has it.
void OfferStrip::Go(int step) {
  std::vector<QPushButton*> all = answers_;
  all.push_back(close_);
  const auto at = std::find(all.begin(), all.end(), window()->focusWidget());
  if (at == all.end()) return;
  const auto next = (at - all.begin()) + step;
  if (next < 0 || next >= static_cast<std::ptrdiff_t>(all.size())) return;
  all[static_cast<std::size_t>(next)]->setFocus(step > 0 ? Qt::TabFocusReason
                                                         : Qt::BacktabFocusReason);
}

bool OfferStrip::eventFilter(QObject* watched, QEvent* event) {
  // The rest of what it watches is the screen around it.
  const bool isField = field_ != nullptr && watched == field_;
  const bool isButton = watched->parent() == this;
  switch (event->type()) {
    case QEvent::KeyPress: {
      const auto& key = *static_cast<QKeyEvent*>(event);
      return isField ? PressInField(key) : isButton && PressOnButton(key);
    }
    case QEvent::ShortcutOverride: {
      const auto& key = *static_cast<QKeyEvent*>(event);
      // No key of the strip is to work as a shortcut of the screen.
      if (isField ? !LeadsHere(key) : !isButton || IsCommand(key)) return false;
      event->accept();
      return true;
    }
    case QEvent::Hide:
      if (isField) Drop();
      return false;
    case QEvent::Move:
    case QEvent::Resize:
      if (field_ != nullptr && !isButton) LayOut();
      return false;
    default:
      return false;
  }
}

bool OfferStrip::PressInField(const QKeyEvent& key) {
  if (!LeadsHere(key)) return false;
  key.key() == Qt::Key_Escape ? GiveUp() : Enter();
  return true;
}

/// Whether `key`, pressed on one of the buttons, was for the strip. By itself a button would lead
/// arrows on to any widget of the screen, and Enter would press another one.
bool OfferStrip::PressOnButton(const QKeyEvent& key) {
  if (IsCommand(key)) return false;
  switch (key.key()) {
    case Qt::Key_Escape:
      GiveUp();
      return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
      Go(key.key() == Qt::Key_Left ? -1 : 1);
      return true;
    case Qt::Key_Up:
      field_->setFocus(Qt::OtherFocusReason);
      return true;
    case Qt::Key_Down:
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (auto* button = qobject_cast<QPushButton*>(window()->focusWidget())) button->click();
      return true;
    default:
      return TakeByNumber(key.key() - Qt::Key_1);
  }
}

bool OfferStrip::TakeByNumber(int index) {
  if (index < 0 || index >= static_cast<int>(offers_.size())) return false;
  Take(static_cast<std::size_t>(index));
  return true;
}

void OfferStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int line = std::max(1, height() / 24);
  painter.fillRect(rect(), palette().color(QPalette::Highlight));
  painter.fillRect(rect().adjusted(line, line, -line, -line), palette().color(QPalette::Base));
}

int OfferStrip::NeededWidth(int pixels) const {
  const QFontMetrics letters(ScreenFont(pixels));
  const int gap = qRound(kGap * pixels);
  const int beside = qRound(kBesideCaption * pixels);
  int width = gap + letters.horizontalAdvance(question_);
  for (const Offer& offer : offers_) {
    width += gap + letters.horizontalAdvance(ToQt(offer.text)) + beside;
  }
  return width + gap + letters.horizontalAdvance(close_->text()) + beside + gap;
}

/// Over what lies below the field, else above it, else over its end.
QRect OfferStrip::PlaceFor(QSize size) const {
  const QWidget& screen = *parentWidget();
  const QWidget& above = above_ != nullptr ? *above_ : *field_;
  const QRect field(above.mapTo(&screen, QPoint()), above.size());
  const int left = std::clamp(field.left(), 0, std::max(screen.width() - size.width(), 0));
  int top = field.bottom() + 1;
  if (top + size.height() > screen.height()) top = field.top() - size.height();
  if (top < 0) top = std::max(screen.height() - size.height(), 0);
  const QRect place(QPoint(left, top), size);
  return top > field.top() ? WithRests(place) : place;
}

/// `place`, and the lower edges of keys that would look out from under it.
QRect OfferStrip::WithRests(const QRect& place) const {
  int bottom = place.bottom();
  for (const auto* key : parentWidget()->findChildren<QAbstractButton*>()) {
    if (!key->isVisible() || isAncestorOf(key)) continue;
    const QRect area(key->mapTo(parentWidget(), QPoint()), key->size());
    const int rest = area.bottom() - place.bottom();
    if (area.intersects(place) && rest > 0 && rest < kRest * area.height()) {
      bottom = std::max(bottom, area.bottom());
    }
  }
  QRect all = place;
  all.setBottom(bottom);
  return all;
}

void OfferStrip::LayOut() {
  const QWidget& screen = *parentWidget();
  const int most = std::max(TextPixels(PortraitArea(screen.window()->size()).height()), 1);
  int pixels = most;
  while (pixels > kSmallest * most && NeededWidth(pixels) > screen.width()) --pixels;
  pixels = std::max(pixels, 1);
  const int height = qRound(kStripHeight * most);
  const int width = std::min(std::max(NeededWidth(pixels), field_->width()), screen.width());
  setGeometry(PlaceFor({width, height}));
  LayOutParts(pixels, width, this->height());
}

void OfferStrip::LayOutParts(int pixels, int room, int height) {
  const QFont font = ScreenFont(pixels);
  const QFontMetrics letters(font);
  const int gap = qRound(kGap * pixels);
  const int beside = qRound(kBesideCaption * pixels);
  const int line = std::max(2, height / 12);
  const int high = height - 2 * line;
  int right = room - gap;
  int cut = std::max(NeededWidth(pixels) - room, 0);
  const auto place = [&](QPushButton& button, const QString& text) {
    const int whole = letters.horizontalAdvance(text);
    const int width = std::max(whole - cut, std::min(whole, 3 * pixels));
    cut -= whole - width;
    button.setFont(font);
    // A text that has just room enough would be cut by a fraction of a pixel.
    const bool isCut = width < whole;
    button.setText(Caption(isCut ? letters.elidedText(text, Qt::ElideMiddle, width) : text));
    button.setGeometry(right - width - beside, line, width + beside, high);
    right -= width + beside + gap;
  };
  place(*close_, QStringLiteral("×"));
  for (std::size_t i = answers_.size(); i > 0; --i) {
    place(*answers_[i - 1], ToQt(offers_[i - 1].text));
  }
  label_->setFont(font);
  const int labelRoom = std::max(right - gap, 0);
  const bool isCut = labelRoom < letters.horizontalAdvance(question_);
  label_->setText(isCut ? letters.elidedText(question_, Qt::ElideMiddle, labelRoom) : question_);
  label_->setToolTip(question_);
  label_->setAccessibleName(question_);
  label_->setGeometry(gap, line, labelRoom + gap, high);
}

OfferStrip& OfferStripOf(const QWidget& field) {
  QWidget* screen = field.window();
  auto* made = screen->findChild<QWidget*>(QLatin1String(kStripName), Qt::FindDirectChildrenOnly);
  auto* strip = dynamic_cast<OfferStrip*>(made);
  return strip != nullptr ? *strip : *std::make_unique<OfferStrip>(screen).release();
}

}  // namespace kav
