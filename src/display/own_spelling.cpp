#include "display/own_spelling.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "common/ascii.h"
#include "common/number_text.h"
#include "display/comma_reading.h"
#include "engine/function_names.h"

namespace kav {
namespace {

constexpr char16_t kRoot = u'√';
constexpr char16_t kBlank = u' ';
constexpr char16_t kApostrophe = u'\'';
constexpr char16_t kNoBreakSpace = u'\u00A0';
constexpr std::u16string_view kRootName = u"sqrt";

/// A character and what is written for it; nothing for an invisible one.
struct Spelling {
  char16_t character;
  std::u16string_view own;
};

constexpr Spelling kSpellings[] = {
    {u'×', u"*"},      {u'·', u"*"},      {u'⋅', u"*"},      {u'∙', u"*"},     {u'✕', u"*"},
    {u'✖', u"*"},      {u'∗', u"*"},      {u'÷', u"/"},      {u'∕', u"/"},     {u'⁄', u"/"},
    {u'−', u"-"},      {u'–', u"-"},      {u'—', u"-"},      {u'‐', u"-"},     {u'‑', u"-"},
    {u'‒', u"-"},      {u'π', u"Pi"},     {u'’', u"'"},      {u'‘', u"'"},     {u'ʼ', u"'"},
    {u'′', u"'"},      {u'\u00AD', u""},  {u'\u200B', u""},  {u'\u200C', u""}, {u'\u200D', u""},
    {u'\u200E', u""},  {u'\u200F', u""},  {u'\u2060', u""},  {u'\uFEFF', u""}, {u'\u00A0', u" "},
    {u'\u202F', u" "}, {u'\u205F', u" "}, {u'\u3000', u" "},
};

constexpr std::u16string_view kSuperscripts = u"⁰¹²³⁴⁵⁶⁷⁸⁹⁺⁻";
constexpr std::u16string_view kRaised = u"0123456789+-";

/// Whether `c` is a space of its own width.
constexpr bool IsWideSpace(char16_t c) {
  return c >= u'\u2000' && c <= u'\u200A';
}

constexpr bool IsOther(char16_t c) {
  return c > u'~' || c < kBlank;
}

bool IsPlain(char16_t c) {
  return !IsOther(c) && c != kApostrophe;
}

/// Whether a blank, TAB or line break of `text` stands between two digits.
bool PartsDigits(std::u16string_view text, char16_t mark) {
  for (std::size_t at = text.find(mark); at != text.npos; at = text.find(mark, at + 1)) {
    if (at > 0 && at + 1 < text.size() && IsDigit(text[at - 1]) && IsDigit(text[at + 1])) {
      return true;
    }
  }
  return false;
}

/// What stands for `c`, which is no superscript; `c` itself, in `own`, if nothing else does.
std::u16string_view SpellingOf(char16_t c, char16_t& own) {
  own = c;
  if (IsWideSpace(c)) own = kBlank;
  if (c >= u'！' && c <= u'～') own = static_cast<char16_t>(c - u'！' + u'!');
  if (own == c && c > u'~') {
    for (const Spelling& row : kSpellings) {
      if (row.character == c) return row.own;
    }
  }
  return {&own, 1};
}

/// Appends a word, apart from a word before it.
void AppendWord(std::u16string_view word, std::u16string& out) {
  if (!out.empty() && IsLetter(out.back())) out += kBlank;
  out += word;
}

/// Appends the power that the superscripts from `at` on are; the place behind them.
std::size_t AppendPower(std::u16string_view text, std::size_t at, std::u16string& out) {
  std::u16string power;
  for (; at < text.size(); ++at) {
    const std::size_t raised = kSuperscripts.find(text[at]);
    if (raised == kSuperscripts.npos) break;
    power += kRaised[raised];
  }
  // A digit behind it is no part of the power.
  const bool isFollowed = at < text.size() && (IsDigit(text[at]) || text[at] == u'.');
  out += isFollowed ? u"^(" + power + u")" : u"^" + power;
  return at;
}

/// `text` in plain characters, except for √.
std::u16string InPlainCharacters(std::u16string_view text) {
  std::u16string out;
  out.reserve(text.size());
  bool afterWord = false;
  for (std::size_t at = 0; at < text.size();) {
    if (kSuperscripts.find(text[at]) != kSuperscripts.npos) {
      at = AppendPower(text, at, out);
      continue;
    }
    char16_t same = 0;
    const std::u16string_view own = SpellingOf(text[at++], same);
    if (own.size() > 1) {
      AppendWord(own, out);
    } else {
      if (afterWord && !own.empty() && IsLetter(own.front())) out += kBlank;
      out += own;
    }
    afterWord = own.size() > 1;
  }
  return out;
}

/// Removes `mark` from numbers whose digits it parts into groups of three.
void RemoveGrouping(std::u16string& text, char16_t mark) {
  if (!PartsDigits(text, mark)) return;
  std::u16string out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    if (!IsDigit(text[at])) {
      out += text[at++];
      continue;
    }
    std::size_t end = at;
    while (end < text.size() &&
           (IsDigit(text[end]) ||
            (text[end] == mark && end + 1 < text.size() && IsDigit(text[end + 1])))) {
      ++end;
    }
    const std::u16string_view run = std::u16string_view(text).substr(at, end - at);
    // Behind a point there are decimals, behind a letter the digits of an exponent or of a name.
    const bool isWhole =
        at == 0 || !(IsLetter(text[at - 1]) || text[at - 1] == u'.' || text[at - 1] == u',');
    const bool isGrouped = isWhole && run.front() != u'0' && IsGroupedBy(mark, run);
    for (const char16_t c : run) {
      if (!isGrouped || c != mark) out += c;
    }
    at = end;
  }
  text = std::move(out);
}

/// The place behind the ")" that closes the "(" at `open`; npos if none does.
std::size_t EndOfGroup(std::u16string_view text, std::size_t open) {
  int depth = 0;
  for (std::size_t at = open; at < text.size(); ++at) {
    if (text[at] == u'(') ++depth;
    if (text[at] == u')' && --depth == 0) return at + 1;
  }
  return text.npos;
}

std::size_t EndOfDigits(std::u16string_view text, std::size_t at) {
  return std::min(text.find_first_not_of(u"0123456789.,", at), text.size());
}

std::size_t EndOfNumber(std::u16string_view text, std::size_t at) {
  const std::size_t end = EndOfDigits(text, at);
  if (end == text.size() || LowerCase(text[end]) != u'e') return end;
  std::size_t digits = end + 1;
  if (digits < text.size() && (text[digits] == u'+' || text[digits] == u'-')) ++digits;
  return digits < text.size() && IsDigit(text[digits]) ? EndOfDigits(text, digits) : end;
}

/// The place behind the number, name, call or group that begins at `at`; `at` if there is none
/// that a root could be taken of by itself.
std::size_t EndOfOperand(std::u16string_view text, std::size_t at) {
  if (at >= text.size()) return at;
  const auto orNone = [at](std::size_t end) { return end == std::u16string_view::npos ? at : end; };
  if (text[at] == u'(') return orNone(EndOfGroup(text, at));
  if (text[at] == u'[') return orNone(std::min(text.find(u']', at), text.npos - 1) + 1);
  if (IsDigit(text[at]) || text[at] == u'.') return EndOfNumber(text, at);
  std::size_t end = at;
  while (end < text.size() && IsLetter(text[end])) ++end;
  const std::u16string_view word = text.substr(at, end - at);
  if (word.empty()) return at;
  // The name of a macro ends at its "(".
  if (word == u"M" && end < text.size() && text[end] == u':') {
    end = std::min(text.find(u'(', end), text.size());
  }
  if (end < text.size() && text[end] == u'(') return orNone(EndOfGroup(text, end));
  const std::string name = Narrow(word);
  const bool isValue = EqualsIgnoringCase(name, kPiWord) || EqualsIgnoringCase(name, kAnswerWord) ||
                       word == u"x" || word == u"y" || word == u"z";
  return isValue ? end : at;
}

/// Writes roots as calls. From the last on, so that a root of a root finds a call behind it.
void WriteRoots(std::u16string& text) {
  // More than a line has room for. Each may look at all that stands behind it: a text of nothing
  // else would take minutes.
  constexpr std::ptrdiff_t kMostRoots = 200;
  if (std::count(text.begin(), text.end(), kRoot) > kMostRoots) return;
  for (std::size_t at = text.rfind(kRoot); at != text.npos; at = text.rfind(kRoot)) {
    std::size_t from = at + 1;
    while (from < text.size() && text[from] == kBlank) ++from;
    const std::size_t end = EndOfOperand(text, from);
    const std::u16string operand = text.substr(from, end - from);
    std::u16string call(kRootName);
    if (operand.empty()) {
      if (from == text.size() || IsLetter(text[from])) call += kBlank;
    } else {
      call += operand.front() == u'(' ? operand : u"(" + operand + u")";
    }
    if (at > 0 && IsLetter(text[at - 1])) call.insert(0, 1, kBlank);
    text.replace(at, std::max(end, from) - at, call);
  }
}

/// Whether something other than blanks stands between the cells of `text`.
bool SeparatesCells(std::u16string_view text) {
  return text.find_first_of(u"\t;") != text.npos;
}

void DropLastBreak(std::u16string& text) {
  if (text.ends_with(u'\n')) text.pop_back();
  if (text.ends_with(u'\r')) text.pop_back();
  if (text.ends_with(u'\u2028') || text.ends_with(u'\u2029')) text.pop_back();
}

}  // namespace

std::u16string OwnSpelling(std::u16string_view text) {
  return WithoutThousands(OwnPiece(0, text, 0));
}

std::u16string OwnPiece(char16_t before, std::u16string_view piece, char16_t after) {
  if (std::all_of(piece.begin(), piece.end(), IsPlain) && !PartsDigits(piece, kBlank)) {
    return std::u16string(piece);
  }
  std::u16string own(piece);
  DropLastBreak(own);
  own = InPlainCharacters(own);
  RemoveGrouping(own, kBlank);
  RemoveGrouping(own, kApostrophe);
  WriteRoots(own);
  if (own.empty() || own == piece) return own;
  // Letters that were typed as such go on with the word that is being typed.
  if (IsLetter(before) && IsLetter(own.front()) && !IsLetter(piece.front()))
    own.insert(0, 1, kBlank);
  if (IsLetter(after) && IsLetter(own.back()) && !IsLetter(piece.back())) own += kBlank;
  return own;
}

std::u16string OwnCells(std::u16string text) {
  // Nearly every text has nothing to change: one look, without a branch a character.
  bool isPlain = true;
  bool hasBlank = false;
  for (const char16_t c : text) {
    isPlain &= c <= u'~' && c != kApostrophe;
    hasBlank |= c == kBlank;
  }
  if (isPlain && !(hasBlank && SeparatesCells(text) && PartsDigits(text, kBlank))) return text;
  if (!isPlain) {
    // Spaces that hold a number together, as against those between cells.
    std::replace(text.begin(), text.end(), u'\u202F', kNoBreakSpace);
    std::replace_if(text.begin(), text.end(), IsWideSpace, kNoBreakSpace);
    std::replace(text.begin(), text.end(), u'’', kApostrophe);
    RemoveGrouping(text, kNoBreakSpace);
    text = InPlainCharacters(text);
    RemoveGrouping(text, kApostrophe);
  }
  if (SeparatesCells(text)) RemoveGrouping(text, kBlank);
  return text;
}

}  // namespace kav
