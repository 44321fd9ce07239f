#include "screens/widgets/past_panel.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "line/past_lines_texts.h"
#include "screens/widgets/look.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

/// A field for the text that is searched for needs no more.
constexpr int kLongestSearch = 1000;

/// Of the height of letters: the room around the parts, and between them.
constexpr double kRoomAround = 0.6;
constexpr double kRoomBetween = 0.4;

bool IsEnter(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

/// Whether the key marks another row, and is of no use to the field.
bool IsOfList(const QKeyEvent& key) {
  constexpr std::array kKeys{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
  return std::find(kKeys.begin(), kKeys.end(), key.key()) != kKeys.end();
}

/// Whether the key writes into the field, or deletes in it.
bool IsOfField(const QKeyEvent& key) {
  if ((key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) {
    return false;
  }
  return key.key() == Qt::Key_Backspace || (!key.text().isEmpty() && key.text().front().isPrint());
}

}  // namespace

PastPanel::PastPanel(QWidget* screen, PastLinesModel past, PastPanelHooks hooks)
    : QWidget(screen),
      past_(std::move(past)),
      hooks_(std::move(hooks)),
      rows_(new PastRows(past_, this)),
      search_(new QLineEdit),
      list_(new PastRowsView(*rows_, [this](int row, PastPart part) { Take(row, part); })),
      keep_(new QCheckBox(ToQt(kKeepHistory))) {
  setAccessibleName(ToQt(kHistoryName));
  setAutoFillBackground(true);
  search_->setStyle(ScreenStyle());
  search_->setMaxLength(kLongestSearch);
  search_->setPlaceholderText(ToQt(kSearchHistory));
  search_->setAccessibleName(ToQt(kSearchHistory));
  search_->installEventFilter(this);
  list_->installEventFilter(this);
  keep_->setStyle(ScreenStyle());
  keep_->setToolTip(ToQt(kKeepHistoryTip));
  keep_->setAccessibleDescription(ToQt(kKeepHistoryTip));
  AddParts();
  connect(search_, &QLineEdit::textChanged, this, &PastPanel::Search);
  connect(keep_, &QCheckBox::toggled, this, &PastPanel::Keep);
  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this, &PastPanel::Refresh);
}

QPushButton* PastPanel::AddButton(std::u16string_view caption, std::u16string_view tip,
                                  const std::function<void()>& press) {
  auto* button = new QPushButton(ToQt(caption));
  button->setStyle(ScreenStyle());
  button->setToolTip(ToQt(tip));
  button->setAccessibleDescription(ToQt(tip));
  // A tap leaves the keyboard where it is.
  button->setFocusPolicy(Qt::TabFocus);
  connect(button, &QPushButton::clicked, this, press);
  return button;
}

void PastPanel::AddParts() {
  close_ = AddButton(kCloseHistory, kCloseHistoryTip, [this] { hooks_.close(); });
  close_->setAccessibleName(ToQt(kCloseHistoryName));
  const auto take = [this](PastPart part) { return [this, part] { Take(list_->Row(), part); }; };
  line_ = AddButton(kInsertLine, kInsertLineTip, take(PastPart::Line));
  answer_ = AddButton(kInsertAnswer, kInsertAnswerTip, take(PastPart::Answer));
  delete_ = AddButton(kDeleteLine, kDeleteLineTip, [this] { Delete(); });
  undo_ = AddButton(kUndoDelete, kUndoDeleteTip, [this] { Undo(); });
  clear_ = AddButton(kClearHistory, kClearHistoryTip, [this] { Clear(); });
  auto* top = new QHBoxLayout;
  top->addWidget(search_, 1);
  top->addWidget(close_);
  auto* parts = new QGridLayout;
  constexpr int kColumns = 3;
  int place = 0;
  for (QWidget* part : std::array<QWidget*, 6>{line_, answer_, delete_, undo_, clear_, keep_}) {
    parts->addWidget(part, place / kColumns, place % kColumns);
    parts->setColumnStretch(place % kColumns, 1);
    ++place;
  }
  auto* all = new QVBoxLayout(this);
  all->addLayout(top);
  all->addWidget(list_, 1);
  all->addLayout(parts);
}

void PastPanel::LayOut(const QRect& place, int pixels) {
  for (; pixels > 0; --pixels) {
    setFont(ScreenFont(pixels));
    const int around = qRound(pixels * kRoomAround);
    layout()->setContentsMargins(around, around, around, around);
    layout()->setSpacing(qRound(pixels * kRoomBetween));
    list_->SetTextHeight(pixels);
    layout()->activate();
    const QSize least = layout()->minimumSize();
    if (least.width() <= place.width() && least.height() <= place.height()) break;
  }
  setGeometry(place);
}

void PastPanel::Load() {
  const int row = list_->Row();
  const auto marked = row >= 0 ? past_.At(static_cast<std::size_t>(row)).id : 0;
  rows_->Change([this] { past_.Load(); });
  int now = 0;
  // The newest is marked until the user marks another one.
  for (std::size_t i = 0; row > 0 && i < past_.Count(); ++i) {
    if (past_.At(i).id == marked) now = static_cast<int>(i);
  }
  list_->SetRow(now);
  Refresh();
}

void PastPanel::Enter() {
  search_->setFocus(Qt::ShortcutFocusReason);
  search_->selectAll();
}

void PastPanel::Refresh() {
  const int row = list_->Row();
  const bool isMarked = row >= 0;
  line_->setEnabled(isMarked);
  answer_->setEnabled(isMarked && HasNumber(past_.At(static_cast<std::size_t>(row))));
  delete_->setEnabled(isMarked);
  undo_->setEnabled(past_.CanUndo());
  clear_->setEnabled(past_.CanClear());
  const QSignalBlocker quiet(keep_);
  keep_->setChecked(past_.IsKept());
}

void PastPanel::Search() {
  rows_->Change([this] { past_.Search(search_->text().toStdU16String()); });
  list_->SetRow(0);
  Refresh();
}

void PastPanel::Take(int row, PastPart part) {
  if (row < 0) return;
  const PastLine past = past_.At(static_cast<std::size_t>(row));
  if (part == PastPart::Line || HasNumber(past)) hooks_.take(past, part);
}

void PastPanel::Delete() {
  const int row = list_->Row();
  if (row < 0) return;
  rows_->Change([this, row] { past_.Delete(static_cast<std::size_t>(row)); });
  list_->SetRow(row);
  Refresh();
  hooks_.changed();
}

void PastPanel::Undo() {
  if (!past_.CanUndo()) return;
  std::optional<std::size_t> row;
  rows_->Change([&] { row = past_.Undo(); });
  list_->SetRow(static_cast<int>(row.value_or(0)));
  Refresh();
  hooks_.changed();
}

void PastPanel::Clear() {
  if (!past_.CanClear() || !AskNoOrYes(this, past_.ClearQuestion())) return;
  rows_->Change([this] { past_.Clear(); });
  Refresh();
  hooks_.changed();
}

void PastPanel::Keep() {
  if (keep_->isChecked()) {
    past_.Keep();
  } else if (const auto question = past_.KeepNone(); question && AskNoOrYes(this, *question)) {
    rows_->Change([this] { past_.Clear(); });
  }
  Refresh();
  list_->viewport()->update();
  hooks_.changed();
}

bool PastPanel::PressAnywhere(const QKeyEvent& key) {
  if (key.key() == Qt::Key_Escape) {
    hooks_.leave();
    return true;
  }
  if (!IsEnter(key)) return false;
  const bool isShifted = (key.modifiers() & Qt::ShiftModifier) != 0;
  Take(list_->Row(), isShifted ? PastPart::Answer : PastPart::Line);
  return true;
}

bool PastPanel::PressInField(const QKeyEvent& key) {
  if (!IsOfList(key)) return PressAnywhere(key);
  QKeyEvent moved(QEvent::KeyPress, key.key(), key.modifiers());
  QApplication::sendEvent(list_, &moved);
  return true;
}

bool PastPanel::PressInList(const QKeyEvent& key) {
  if (key.key() == Qt::Key_Delete) {
    Delete();
  } else if (key.matches(QKeySequence::Undo)) {
    Undo();
  } else if (key.key() == Qt::Key_Right) {
    Take(list_->Row(), PastPart::Answer);
  } else if (IsOfField(key)) {
    search_->setFocus();
    QKeyEvent typed(QEvent::KeyPress, key.key(), key.modifiers(), key.text());
    QApplication::sendEvent(search_, &typed);
  } else {
    return PressAnywhere(key);
  }
  return true;
}

bool PastPanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
    list_->viewport()->update();
  }
  if (event->type() == QEvent::KeyPress) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (watched == search_ ? PressInField(key) : PressInList(key)) return true;
  }
  return QWidget::eventFilter(watched, event);
}

void PastPanel::keyPressEvent(QKeyEvent* event) {
  // What a button or the box has no use for. Nothing of it is for the line of the screen.
  auto* button = qobject_cast<QAbstractButton*>(focusWidget());
  if (IsEnter(*event) && button != nullptr) return button->click();
  if (PressAnywhere(*event)) return;
  if (event->key() == Qt::Key_F10) QWidget::keyPressEvent(event);
}

}  // namespace kav
