// The line that keys and typing edit: a text and the selected part of it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kav {

/// Two positions between the characters of a line, from 0 to its length; equal: a bare caret.
/// `start` after `end` is a selection made from right to left.
struct Selection {
  std::size_t start = 0;
  std::size_t end = 0;

  bool IsEmpty() const { return start == end; }
  bool operator==(const Selection&) const = default;
};

/// A text and its selection, both counted in UTF-16 units. A position beyond the text means its
/// end; one inside a surrogate pair moves behind the pair, so that no edit leaves half a character.
class ExpressionLine {
 public:
  const std::u16string& Text() const { return text_; }
  Selection Selected() const { return selection_; }

  void Set(std::u16string text, Selection selection);
  void Select(Selection selection);
  void SelectAll();
  void Clear();

  /// Replaces the selection by `text`; the caret ends behind it.
  void InsertText(std::u16string_view text);

  /// Puts `prefix` before the selection and `suffix` behind it; the other way round if the
  /// selection was made from right to left. The suffix is written `shift` + 1 characters behind the
  /// old end of the selection. Without a selection the caret ends between the two, else behind the
  /// suffix.
  void WrapSelection(std::u16string_view prefix, std::u16string_view suffix, std::size_t shift);

  /// Deletes the selection, or without one the character before (after) the caret.
  void DeleteBackward();
  void DeleteForward();

 private:
  std::size_t Clamped(std::size_t position) const;
  void Erase(std::size_t start, std::size_t end);

  std::u16string text_;
  Selection selection_;
};

/// An edit of a text: `length` characters from `start` on become `text`.
struct TextChange {
  std::size_t start;
  std::size_t length;
  std::u16string_view text;
};

/// The smallest change that turns `old` into `now`. Its text is a view of `now`.
TextChange ChangeBetween(std::u16string_view old, std::u16string_view now);

/// The most characters of a stored text that a field shows. A field with many more is slow.
inline constexpr std::size_t kLongestShownText = 1000;

/// `text` as a field shows it: on one line and, if it is longer than kLongestShownText, cut, with
/// an ellipsis at its end. A formula that was cut is still too long to be saved.
std::u16string ShownText(std::u16string_view text);

/// Whether `position` lies between the two halves of one character of `text`.
bool CutsCharacter(std::u16string_view text, std::size_t position);

}  // namespace kav
