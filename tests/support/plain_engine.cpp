#include "support/plain_engine.h"

#include <cmath>
#include <utility>

#include "support/plain_functions.h"

namespace kav::test {
namespace {

/// Reduces tokens whose order is right.
class PlainReduction {
 public:
  PlainReduction(PlainTokens tokens, CalcModes modes, PlainSigns signs)
      : text_(tokens), t_(std::move(tokens)), modes_(modes), signs_(signs) {}

  /// Whether every operator finds its operands and one value is left, whatever the values are.
  bool Fits() {
    isDry_ = true;
    for (PlainToken& token : t_) token.value = 1;
    return Run().message.empty();
  }

  PlainAnswer Run() {
    ReduceGroups();
    int live = 0;
    double value = 0;
    for (const PlainToken& token : t_) {
      if (token.symbol != 'V') continue;
      ++live;
      value = token.value;
    }
    if (live != 1) Fail("Expression error.");
    HoldToRange(value);
    return {message_.empty() ? value : 0, message_};
  }

 private:
  using Index = int;
  void Fail(const std::string& message) {
    if (message_.empty()) message_ = message;
  }
  void HoldToRange(double value) {
    if (!std::isfinite(value)) Fail("Out of range(overflow or underflow)");
  }
  PlainToken& At(Index i) { return t_[static_cast<std::size_t>(i)]; }
  bool Failed() const { return !message_.empty(); }

  /// The nearest value before or behind `i`, not beyond `end`; -1 and a failure if there is none.
  Index Seek(Index i, Index step, Index end, const std::string& message = "Expression error.") {
    for (Index k = i + step; step > 0 ? k <= end : k >= end; k += step) {
      if (At(k).symbol == 'V') return k;
    }
    Fail(message);
    return -1;
  }

  void ReduceGroups() {
    for (Index close = 0; close < static_cast<Index>(t_.size()) && !Failed(); ++close) {
      if (At(close).symbol != ')') continue;
      Index open = close;
      while (open >= 0 && At(open).symbol != '(') --open;
      if (open < 0) return Fail("Expression error.");
      ReduceRange(open + 1, close - 1);
      if (open > 0 && At(open - 1).symbol == 'F') FunctionStep(open - 1, close - 1);
      At(open).symbol = At(close).symbol = 0;
    }
    ReduceRange(0, static_cast<Index>(t_.size()) - 1);
  }

  void ReduceRange(Index from, Index to) {
    if (modes_.baseMode != BaseMode::Decimal) return ReduceRangeInBase(from, to);
    for (Index i = to; i >= from && !Failed(); --i) {
      const bool isBare = i == to || At(i + 1).symbol != '(';
      if (At(i).symbol == 'F' && isBare) FunctionStep(i, to);
    }
    ReduceHighest(from, to);
    Sweep(from, to, "*/%<>");
    Sweep(from, to, "+-");
  }

  void ReduceRangeInBase(Index from, Index to) {
    for (Index i = from; i <= to && !Failed(); ++i) {
      if (At(i).symbol != 'n') continue;
      const Index operand = Seek(i, 1, to);
      if (Failed()) return;
      if (!isDry_) At(operand).value = -1.0 - PlainInt32(At(operand).value);
      At(i).symbol = 0;
    }
    Signs(from, to, '-');
    Signs(from, to, '+');
    Sweep(from, to, "*/<>");
    Sweep(from, to, "+-aoxy");
  }

  /// Signs, factorials, permutations and combinations, powers.
  void ReduceHighest(Index from, Index to) {
    Signs(from, to, '-');
    Signs(from, to, '+');
    Factorials(from, to);
    lastPower_ = {1, 1};
    Sweep(from, to, "pc");
    Sweep(from, to, "^");
    HoldToRange(lastPower_.first);
    HoldToRange(lastPower_.second);
  }

  void FunctionStep(Index function, Index to) {
    ReduceHighest(function + 1, to);
    for (Index i = function; i <= to && !Failed(); ++i) {
      if (At(i).symbol != 'F') continue;
      const Index operand = Seek(i, 1, to);
      if (Failed()) return;
      double& value = At(operand).value;
      HoldToRange(value);
      if (Failed()) return;
      const std::string& name = At(i).name;
      if (!PlainIsInDomain(name, value, modes_.angleUnit)) return FailLimit(name);
      if (!isDry_) value = PlainApply(name, value, modes_.angleUnit);
      At(i).symbol = 0;
    }
  }

  void Signs(Index from, Index to, char sign) {
    bool isBehindBinary = false;
    for (Index i = from; i <= to && !Failed(); ++i) {
      if (At(i).symbol != sign) continue;
      Index before = i - 1;
      while (before >= from && At(before).symbol == 0) --before;
      const bool isBinary =
          before >= from && (At(before).symbol == 'V' || At(before).symbol == '!');
      isBehindBinary = isBehindBinary || isBinary;
      if (isBehindBinary && (signs_ == PlainSigns::BeforeABinaryOne || HasSideBySide())) return;
      const bool isBehindOperand =
          i > 0 && std::string_view("V)!").find(text_[static_cast<std::size_t>(i - 1)].symbol) !=
                       std::string_view::npos;
      if (isBinary || (isBehindBinary && isBehindOperand)) continue;
      if (sign == '-') {
        const Index operand = Seek(i, 1, to);
        if (!Failed() && !isDry_) At(operand).value *= -1.0;
      }
      At(i).symbol = 0;
    }
  }

  bool HasSideBySide() const {
    std::string live;
    for (const PlainToken& token : t_) {
      if (token.symbol != 0) live += token.symbol;
    }
    return live.find("VV") != live.npos || live.find("VF") != live.npos ||
           live.find(")F") != live.npos;
  }

  void Factorials(Index from, Index to) {
    for (Index i = from; i <= to && !Failed(); ++i) {
      if (At(i).symbol != '!') continue;
      const Index operand = Seek(i, -1, from, "(!) needs an argument.");
      if (Failed()) return;
      double& value = At(operand).value;
      if (!(value < 150)) return Fail("Out of range(overflow or underflow)");
      value = PlainFactorial(value);
      if (value == -1) return FailNotInteger("!");
      At(i).symbol = 0;
    }
  }

  void Sweep(Index from, Index to, std::string_view operators) {
    for (Index i = from; i <= to && !Failed(); ++i) {
      const char symbol = At(i).symbol;
      if (symbol == 0 || operators.find(symbol) == std::string_view::npos) continue;
      const Index left = Seek(i, -1, from);
      if (Failed()) return;
      const Index right = Seek(i, 1, to);
      if (Failed()) return;
      At(left).value = Calculate(symbol, At(left).value, At(right).value);
      At(right).symbol = 0;
      At(i).symbol = 0;
    }
  }

  double Calculate(char symbol, double a, double b) {
    if (isDry_) return 1;
    if (symbol == 'p' || symbol == 'c') return Arrange(symbol, a, b);
    if (symbol == '^') {
      lastPower_ = {a, b};
      return std::pow(a, b);
    }
    HoldToRange(a);
    HoldToRange(b);
    if (symbol == '/' && b == 0) FailLimit("Division");
    if (symbol == '%' && b == 0) FailLimit("Remainder");
    if (symbol == '>' && b == 0) FailLimit(">>");
    if (Failed()) return 0;
    switch (symbol) {
      case '*':
        return a * b;
      case '/':
        return a / b;
      case '%':
        return std::fmod(a, b);
      case '<':
        return PlainShiftLeft(a, b);
      case '>':
        return PlainShiftRight(a, b);
      case '+':
        return a + b;
      case '-':
        return a - b;
      case 'a':
        return PlainInt32(a) & PlainInt32(b);
      case 'o':
        return PlainInt32(a) | PlainInt32(b);
      case 'x':
        return PlainInt32(a) ^ PlainInt32(b);
      default:
        return ~(PlainInt32(a) ^ PlainInt32(b));
    }
  }

  double Arrange(char symbol, double n, double r) {
    const bool isPermutation = symbol == 'p';
    if (!(r <= n && n >= 0 && r >= 0)) FailLimit(isPermutation ? "Permutation" : "Combination");
    if (std::trunc(n) != n || std::trunc(r) != r) {
      FailNotInteger(isPermutation ? "Permu.." : "Combi..");
    }
    if (Failed()) return 0;
    const double rest = PlainFactorial(n - r);
    return PlainFactorial(n) / (isPermutation ? rest : rest * PlainFactorial(r));
  }

  void FailLimit(const std::string& name) { Fail(name + " exceeded calculation limit."); }
  void FailNotInteger(const std::string& name) { Fail(name + " is not supported non-integer."); }

  const PlainTokens text_;  ///< before anything is reduced
  PlainTokens t_;
  CalcModes modes_;
  bool isDry_ = false;
  PlainSigns signs_;
  std::string message_;
  std::pair<double, double> lastPower_;
};

}  // namespace

PlainAnswer PlainEvaluate(std::string_view text, CalcModes modes, const PlainVariables* variables,
                          PlainSigns signs) {
  const PlainText read = ReadPlainTokens(text, modes.baseMode, variables);
  if (!read.message.empty()) return {0, read.message};
  const std::string message = PlainOrderMessage(read.tokens, modes.baseMode);
  if (!message.empty()) return {0, message};
  const auto reduction = [&](PlainSigns some) { return PlainReduction(read.tokens, modes, some); };
  const bool needsAll = signs == PlainSigns::All &&
                        !reduction(PlainSigns::BeforeABinaryOne).Fits() &&
                        reduction(PlainSigns::All).Fits();
  return reduction(needsAll ? PlainSigns::All : PlainSigns::BeforeABinaryOne).Run();
}

}  // namespace kav::test
