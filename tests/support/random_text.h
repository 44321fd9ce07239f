// Texts for the engine by the thousand, the same ones every time: expressions whose value is known
// because it was calculated while they were written, texts whose neighbours all suit each other,
// pieces thrown together, and any bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/calc_modes.h"
#include "support/random.h"

namespace kav::test {

struct KnownExpression {
  std::string text;
  double value;
};

/// Writes fully parenthesised decimal expressions, and their values beside them.
class ExpressionWriter {
 public:
  ExpressionWriter(std::uint64_t seed, AngleUnit unit) : random_(seed), unit_(unit) {}

  /// An expression of at most `depth` operations one inside the other; its value is finite, and so
  /// are all on the way to it.
  KnownExpression Write(int depth);

 private:
  KnownExpression Number();
  KnownExpression Function(int depth);
  KnownExpression Operation(int depth);

  Random random_;
  AngleUnit unit_;
};

/// Writes tokens whose neighbours all suit each other, however odd the whole: they get past the
/// check of the order, and so deep into reduction.
class OrderedWriter {
 public:
  OrderedWriter(std::uint64_t seed, BaseMode base) : random_(seed), base_(base) {}

  /// `length` tokens or a few more, with blanks between them; half of the values are one of
  /// `variables`, if any.
  std::string Write(std::size_t length, std::string_view variables = {});

 private:
  bool MayFollow(const std::string& line, char next) const;
  bool HasFollower(char before, char symbol) const;
  char Pick(const std::string& line, bool isOpen);
  std::string Spell(char symbol, std::string_view variables);

  Random random_;
  BaseMode base_;
};

/// Throws pieces of a base together, most of them so that they have a chance of being in order.
class PieceThrower {
 public:
  PieceThrower(std::uint64_t seed, BaseMode base) : random_(seed), base_(base) {}

  /// A text of at most `most` operands; half of the values are one of `variables`, if any.
  std::string Throw(std::size_t most, std::string_view variables = {});

 private:
  bool OneIn(std::size_t count) { return random_.Below(count) == 0; }
  void AppendOperand(std::string& text);
  void AppendPrefix(std::string& text);
  void AppendValue(std::string& text);
  void AppendOperator(std::string& text);

  Random random_;
  BaseMode base_;
  std::string_view variables_;
  int open_ = 0;
};

/// Any bytes, most of them such as the engine knows.
std::string AnyBytes(Random& random, std::size_t most);

}  // namespace kav::test
