#include "line/typed_operator.h"

#include <array>
#include <string>
#include <string_view>

#include "line/keypad.h"

namespace kav {
namespace {

/// The key that writes an operator.
struct OperatorKey {
  char16_t typed;
  Key key;
  Face face;
  bool isInEveryBase;
};
constexpr std::array kOperatorKeys{
    OperatorKey{u'+', Key::Add, Face::Plain, true},
    OperatorKey{u'-', Key::Subtract, Face::Plain, true},
    OperatorKey{u'*', Key::Multiply, Face::Plain, true},
    OperatorKey{u'/', Key::Divide, Face::Plain, true},
    OperatorKey{u'^', Key::Power, Face::Plain, false},
    OperatorKey{u'%', Key::Percent, Face::Plain, false},
    OperatorKey{u'!', Key::Pi, Face::Shifted, false},
};

bool IsWhollySelected(const ExpressionLine& line) {
  const auto [start, end] = line.Selected();
  return start != end && (start == 0 || end == 0) && start + end == line.Text().size();
}

}  // namespace

bool TypeOperator(char16_t typed, BaseMode base, ExpressionLine& line) {
  if (!IsWhollySelected(line)) return false;
  if (typed == u'<' || typed == u'>') {
    // Half of a shift, whose key writes both.
    line.SelectAll();
    line.WrapSelection(u"(", std::u16string{u')', typed}, 0);
    return true;
  }
  for (const OperatorKey& row : kOperatorKeys) {
    if (row.typed != typed || (!row.isInEveryBase && base != BaseMode::Decimal)) continue;
    // A line that was selected from its end is the left operand, too.
    line.SelectAll();
    ApplyFace(FaceOf(row.key, row.face), line);
    return true;
  }
  return false;
}

}  // namespace kav
