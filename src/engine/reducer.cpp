#include "engine/reducer.h"

#include <array>

namespace kav {
namespace {

constexpr int kNone = -1;

/// The sweeps that a symbol takes part in, one bit each. A range without any of them is skipped.
using Sweeps = std::uint8_t;
constexpr Sweeps kBareFunctions = 1U << 0U;
constexpr Sweeps kComplements = 1U << 1U;
constexpr Sweeps kSigns = 1U << 2U;
constexpr Sweeps kFactorials = 1U << 3U;
constexpr Sweeps kSelections = 1U << 4U;
constexpr Sweeps kPowers = 1U << 5U;
constexpr Sweeps kProducts = 1U << 6U;
constexpr Sweeps kSums = 1U << 7U;

/// What an operator's symbol stands for in a family of bases.
struct SymbolRow {
  char symbol;
  Operation operation;
  Sweeps sweeps;
};
constexpr SymbolRow kDecimalSymbols[] = {
    {'+', Operation::Add, kSigns | kSums},
    {'-', Operation::Subtract, kSigns | kSums},
    {'*', Operation::Multiply, kProducts},
    {'/', Operation::Divide, kProducts},
    {'%', Operation::Remainder, kProducts},
    {'<', Operation::ShiftLeft, kProducts},
    {'>', Operation::ShiftRight, kProducts},
    {'^', Operation::Power, kPowers},
    {'p', Operation::Permutation, kSelections},
    {'c', Operation::Combination, kSelections},
    {'!', Operation::Factorial, kFactorials},
    {'F', Operation::Finish, kBareFunctions},  // the function's code tells its operation
};
constexpr SymbolRow kBaseSymbols[] = {
    {'+', Operation::Add, kSigns | kSums},  {'-', Operation::Subtract, kSigns | kSums},
    {'a', Operation::And, kSums},           {'o', Operation::Or, kSums},
    {'x', Operation::Xor, kSums},           {'y', Operation::Xnor, kSums},
    {'*', Operation::Multiply, kProducts},  {'/', Operation::Divide, kProducts},
    {'<', Operation::ShiftLeft, kProducts}, {'>', Operation::ShiftRight, kProducts},
    {'n', Operation::Not, kComplements},
};

/// The rows of a family of bases, by symbol.
struct SymbolTable {
  std::array<Operation, 128> operations{};
  std::array<Sweeps, 128> sweeps{};

  template <std::size_t kRows>
  explicit constexpr SymbolTable(const SymbolRow (&rows)[kRows]) {
    for (const SymbolRow& row : rows) {
      operations[SymbolIndex(row.symbol)] = row.operation;
      sweeps[SymbolIndex(row.symbol)] = row.sweeps;
    }
  }
};
constexpr SymbolTable kDecimal(kDecimalSymbols);
constexpr SymbolTable kInteger(kBaseSymbols);

/// Tokens from `first` to `last`, both included; none if `last` is before `first`.
struct Range {
  int first;
  int last;
};

class Reduction {
 public:
  Reduction(TokenArray& tokens, const SymbolTable& symbols, Signs signs, StepList& steps)
      : tokens_(tokens), symbols_(symbols), signs_(signs), steps_(steps) {}

  void ReduceAll() {
    for (int i = 0; i < tokens_.Count(); ++i) {
      if (tokens_[i].symbol == ')' && !ReduceGroup(i)) return;
    }
    if (ReduceRange({0, tokens_.Count() - 1})) Finish();
  }

 private:
  // Every stage below answers whether reduction goes on; it ends at the first step that fails.

  bool ReduceGroup(int close) {
    int open = close;
    while (open >= 0 && tokens_[open].symbol != '(') --open;
    // As many are opened as closed, but )+( closes before it opens.
    if (open < 0) return Fail(Operation::FailExpression, close);
    const Range inside{open + 1, close - 1};
    if (!ReduceRange(inside)) return false;
    const bool isArgument = open > 0 && tokens_[open - 1].symbol == 'F';
    if (isArgument && !ApplyFunction(open - 1, inside)) return false;
    tokens_[open].symbol = 0;
    tokens_[close].symbol = 0;
    return true;
  }

  bool ReduceRange(Range range) {
    const unsigned sweeps = SweepsIn(range);
    if (sweeps == 0) return true;
    return ((sweeps & kBareFunctions) == 0 || SweepBareFunctions(range)) &&
           ((sweeps & kComplements) == 0 || SweepComplements(range)) &&
           ReduceTightOperators(range, sweeps) &&
           ((sweeps & kProducts) == 0 || SweepBinary(range, kProducts)) &&
           ((sweeps & kSums) == 0 || SweepBinary(range, kSums));
  }

  /// The levels that bind more tightly than a function whose argument has no parentheses.
  bool ReduceTightOperators(Range range, unsigned sweeps) {
    return ((sweeps & kSigns) == 0 || SweepSigns(range)) &&
           ((sweeps & kFactorials) == 0 || SweepFactorials(range)) &&
           ((sweeps & kSelections) == 0 || SweepBinary(range, kSelections)) &&
           ((sweeps & kPowers) == 0 || SweepPowers(range));
  }

  /// Applies the function at `function` to the value of `range`, which follows it.
  bool ApplyFunction(int function, Range range) {
    if (!ReduceTightOperators(range, SweepsIn(range))) return false;
    const int argument = NextOperand(range.first, range.last);
    if (argument == kNone) return Fail(Operation::FailExpression, function);
    Write(OperationOf(tokens_[function].functionCode), function, argument);
    tokens_[function] = {};
    return true;
  }

  /// From right to left, so that the innermost of sin cos 0 is applied first.
  bool SweepBareFunctions(Range range) {
    for (int i = range.last; i >= range.first; --i) {
      if (tokens_[i].symbol == 'F' && !ApplyFunction(i, {i + 1, range.last})) return false;
    }
    return true;
  }

  bool SweepComplements(Range range) {
    for (int i = range.first; i <= range.last; ++i) {
      if (tokens_[i].symbol == 'n' && !ApplyPrefix(Operation::Not, i, range)) return false;
    }
    return true;
  }

  bool SweepSigns(Range range) {
    bool isBehindMinus = false;
    bool isBehindPlus = false;
    for (int i = range.first; i <= range.last; ++i) {
      const char symbol = tokens_[i].symbol;
      if (symbol != '-' && symbol != '+') continue;
      bool& isBehindBinary = symbol == '-' ? isBehindMinus : isBehindPlus;
      if (isBehindBinary && (signs_ == Signs::BeforeBinaryOne || IsSpareSign(i))) continue;
      if (IsBinarySign(i, range)) {
        isBehindBinary = true;
      } else if (!ApplySign(i, range)) {
        return false;
      }
    }
    return true;
  }

  bool ApplySign(int at, Range range) {
    if (tokens_[at].symbol == '-') return ApplyPrefix(Operation::Negate, at, range);
    tokens_[at].symbol = 0;
    return true;
  }

  bool SweepFactorials(Range range) {
    for (int i = range.first; i <= range.last; ++i) {
      if (tokens_[i].symbol != '!') continue;
      const int operand = PreviousOperand(i - 1, range.first);
      if (operand == kNone) return Fail(Operation::FailNeedsArgument, i);
      Write(Operation::Factorial, i, operand);
      tokens_[i] = {};  // Not the kind of an operator: a sign behind it is binary.
    }
    return true;
  }

  bool SweepPowers(Range range) {
    const int before = steps_.Count();
    if (!SweepBinary(range, kPowers)) return false;
    if (steps_.Count() > before) steps_[steps_.Count() - 1].operation = Operation::LastPower;
    return true;
  }

  /// One sweep over the operators of a level, which have the same precedence.
  bool SweepBinary(Range range, Sweeps level) {
    for (int i = range.first; i <= range.last; ++i) {
      const CalcToken& token = tokens_[i];
      if (token.isNumber != 0 || (SweepsOf(token.symbol) & level) == 0) continue;
      if (!ApplyBinary(i, range)) return false;
    }
    return true;
  }

  bool ApplyBinary(int at, Range range) {
    const int left = PreviousOperand(at - 1, range.first);
    const int right = NextOperand(at + 1, range.last);
    if (left == kNone || right == kNone) return Fail(Operation::FailExpression, at);
    Write(symbols_.operations[SymbolIndex(tokens_[at].symbol)], at, left, right);
    tokens_[at].symbol = 0;
    tokens_[right].isNumber = 0;
    tokens_[right].symbol = 0;  // A used-up variable must not look like an operator.
    return true;
  }

  bool ApplyPrefix(Operation operation, int at, Range range) {
    const int operand = NextOperand(at + 1, range.last);
    if (operand == kNone) return Fail(Operation::FailExpression, at);
    Write(operation, at, operand);
    tokens_[at].symbol = 0;
    return true;
  }

  /// Whether the nearest live token before a sign makes it a binary operator.
  bool IsBinarySign(int sign, Range range) const {
    for (int i = sign - 1; i >= range.first; --i) {
      if (tokens_[i].isNumber != 0 || tokens_[i].symbol == '!') return true;
      if (tokens_[i].symbol != 0) return false;
    }
    return false;
  }

  /// Whether a sign to the right of a binary one is none: it does not stand behind an operator, or
  /// values stand side by side, so that the text has no meaning.
  bool IsSpareSign(int sign) const {
    return tokens_[sign - 1].kind != TokenKind::Operator || HasValuesSideBySide();
  }

  /// Whether two values stand side by side anywhere. A function is one that is still to come.
  bool HasValuesSideBySide() const {
    bool isBehindValue = false;
    for (int i = 0; i < tokens_.Count(); ++i) {
      const CalcToken& token = tokens_[i];
      const bool isNumber = token.isNumber != 0;
      if (!isNumber && token.symbol == 0) continue;
      if (isBehindValue && (isNumber || token.symbol == 'F')) return true;
      isBehindValue = isNumber || token.symbol == ')';
    }
    return false;
  }

  int PreviousOperand(int at, int first) const {
    while (at >= first && tokens_[at].isNumber == 0) --at;
    return at >= first ? at : kNone;
  }
  int NextOperand(int at, int last) const {
    while (at <= last && tokens_[at].isNumber == 0) ++at;
    return at <= last ? at : kNone;
  }

  Sweeps SweepsOf(char symbol) const { return symbols_.sweeps[SymbolIndex(symbol)]; }
  unsigned SweepsIn(Range range) const {
    unsigned sweeps = 0;
    for (int i = range.first; i <= range.last; ++i) {
      if (tokens_[i].isNumber == 0) sweeps |= SweepsOf(tokens_[i].symbol);
    }
    return sweeps;
  }

  /// The answer is the only value left.
  void Finish() {
    const int last = tokens_.Count() - 1;
    const int answer = NextOperand(0, last);
    const int spare = answer == kNone ? kNone : NextOperand(answer + 1, last);
    if (answer == kNone || spare != kNone) {
      Fail(Operation::FailExpression, spare == kNone ? tokens_.Count() : spare);
      return;
    }
    // An answer out of range is the doing of the last operation.
    Write(Operation::Finish, steps_.Count() == 0 ? answer : steps_.Last().token, answer);
  }

  /// `token` is the one at fault.
  bool Fail(Operation failure, int token) {
    Write(failure, token, 0);
    return false;
  }
  void Write(Operation operation, int token, int target) {
    Write(operation, token, target, target);
  }
  void Write(Operation operation, int token, int target, int right) {
    steps_.Append({operation, static_cast<std::uint8_t>(target), static_cast<std::uint8_t>(right),
                   static_cast<std::uint8_t>(token)});
  }

  TokenArray& tokens_;
  const SymbolTable& symbols_;
  Signs signs_;
  StepList& steps_;
};

}  // namespace

StepList Reduce(TokenArray& tokens, BaseMode base, Signs signs) {
  StepList steps;
  Reduction(tokens, base == BaseMode::Decimal ? kDecimal : kInteger, signs, steps).ReduceAll();
  return steps;
}

StepList Reduce(TokenArray& tokens, BaseMode base) {
  const TokenArray text = tokens;
  const StepList steps = Reduce(tokens, base, Signs::BeforeBinaryOne);
  if (!LacksOperand(steps)) return steps;
  tokens = text;
  return ReduceAgain(tokens, base, steps);
}

StepList ReduceAgain(TokenArray& tokens, BaseMode base, const StepList& steps) {
  const StepList withAllSigns = Reduce(tokens, base, Signs::All);
  return LacksOperand(withAllSigns) ? steps : withAllSigns;
}

}  // namespace kav
