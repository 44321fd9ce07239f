#include "screens/widgets/line_screen.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "line/line_texts.h"
#include "line/past_lines_model.h"
#include "line/past_lines_texts.h"
#include "screens/widgets/app_texts.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/offer_strip.h"
#include "screens/widgets/qt_text.h"
#include "settings/keys.h"

namespace kav {
namespace {

/// Whether the focus only returns from a menu or another window.
bool IsReturn(const QFocusEvent& event) {
  return event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason ||
         event.reason() == Qt::ActiveWindowFocusReason;
}

Selection SelectionAt(TextPlace place) {
  return {place.position, place.position + place.length};
}

}  // namespace

LineScreen::LineScreen(Frame& frame, QSize size, std::vector<KeySpot> keys, PastRoom room,
                       SideNeighbour neighbour)
    : KeyScreen(frame, size),
      line_(new ExpressionView(this)),
      result_(new ResultView(this)),
      room_(room),
      past_(*this, frame, room, neighbour,
            {.take = [this](const PastLine& past, PastPart part) { TakePast(past, part); },
             .layOut =
                 [this] {
                   LayOutAll();
                   update();
                 },
             .uncover = [this] { Uncover(); },
             .cover = [this] { Cover(); },
             .leave = [this] { line_->setFocus(); }}),
      uses_(new ResultUses(result_, [this] { return CopiedResult(); })) {
  line_->setAccessibleName(ToQt(kExpressionName));
  line_->setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
  line_->installEventFilter(this);
  OpenDoor(*line_, DoorKind::Line);
  result_->setAccessibleName(ToQt(kResultName));
  connect(line_, &QLineEdit::textChanged, this, [this] { ShowLive(); });
  AddKeys(std::move(keys));
  auto* history = new QShortcut(QKeySequence(QLatin1String(kHistoryKeys)), this);
  connect(history, &QShortcut::activated, this, [this] { past_.Toggle(); });
}

LineScreen::~LineScreen() {
  KeepEvaluated();
}

std::vector<MenuEntry> LineScreen::MoreToEdit() {
  return {{kHistoryEntry,
           [this] { past_.Toggle(); },
           QKeySequence(QLatin1String(kHistoryKeys)),
           {},
           kHistoryTip}};
}

void LineScreen::Cover() {
  // Below the history nobody sees what Down leads to.
  OfferStripOf(*line_).Drop();
  result_->hide();
  Keys().hide();
}

void LineScreen::Uncover() {
  result_->show();
  Keys().show();
}

void LineScreen::LayOutHistory(const QRect& body) {
  const int gap = std::max(body.height() / 80, 1);
  QRect keys = body;
  keys.setTop(line_->geometry().bottom() + gap);
  past_.LayOut(keys, TextPixels(Area().height()));
}

bool LineScreen::event(QEvent* event) {
  // Other programs may have calculated, too.
  if (event->type() == QEvent::WindowActivate) past_.Load();
  return KeyScreen::event(event);
}

void LineScreen::paintEvent(QPaintEvent* event) {
  KeyScreen::paintEvent(event);
  QPainter(this).fillRect(past_.PanelPart(), palette().color(QPalette::Window));
  past_.Painted();
}

/// Presses the key of the screen that `event` stands for; whether there is one.
bool LineScreen::PressKeyOf(const QKeyEvent& event) {
  if (event.text() == u"=" || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
    OnEquals();
    return true;
  }
  if (event.key() != Qt::Key_Escape) return false;
  OnClear();
  return true;
}

/// Whether `typed` begins with an operator that the model has taken; the line then has the rest,
/// too.
bool LineScreen::TakeOperator(const QString& typed) {
  if (typed.isEmpty() || !line_->hasSelectedText()) return false;
  if (!OnOperator(typed.front().unicode())) return false;
  line_->insert(typed.mid(1));
  return true;
}

bool LineScreen::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    // Before the line, which would write the "=" and uses Enter and Esc itself. It would also write
    // the letter of Alt and a letter, if that key is disabled.
    const auto& pressed = *static_cast<QKeyEvent*>(event);
    if (pressed.matches(QKeySequence::Copy) && !line_->hasSelectedText()) return uses_->Copy();
    const bool isCommand = (pressed.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
    return PressKeyOf(pressed) || pressed.modifiers() == Qt::AltModifier ||
           (!isCommand && TakeOperator(pressed.text()));
  }
  if (event->type() == QEvent::InputMethod) {
    const QString committed = static_cast<QInputMethodEvent*>(event)->commitString();
    if (committed == u"=") {
      OnEquals();
      return true;
    }
    if (TakeOperator(committed)) return true;
  }
  // A user who goes to the line is done with the result; a menu only gives the focus back.
  if (event->type() == QEvent::FocusIn && !IsReturn(*static_cast<QFocusEvent*>(event))) {
    result_->deselect();
  }
  return KeyScreen::eventFilter(watched, event);
}

void LineScreen::keyPressEvent(QKeyEvent* event) {
  if (PressKeyOf(*event)) return;
  if (focusWidget() == line_) return PressInLine(*event);
  if (!IsTyping(*event)) return KeyScreen::keyPressEvent(event);
  line_->setFocus();
  // Out of the keys one only comes back to the line.
  if (event->key() == Qt::Key_Up) return;
  QCoreApplication::sendEvent(line_, event);
}

/// The lines of all sessions; those that the screen itself knows if none are kept.
HistoryWalk::Lines LineScreen::LinesToWalk() {
  KeepEvaluated();
  if (ParentFrame().Store().Get(kHistoryKept) == 0) return EarlierLines();
  return Joined(EarlierLines(), TypedLinesOf(ParentFrame().Past(), room_));
}

/// What the line itself has no use for.
void LineScreen::PressInLine(QKeyEvent& event) {
  const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (event.key() == Qt::Key_Up && isPlain) {
    return WriteLine(*line_, walk_.Up(LineIn(*line_), [this] { return LinesToWalk(); }));
  }
  if (event.key() == Qt::Key_Down) {
    const auto later = isPlain ? walk_.Down(LineIn(*line_)) : std::nullopt;
    return later ? WriteLine(*line_, *later) : Keys().Enter();
  }
  KeyScreen::keyPressEvent(&event);
}

void LineScreen::FinishLine() {
  walk_.End();
  ShowFault(std::nullopt);
}

void LineScreen::ShowFault(const std::optional<LineFault>& fault) {
  const std::optional<TextPlace> place = fault ? fault->place : std::nullopt;
  line_->MarkFault(place ? std::optional(SelectionAt(*place)) : std::nullopt);
  const std::optional<std::u16string> mended = fault ? fault->mended : std::nullopt;
  if (mended == offered_) return;
  offered_ = mended;
  // What it asks about another field is not this question.
  OfferStrip& strip = OfferStripOf(*line_);
  if (strip.Field() == line_) strip.Drop();
  if (!mended) return;
  strip.Offers(*line_, kDidYouMean, {{*mended, [this] { OnMend(); }}});
  strip.StandBelow(*result_);
}

void LineScreen::ShowLive() {
  line_->ShowLive(LiveResult(TextOf(*line_)));
}

void LineScreen::CopyLine() {
  if (const auto text = CopiedLine()) CopyText(*text);
}

ResultEntries LineScreen::EntriesOfResult() {
  return {{kCopyResultEntry,
           [this] { uses_->Copy(); },
           {},
           [this] { return CopiedResult().has_value(); }},
          {kCopyLineEntry, [this] { CopyLine(); },
           QKeySequence(QLatin1String(ShortcutOf(ScreenCommand::CopyLine))),
           [this] { return CopiedLine().has_value(); }}};
}

void LineScreen::ShowMemory(const std::u16string& value) {
  if (memory_ == nullptr) {
    if (value.empty()) return;
    memory_ = new MemoryMark(result_);
  }
  memory_->Show(value);
}

void LineScreen::LayOutResult(const QRect& place) {
  result_->LayOut(place);
  if (memory_ != nullptr) memory_->LayOut();
}

QLineEdit& LineScreen::Edited() const {
  if (result_->hasSelectedText()) return *result_;
  return *line_;
}

void LineScreen::Edit(EditCommand command) {
  EditLine(Edited(), command);
}

bool LineScreen::CanEdit(EditCommand command) const {
  return CanEditLine(Edited(), command);
}

void LineScreen::SaveAfterPainting(const std::function<void()>& save,
                                   const std::optional<PastLine>& evaluated) {
  // The disk may be slow, and the user waits for the answer.
  line_->repaint();
  result_->repaint();
  if (evaluated) evaluated_.push_back(*evaluated);
  QTimer::singleShot(0, this, [this, save] {
    save();
    KeepEvaluated();
    ParentFrame().SaveStore();
    past_.Load();
  });
}

void LineScreen::KeepEvaluated() {
  for (PastLine& past : evaluated_) {
    KeepPastLine(ParentFrame().Past(), ParentFrame().Store(), std::move(past));
  }
  evaluated_.clear();
}

}  // namespace kav
