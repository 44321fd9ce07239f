// stdin_lines KAVCALC [LINES [ROUNDS]]: how fast kavcalc answers short expressions from standard
// input, beside bc on the same expressions and, if they are installed, mawk and gawk. Beside them
// runs a bound: this program itself, which reads the number at the start of each line and writes it
// with 17 digits. All run in turn, round by round; the figures are medians. Status 1 if kavcalc is
// not twenty times as fast as bc.
//
// stdin_lines --bound: does what the bound does. stdin_lines --write DIALECT LINES: prints the
// expressions.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// How a program spells the functions of one number, in the order of kFunctions.
struct Dialect {
  const char* name;
  const char* before;  ///< what stands before each expression
  const char* functions[6];
};
constexpr Dialect kDialects[] = {
    {"kavcalc", "", {"sin(%)", "cos(%)", "atan(%)", "ln(%)", "exp(%)", "sqrt(%)"}},
    {"bc", "", {"s(%)", "c(%)", "a(%)", "l(%)", "e(%)", "sqrt(%)"}},
    {"awk", "print ", {"sin(%)", "cos(%)", "atan2(%,1)", "log(%)", "exp(%)", "sqrt(%)"}},
};

const Dialect& DialectOf(std::string_view name) {
  return *std::find_if(std::begin(kDialects), std::end(kDialects) - 1,
                       [&](const Dialect& dialect) { return dialect.name == name; });
}

/// Makes sums and products of numbers, functions, powers and groups; the same ones each time.
class Expressions {
 public:
  explicit Expressions(const Dialect& dialect) : dialect_(dialect) {}

  std::string Next() {
    std::string line = dialect_.before + Term();
    for (std::uint64_t terms = 2 + Below(3); terms > 0; --terms) line += "+-*/"[Below(4)] + Term();
    return line + "\n";
  }

 private:
  std::uint64_t Below(std::uint64_t limit) {
    state_ ^= state_ << 13U;
    state_ ^= state_ >> 7U;
    state_ ^= state_ << 17U;
    return state_ % limit;
  }
  std::string Number() {
    std::string number = std::to_string(2 + Below(39));
    if (Below(2) == 0) number += "." + std::to_string(1 + Below(99));
    return number;
  }
  std::string Term() {
    switch (Below(5)) {
      case 0: {
        std::string call = dialect_.functions[Below(6)];
        return call.replace(call.find('%'), 1, Number());
      }
      case 1:
        return Number() + "^" + std::to_string(2 + Below(2));
      case 2:
        return "(" + Number() + "+" + Number() + ")";
      default:
        return Number();
    }
  }

  const Dialect& dialect_;
  std::uint64_t state_ = 88172645463325252U;
};

void WriteExpressions(const Dialect& dialect, long lines, std::FILE* file) {
  Expressions expressions(dialect);
  for (; lines > 0; --lines) std::fputs(expressions.Next().c_str(), file);
}

/// No calculator can be faster: reads blocks of 64 KiB, writes the number that opens each line.
int RunBound() {
  static char in[2 * 65536];
  static char out[65536 + 64];
  std::size_t kept = 0;
  for (ssize_t got; (got = read(STDIN_FILENO, in + kept, 65536)) > 0;) {
    const char* at = in;
    const char* const end = in + kept + got;
    char* to = out;
    while (const auto* lineEnd = static_cast<const char*>(
               std::memchr(at, '\n', static_cast<std::size_t>(end - at)))) {
      double value = 0;
      std::from_chars(at, lineEnd, value);
      to = std::to_chars(to, std::end(out), value, std::chars_format::general, 17).ptr;
      *to++ = '\n';
      at = lineEnd + 1;
      if (to >= out + 65536 - 64) {
        if (write(STDOUT_FILENO, out, static_cast<std::size_t>(to - out)) < 0) return 1;
        to = out;
      }
    }
    if (write(STDOUT_FILENO, out, static_cast<std::size_t>(to - out)) < 0) return 1;
    kept = static_cast<std::size_t>(end - at);
    std::memmove(in, at, kept);
  }
  return 0;
}

struct Contender {
  std::string name;
  std::vector<std::string> command;
  std::string input;
  long lines;
  std::vector<double> seconds = {};
  long peakKibibytes = 0;

  double LinesPerSecond() {
    std::sort(seconds.begin(), seconds.end());
    return static_cast<double>(lines) / seconds[seconds.size() / 2];
  }
};

/// Runs it once, and drops its output; false if it cannot be run.
bool Run(Contender& contender) {
  std::vector<char*> arguments;
  for (std::string& text : contender.command) arguments.push_back(text.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, 0, contender.input.c_str(), O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&files, 1, "/dev/null", O_WRONLY, 0);
  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  if (posix_spawnp(&child, arguments[0], &files, nullptr, arguments.data(), environ) != 0) {
    return false;
  }
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  contender.seconds.push_back(took.count());
  contender.peakKibibytes = std::max(contender.peakKibibytes, usage.ru_maxrss);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::string InputFile(const std::string& folder, const char* dialect, long lines) {
  const std::string path = folder + "/" + dialect;
  std::FILE* file = std::fopen(path.c_str(), "w");
  if (file == nullptr) std::exit(2);
  WriteExpressions(DialectOf(dialect), lines, file);
  std::fclose(file);
  return path;
}

int Compare(const std::string& kavcalc, const std::string& self, long lines, int rounds) {
  std::string folder = "/tmp/stdin_lines-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) return 2;
  const long fewer = std::max(1L, lines / 50);
  const long some = std::max(1L, lines / 10);
  const std::string own = InputFile(folder, "kavcalc", lines);
  const std::string bc = InputFile(folder, "bc", fewer);
  const std::string awk = InputFile(folder, "awk", some);
  // A program of BEGIN { ... } alone reads no input.
  if (std::system(("sed -i '1s/^/BEGIN {/; $s/$/}/' " + awk).c_str()) != 0) return 2;
  std::vector<Contender> contenders{
      {"bound", {self, "--bound"}, own, lines},
      {"kavcalc --raw", {kavcalc, "--angle", "rad", "--raw"}, own, lines},
      {"kavcalc", {kavcalc, "--angle", "rad"}, own, lines},
      {"mawk", {"mawk", "-f", awk}, "/dev/null", some},
      {"gawk", {"gawk", "-f", awk}, "/dev/null", some},
      {"bc -l", {"bc", "-l"}, bc, fewer},
  };
  std::erase_if(contenders, [](Contender& contender) { return !Run(contender); });
  for (int round = 1; round < rounds; ++round) {
    for (Contender& contender : contenders) Run(contender);
  }
  std::printf("%-14s %9s %9s %12s %9s\n", "", "lines", "seconds", "lines/s", "peak KiB");
  std::optional<double> ours;
  std::optional<double> theirs;
  for (Contender& contender : contenders) {
    const double rate = contender.LinesPerSecond();
    std::printf("%-14s %9ld %9.3f %12.0f %9ld\n", contender.name.c_str(), contender.lines,
                static_cast<double>(contender.lines) / rate, rate, contender.peakKibibytes);
    if (contender.name == "kavcalc") ours = rate;
    if (contender.name == "bc -l") theirs = rate;
  }
  if (std::system(("rm -r " + folder).c_str()) != 0) return 2;
  if (!ours || !theirs) return 1;
  std::printf("kavcalc answers %.0f times as many lines a second as bc -l\n", *ours / *theirs);
  return *ours >= 20 * *theirs ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv, argv + argc);
  if (argc < 2) return 2;
  if (arguments[1] == "--bound") return RunBound();
  if (arguments[1] == "--write" && argc == 4) {
    WriteExpressions(DialectOf(arguments[2]), std::atol(argv[3]), stdout);
    return 0;
  }
  return Compare(arguments[1], "/proc/self/exe", argc > 2 ? std::atol(argv[2]) : 1000000,
                 argc > 3 ? std::atoi(argv[3]) : 5);
}
