// One line beside a field that asks about what stands in it.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

class QLabel;
class QPushButton;

namespace kav {

/// An answer: what its button shows, and what is done when it is chosen.
struct Offer {
  std::u16string text;
  std::function<void()> take;
};

/// A question and a button for each answer, in one line over what lies below the field or, without
/// room there, above it. Nothing is moved for it. A tap answers, and so do the numbers 1, 2...,
/// arrows and Enter once the strip has the keyboard, to which Down leads from the field. Esc, there
/// or here, and the cross give up. A question is over as soon as the text of the field changes or
/// the field is hidden.
class OfferStrip final : public QWidget {
 public:
  /// Lies over `screen`, a screen or a dialog, and is hidden until something is offered.
  explicit OfferStrip(QWidget* screen);

  /// Asks about `field`, a part of the screen, in place of what was asked before. An answer or
  /// `giveUp` is called once the strip is gone and the field has the keyboard again, if the strip
  /// had it.
  void Offers(const QWidget& field, std::u16string_view question, std::vector<Offer> offers,
              std::function<void()> giveUp = {});
  /// Has the strip stand below `widget`, a part of the screen, rather than below the field that it
  /// asks about now.
  void StandBelow(const QWidget& widget);
  /// Takes the question back; nothing is called.
  void Drop();
  /// Gives the keyboard to the first answer.
  void Enter();

  /// The field that is asked about; null while nothing is offered.
  const QWidget* Field() const { return field_; }
  /// The question as it was asked.
  const QString& Question() const { return question_; }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

  bool PressInField(const QKeyEvent& key);
  bool PressOnButton(const QKeyEvent& key);
  bool TakeByNumber(int index);
  void Take(std::size_t index);
  void GiveUp();
  void AddAnswer(std::size_t index);
  void Go(int step);
  void LayOut();
  void LayOutParts(int pixels, int room, int height);
  int NeededWidth(int pixels) const;
  QRect PlaceFor(QSize size) const;
  QRect WithRests(const QRect& place) const;

  QLabel* label_;
  QPushButton* close_;
  QPointer<QWidget> field_;
  QPointer<const QWidget> above_;  ///< null: the field
  QString question_;
  std::vector<Offer> offers_;
  std::vector<QPushButton*> answers_;
  std::function<void()> giveUp_;
};

/// The strip of the screen or dialog that `field` is on, made when it is first asked for.
OfferStrip& OfferStripOf(const QWidget& field);

}  // namespace kav
