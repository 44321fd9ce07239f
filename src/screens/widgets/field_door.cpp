#include "screens/widgets/field_door.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>
#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "common/ascii.h"
#include "display/comma_reading.h"
#include "display/own_spelling.h"
#include "line/expression_line.h"
#include "screens/widgets/comma_question.h"
#include "screens/widgets/formula_view.h"
#include "screens/widgets/offer_strip.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr const char* kDoorName = "kav_field_door";

bool IsOfNumber(char16_t c) {
  return IsDigit(c) || c == u'.' || c == u',' || c == u'\'';
}

/// The part of `line` that a change came into, with the whole numbers at its ends.
struct Piece {
  std::size_t start;
  std::size_t end;
};

Piece PieceOf(const TextChange& change, std::u16string_view line) {
  Piece piece{change.start, change.start + change.text.size()};
  // What is typed key by key is a number only when it is taken.
  if (change.text.size() < 2) return piece;
  while (piece.start > 0 && IsOfNumber(line[piece.start - 1])) --piece.start;
  while (piece.end < line.size() && IsOfNumber(line[piece.end])) ++piece.end;
  return piece;
}

/// `line` with the piece in its own spelling.
std::u16string WithOwnPiece(std::u16string_view line, const Piece& piece) {
  const std::u16string_view text = line.substr(piece.start, piece.end - piece.start);
  const char16_t before = piece.start > 0 ? line[piece.start - 1] : u'\0';
  const char16_t after = piece.end < line.size() ? line[piece.end] : u'\0';
  std::u16string own(line.substr(0, piece.start));
  own += OwnPiece(before, text, after);
  own += line.substr(piece.end);
  // Whether a comma parts thousands or arguments, only the whole line tells.
  return text.size() > 1 && text.find(u',') != text.npos ? WithoutThousands(own) : own;
}

class FieldDoor : public QObject {
 public:
  FieldDoor(QWidget& field, DoorKind kind) : field_(field), kind_(kind) {
    setObjectName(QLatin1String(kDoorName));
    field.installEventFilter(this);
  }

  /// Spells the text, and asks about it if there is something to ask.
  bool Asks(const std::function<void()>& goOn) {
    if (!field_.isVisible() || !field_.isEnabled() || kind_ == DoorKind::Cell) return false;
    const std::u16string text = Text();
    const std::u16string own = OwnSpelling(text);
    if (own != text) Write(own, Step::New);
    const auto question = QuestionOfLine(own);
    if (!question || declined_ == own) return false;
    Ask(*question, Step::New, goOn);
    Strip().Enter();
    return true;
  }

 protected:
  /// Whether a change is undone together with the one before it.
  enum class Step { New, Joined };

  virtual std::u16string Text() const = 0;
  virtual std::size_t Caret() const = 0;
  virtual void SetCaret(std::size_t caret) = 0;
  /// Whether the text came back by undo.
  virtual bool IsUndone() const = 0;
  virtual void Change(const std::u16string& text, Step step) = 0;

  void OnChanged() {
    if (isWriting_) return;
    declined_.clear();
    const std::u16string now = Text();
    const std::u16string before = std::exchange(known_, now);
    const TextChange change = ChangeBetween(before, now);
    if (change.text.empty() || IsUndone()) return;
    const Piece piece = PieceOf(change, now);
    const std::u16string own = WithOwnPiece(now, piece);
    if (own != now) Write(own, Step::Joined);
    const bool isPasted = change.text.size() > 1 && field_.hasFocus() && kind_ != DoorKind::Cell;
    if (!isPasted || change.text.find(u',') == change.text.npos) return;
    if (const auto question = QuestionOfLine(own)) Ask(*question, Step::Joined, {});
  }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
      case QEvent::KeyPress:
        return RetypesKey(*static_cast<QKeyEvent*>(event));
      case QEvent::InputMethod:
        return Recommits(*static_cast<QInputMethodEvent*>(event));
      case QEvent::FocusOut:
        OnLeft(static_cast<QFocusEvent*>(event)->reason());
        return false;
      default:
        return false;
    }
  }

  /// What `typed` is at the caret; nullopt if it is spelled so already.
  std::optional<QString> OwnTyped(const QString& typed) const {
    if (typed.isEmpty()) return std::nullopt;
    const std::u16string text = Text();
    const std::size_t caret = std::min(Caret(), text.size());
    const std::u16string piece = typed.toStdU16String();
    const std::u16string own = OwnPiece(caret > 0 ? text[caret - 1] : u'\0', piece,
                                        caret < text.size() ? text[caret] : u'\0');
    return own == piece ? std::nullopt : std::optional(ToQt(own));
  }

  /// Gives the field another key in the place of one that types a foreign sign.
  bool RetypesKey(QKeyEvent& key) {
    constexpr char16_t kLastPlain = u'~';
    if (key.text().isEmpty() || key.text().front() <= kLastPlain) return false;
    const auto own = OwnTyped(key.text());
    if (!own) return false;
    QKeyEvent typed(QEvent::KeyPress, 0, key.modifiers(), *own, key.isAutoRepeat());
    QCoreApplication::sendEvent(&field_, &typed);
    key.setAccepted(typed.isAccepted());
    return true;
  }

  bool Recommits(QInputMethodEvent& event) {
    const auto own = OwnTyped(event.commitString());
    if (!own) return false;
    QInputMethodEvent other(event.preeditString(), event.attributes());
    other.setCommitString(*own, event.replacementStart(), event.replacementLength());
    QCoreApplication::sendEvent(&field_, &other);
    return true;
  }

  void OnLeft(Qt::FocusReason reason) {
    const bool isByUser = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                          reason == Qt::MouseFocusReason;
    if (kind_ != DoorKind::Number || !isByUser) return;
    // Not before the key or the tap that led away has done its work.
    QTimer::singleShot(0, this, [this] {
      const QWidget* focus = field_.window()->focusWidget();
      const bool isAsked =
          focus != nullptr && dynamic_cast<OfferStrip*>(focus->parentWidget()) != nullptr;
      if (focus != &field_ && !isAsked && field_.window()->isActiveWindow()) Asks({});
    });
  }

  OfferStrip& Strip() { return OfferStripOf(field_); }

  void Ask(const CommaQuestion& question, Step step, const std::function<void()>& goOn) {
    AskForCommas(
        field_, LineQuestionText(question), question,
        [=, this](CommaMeaning meaning) { Answer(question, meaning, step, goOn); },
        [this] { declined_ = Text(); });
  }

  void Answer(const CommaQuestion& question, CommaMeaning meaning, Step step,
              const std::function<void()>& goOn) {
    const std::u16string read = LineWithCommas(Text(), question, meaning);
    Write(read, step);
    if (const auto other = QuestionOfLine(read)) {
      Ask(*other, step, goOn);
      return Strip().Enter();
    }
    if (goOn) goOn();
  }

  /// Writes `text`; what stands behind the caret stays there.
  void Write(const std::u16string& text, Step step) {
    const std::size_t behind = Text().size() - std::min(Caret(), Text().size());
    isWriting_ = true;
    Change(text, step);
    isWriting_ = false;
    known_ = Text();
    SetCaret(known_.size() - std::min(behind, known_.size()));
  }

  QWidget& field_;
  DoorKind kind_;
  bool isWriting_ = false;
  std::u16string known_;     ///< the text after the last change
  std::u16string declined_;  ///< the text that is to stay as it is
};

class LineDoor final : public FieldDoor {
 public:
  LineDoor(QLineEdit& line, DoorKind kind) : FieldDoor(line, kind), line_(line) {
    connect(&line, &QLineEdit::textChanged, this, [this] { OnChanged(); });
    OnChanged();
  }

 private:
  std::u16string Text() const override { return line_.text().toStdU16String(); }
  std::size_t Caret() const override { return static_cast<std::size_t>(line_.cursorPosition()); }
  void SetCaret(std::size_t caret) override { line_.setCursorPosition(static_cast<int>(caret)); }
  bool IsUndone() const override { return line_.isRedoAvailable(); }
  void Change(const std::u16string& text, Step step) override {
    // The step before is taken back, and done again with what it should have brought.
    if (step == Step::Joined) line_.undo();
    const std::u16string old = Text();
    const TextChange change = ChangeBetween(old, text);
    line_.home(false);
    line_.setSelection(static_cast<int>(change.start), static_cast<int>(change.length));
    line_.insert(ToQt(change.text));
  }

  QLineEdit& line_;
};

class FormulaDoor final : public FieldDoor {
 public:
  explicit FormulaDoor(FormulaView& formula)
      : FieldDoor(formula, DoorKind::Line), formula_(formula) {
    connect(&formula, &QPlainTextEdit::textChanged, this, [this] { OnChanged(); });
    OnChanged();
  }

 private:
  std::u16string Text() const override { return formula_.toPlainText().toStdU16String(); }
  std::size_t Caret() const override {
    return static_cast<std::size_t>(formula_.textCursor().position());
  }
  void SetCaret(std::size_t caret) override {
    QTextCursor cursor = formula_.textCursor();
    cursor.setPosition(static_cast<int>(caret));
    formula_.setTextCursor(cursor);
  }
  bool IsUndone() const override { return formula_.document()->isRedoAvailable(); }
  void Change(const std::u16string& text, Step step) override {
    if (step == Step::Joined) formula_.undo();
    const std::u16string old = Text();
    const TextChange change = ChangeBetween(old, text);
    QTextCursor cursor(formula_.document());
    cursor.beginEditBlock();
    cursor.setPosition(static_cast<int>(change.start));
    cursor.setPosition(static_cast<int>(change.start + change.length), QTextCursor::KeepAnchor);
    cursor.insertText(ToQt(change.text));
    cursor.endEditBlock();
  }

  FormulaView& formula_;
};

}  // namespace

void OpenDoor(QLineEdit& field, DoorKind kind) {
  std::make_unique<LineDoor>(field, kind).release()->setParent(&field);
}

void OpenDoor(FormulaView& field) {
  std::make_unique<FormulaDoor>(field).release()->setParent(&field);
}

bool AsksFirst(const QWidget& parent, const std::function<void()>& goOn) {
  const auto doors = parent.findChildren<QObject*>(QLatin1String(kDoorName));
  return std::any_of(doors.begin(), doors.end(), [&goOn](QObject* door) {
    auto* const of = dynamic_cast<FieldDoor*>(door);
    return of != nullptr && of->Asks(goOn);
  });
}

}  // namespace kav
