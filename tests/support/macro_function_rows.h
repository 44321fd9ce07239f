// What the functions of the macro editor's pop-up write, for the tests of its model and of its
// screen.
#pragma once

#include <string_view>

namespace kav::test {

struct MacroFunctionRow {
  std::u16string_view item;
  std::u16string_view bare;      // from "1+|2"
  std::u16string_view selected;  // from "1+[x]2"
};

inline constexpr MacroFunctionRow kMacroFunctionRows[] = {
    {u"ABS(X)", u"1+abs(|)2", u"1+abs(x)|2"},
    {u"ACOS(X)", u"1+acos(|)2", u"1+acos(x)|2"},
    {u"ASIN(X)", u"1+asin(|)2", u"1+asin(x)|2"},
    {u"ATAN(X)", u"1+atan(|)2", u"1+atan(x)|2"},
    {u"COS(X)", u"1+cos(|)2", u"1+cos(x)|2"},
    {u"COSH(X)", u"1+cosh(|)2", u"1+cosh(x)|2"},
    {u"EXP(X)", u"1+exp(|)2", u"1+exp(x)|2"},
    {u"FRAC(X)", u"1+frac(|)2", u"1+frac(x)|2"},
    {u"INT(X)", u"1+int(|)2", u"1+int(x)|2"},
    {u"LN(X)", u"1+ln(|)2", u"1+ln(x)|2"},
    {u"LOG(X)", u"1+log(|)2", u"1+log(x)|2"},
    {u"SIN(X)", u"1+sin(|)2", u"1+sin(x)|2"},
    {u"SINH(X)", u"1+sinh(|)2", u"1+sinh(x)|2"},
    {u"SQRT(X)", u"1+sqrt(|)2", u"1+sqrt(x)|2"},
    {u"TAN(X)", u"1+tan(|)2", u"1+tan(x)|2"},
    {u"TANH(X)", u"1+tanh(|)2", u"1+tanh(x)|2"},
    {u"XthR(X)", u"1+^(1/|)2", u"1+(x)^(1/|)2"},
    {u"%", u"1+%|2", u"1+(x)%|2"},
    {u"X!", u"1+!|2", u"1+(x)!|2"},
    {u"nPr", u"1+P|2", u"1+(x)P|2"},
    {u"nCr", u"1+C|2", u"1+(x)C|2"},
    {u"Pi", u"1+Pi|2", u"1+Pi|2"},
};

}  // namespace kav::test
