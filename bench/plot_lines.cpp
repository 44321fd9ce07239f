// plot_lines KAVCALC [ROUNDS]: how fast kavcalc samples 400 equations from standard input, beside a
// program that has them compiled by the C++ compiler. That is this program itself: it evaluates
// them with the same checks, and prints the same lines by the C++ library. Both run in turn, round
// by round; the figures are medians. Status 1 if kavcalc takes more than 1.25 times as long, or
// prints other lines.
//
// plot_lines --bound: samples the compiled equations. plot_lines --write: prints their texts.
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr int kEquations = 400;
constexpr int kSamples = 230;
constexpr int kBottom = kSamples - 1;
constexpr double kStep = 20 * 0.004366812227074236;

/// An equation: its text, in which A and B stand for numbers, and the same compiled.
struct Shape {
  const char* text;
  double (*at)(double x, double a, double b);
};
constexpr Shape kShapes[] = {
    {"A*sin(B*x)", [](double x, double a, double b) { return a * std::sin(b * x); }},
    {"A*x*x+B*x-5", [](double x, double a, double b) { return a * x * x + b * x - 5; }},
    {"A*exp(-x/B)", [](double x, double a, double b) { return a * std::exp(-x / b); }},
    {"(x+A)/(x*x-B)", [](double x, double a, double b) { return (x + a) / (x * x - b); }},
    {"A*cos(x)+abs(x)*B",
     [](double x, double a, double b) { return a * std::cos(x) + std::fabs(x) * b; }},
};

const Shape& ShapeOf(int equation) {
  return kShapes[equation % std::size(kShapes)];
}
// Quarters, which are exact in decimal and in binary.
double A(int equation) {
  return 0.25 + equation % 37 * 0.25;
}
double B(int equation) {
  return 0.75 + equation % 11 * 0.5;
}

std::string Number(double value) {
  char text[32];
  return {text, std::to_chars(text, std::end(text), value).ptr};
}

std::string TextOf(int equation) {
  std::string text;
  for (const char* at = ShapeOf(equation).text; *at != '\0'; ++at) {
    if (*at == 'A') {
      text += Number(A(equation));
    } else if (*at == 'B') {
      text += Number(B(equation));
    } else {
      text += *at;
    }
  }
  return text;
}

/// Prints lines, and writes them in blocks.
class Output {
 public:
  ~Output() { Flush(); }

  void PrintLine(int sample, double x, int row) {
    to_ = std::to_chars(to_, std::end(text_), sample).ptr;
    *to_++ = '\t';
    to_ = std::to_chars(to_, std::end(text_), x, std::chars_format::general, 17).ptr;
    *to_++ = '\t';
    if (row >= 0) to_ = std::to_chars(to_, std::end(text_), row).ptr;
    EndLine();
  }
  void EndLine() {
    *to_++ = '\n';
    if (to_ >= text_ + 65536) Flush();
  }

 private:
  void Flush() {
    if (write(STDOUT_FILENO, text_, static_cast<std::size_t>(to_ - text_)) < 0) std::exit(1);
    to_ = text_;
  }

  char text_[65536 + 128];
  char* to_ = text_;
};

/// The rows of the samples from -10 to 10, as kavcalc calculates them; -1: none.
void Sample(int equation, int* rows) {
  constexpr int kFailed = -2;
  int last = kFailed;  // -1: outside without a point, 0: on the border, 1: inside
  const Shape& shape = ShapeOf(equation);
  for (int i = 0; i < kSamples; ++i) {
    const double y = shape.at(-10 + i * kStep, A(equation), B(equation));
    rows[i] = -1;
    if (!std::isfinite(y)) {
      last = kFailed;
      continue;
    }
    const double row = kBottom - kBottom / 20. * (y + 10);
    const bool isInside = row > -1 && row < kBottom + 1;
    if (isInside) {
      rows[i] = static_cast<int>(row);
      if (last == -1 && rows[i] != kBottom / 2) rows[i - 1] = rows[i] < kBottom / 2 ? 0 : kBottom;
    } else if (last == 1) {
      rows[i] = row < 0 ? 0 : kBottom;
    }
    last = isInside ? 1 : last == 1 ? 0 : -1;
  }
}

void RunBound() {
  Output out;
  int rows[kSamples];
  for (int equation = 0; equation < kEquations; ++equation) {
    if (equation > 0) out.EndLine();
    Sample(equation, rows);
    for (int i = 0; i < kSamples; ++i) out.PrintLine(i, -10 + i * kStep, rows[i]);
  }
}

/// Runs `command` once. Returns how many seconds it takes.
double Run(std::vector<std::string> command, const std::string& input, const std::string& output) {
  std::vector<char*> arguments;
  for (std::string& text : command) arguments.push_back(text.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, 0, input.c_str(), O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&files, 1, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  if (posix_spawnp(&child, arguments[0], &files, nullptr, arguments.data(), environ) != 0) {
    std::exit(2);
  }
  int status = 0;
  waitpid(child, &status, 0);
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  posix_spawn_file_actions_destroy(&files);
  if (status != 0) std::exit(2);
  return took.count();
}

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

double Median(std::vector<double>& values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

int Compare(const std::string& kavcalc, int rounds) {
  std::string folder = "/tmp/plot_lines-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) return 2;
  const std::string input = folder + "/equations";
  {
    std::ofstream file(input);
    for (int equation = 0; equation < kEquations; ++equation) file << TextOf(equation) << '\n';
  }
  const std::vector<std::string> ours{kavcalc, "plot", "--angle", "rad", "--raw"};
  const std::vector<std::string> bound{"/proc/self/exe", "--bound"};
  Run(ours, input, folder + "/ours");
  Run(bound, input, folder + "/bound");
  const bool isSame = ContentOf(folder + "/ours") == ContentOf(folder + "/bound");
  std::vector<double> seconds[2];
  std::vector<double> ratios;
  for (int round = 0; round < rounds; ++round) {
    seconds[0].push_back(Run(bound, input, "/dev/null"));
    seconds[1].push_back(Run(ours, input, "/dev/null"));
    ratios.push_back(seconds[1].back() / seconds[0].back());
  }
  const double ratio = Median(ratios);
  std::printf("compiled %.2f ms, kavcalc plot %.2f ms, ratio %.2f, %s lines\n",
              1000 * Median(seconds[0]), 1000 * Median(seconds[1]), ratio,
              isSame ? "the same" : "other");
  if (std::system(("rm -r " + folder).c_str()) != 0) return 2;
  return isSame && ratio <= 1.25 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv, argv + argc);
  if (argc < 2) return 2;
  if (arguments[1] == "--bound") {
    RunBound();
    return 0;
  }
  if (arguments[1] == "--write") {
    for (int equation = 0; equation < kEquations; ++equation) std::puts(TextOf(equation).c_str());
    return 0;
  }
  return Compare(arguments[1], argc > 2 ? std::atoi(argv[2]) : 51);
}
