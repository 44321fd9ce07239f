// What people type, paste and drop, as the calculator itself would have written it.
#pragma once

#include <string>
#include <string_view>

namespace kav {

/// `text` for a line or for a field of one number. Signs of other keyboards and of the web become
/// those of expressions: × · ÷ − become * * / -, superscripts ^2, √2 sqrt(2), π Pi, characters of
/// full width plain ones; no-break and thin spaces become blanks, invisible characters go. A number
/// whose digits stand in groups of three, between blanks, apostrophes or more commas than one
/// decimal comma could be, loses these; so does a number with a comma between thousands and a
/// point. One line break at the end is dropped. Commas between the arguments of a call stay, as do
/// all those that can be read in two ways (see QuestionOfLine). A text that is spelled so already
/// is returned as it is.
std::u16string OwnSpelling(std::u16string_view text);

/// The same for a `piece` that is put between the characters `before` and `after` of a line (0: an
/// end of it): words of the piece do not grow together with words beside it. All its commas stay,
/// since only the whole line tells which of them are between arguments.
std::u16string OwnPiece(char16_t before, std::u16string_view piece, char16_t after);

/// The same for a text of many cells. Line breaks and TABs stay, as do plain blanks between digits
/// if nothing else separates the cells, and all commas.
std::u16string OwnCells(std::u16string text);

}  // namespace kav
