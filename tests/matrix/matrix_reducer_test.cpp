#include "matrix/matrix_reducer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "matrix/matrix_tokenizer.h"
#include "support/matrix_table.h"
#include "support/temporary_folder.h"

namespace kav::matrix_reducer_test {
namespace {

using test::MatrixOf;
using test::Spelled;

constexpr const char* kNoSpace = "error: System Error : Check your freespace on PDA";

const Matrices& Slots() {
  static const Matrices slots{MatrixOf("1 2; 3 4"), MatrixOf("1 0; 0 2"), MatrixOf("5; 6"),
                              MatrixOf("7 8")};
  return slots;
}

std::string Reduced(const std::string& text, TemporaryMatrices& files) {
  auto tokens = TokenizeMatrixExpression(text);
  if (!tokens) return "no tokens";
  return Spelled(ReduceMatrixTokens(*std::move(tokens), Slots(), files));
}

TEST(ReduceMatrixTokens, GroupsComeFirstThenSignsThenPowersThenProductsThenSums) {
  const TemporaryFolder parent;
  TemporaryMatrices files(parent.Path());
  const struct {
    const char* text;
    const char* result;
  } rows[] = {
      {"[m1]", "1 2; 3 4"},
      {"[m ans]", "7 8"},
      {"([m1])", "1 2; 3 4"},
      {"(([m3]))", "5; 6"},
      {"[m1]+[m2]*2", "3 2; 3 8"},
      {"([m1]+[m2])*2", "4 4; 6 12"},
      {"2*[m1]^2", "14 20; 30 44"},
      {"[m1]*2^2", "4 8; 12 16"},
      {"[m1]^2^2", "199 290; 435 634"},
      {"[m1]*(2^3^2)", "64 128; 192 256"},
      {"[m1]-[m2]-[m2]", "-1 2; 3 0"},
      {"[m1]-([m2]-[m2])", "1 2; 3 4"},
      {"[m1]*[m2]*[m1]", "13 18; 27 38"},
      {"1-[m1]+[m2]", "1 -1; -2 -1"},
      {"-[m1]", "-1 -2; -3 -4"},
      {"+[m1]", "1 2; 3 4"},
      {"--[m1]", "1 2; 3 4"},
      {"-+-+[m1]", "1 2; 3 4"},
      {"-[m1]^2", "7 10; 15 22"},
      {"-2^2*[m1]", "4 8; 12 16"},
      {"2^-1*[m2]", "0.5 0; 0 1"},
      {"[m1]--[m2]", "2 2; 3 6"},
      {"[m1]-+-[m2]", "2 2; 3 6"},
      {"[m1]*-[m2]", "-1 -4; -3 -8"},
      {"2*-[m1]", "-2 -4; -6 -8"},
      {"-(-[m1])", "1 2; 3 4"},
      {"-transpose([m1])", "-1 -3; -2 -4"},
      {"2*-transpose([m1])+[m2]", "-1 -6; -4 -6"},
      {"+([m1]*[m2])", "1 4; 3 8"},
      {"transpose([m1]+[m2])", "2 3; 2 6"},
      {"transpose(transpose([m1]))", "1 2; 3 4"},
      {"determinant([m1])*[m2]", "error: [Matrix Multiplication(*)] Matrix Size Mismatch"},
      {"determinant(-[m1]*2)", "-8"},
      {"linearequation([m2],[m3])", "5; 3"},
      {"linearequation([m2]*2,([m3]*2))", "5; 3"},
      {"linearequation([m2] [m3])", "5; 3"},
      {"inverse([m2])*linearequation([m2],[m3])", "5; 1.5"},
  };
  for (const auto& row : rows) EXPECT_EQ(Reduced(row.text, files), row.result) << row.text;
}

TEST(ReduceMatrixTokens, AnythingButOneMatrixAtTheEndIsAnError) {
  const TemporaryFolder parent;
  TemporaryMatrices files(parent.Path());
  const char* const rows[] = {
      "1",
      "1+1",
      "(2)",
      "-1",
      "[m1],[m2]",
      "[m1] [m2]",
      "[m1] 2",
      "2 [m1]",
      "transpose([m1],[m2])",
      "linearequation([m2],[m3],[m3])",
      "([m1])transpose([m2])",
      "[m1]*[m2],[m1]*[m2]",
      "",
      "[m1])+([m2]",
      ")",
      "1*",
      "[m1]^[m2]",
      "2^[m1]",
  };
  for (const auto* text : rows) {
    EXPECT_EQ(Reduced(text, files), "error: Expression error.") << text;
  }
}

TEST(ReduceMatrixTokens, TheFirstThatCannotBeDoneTellsWhy) {
  const TemporaryFolder parent;
  TemporaryMatrices files(parent.Path());
  const struct {
    const char* text;
    const char* message;
  } rows[] = {
      {"[m1]+[m3]+inverse([m3])", "[Matrix Inverse] Matrix Size Mismatch"},
      {"[m1]+[m3]-[m1]*[m ans]", "[Matrix Multiplication(*)] Matrix Size Mismatch"},
      {"[m1]+[m3]-[m1]", "[Matrix Addition(+)] Matrix Size Mismatch"},
      {"[m1]-[m3]+[m1]", "[Matrix Subtration(-)] Matrix Size Mismatch"},
      {"inverse(1)+inverse([m3])", "[Matrix Inverse] Matrix Argument Error"},
      {"linearequation([m1],2,[m3])", "[Matrix Linear Equation] Matrix Argument Error"},
      {"linearequation(2,[m3])", "[Matrix Linear Equation] Matrix Argument Error"},
      {"linearequation([m1])", "[Matrix Linear Equation] Matrix Argument Error"},
      {"1e300*1e300*[m1]", "Out of range(overflow or underflow)"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Reduced(row.text, files), std::string("error: ") + row.message) << row.text;
  }
}

TEST(ReduceMatrixTokens, OnlyWhatALaterOperationReadsTouchesTheDisk) {
  const TemporaryFolder folder;
  PutFile(folder.File("file"), "");
  TemporaryMatrices files(folder.File("file"));
  const struct {
    const char* text;
    const char* result;
  } rows[] = {
      {"[m1]", "1 2; 3 4"},
      {"+[m1]", "1 2; 3 4"},
      {"[m1]*[m2]", "1 4; 3 8"},
      {"(([m1]*[m2]))", "1 4; 3 8"},
      {"-[m1]", "-1 -2; -3 -4"},
      {"(1+1)^2*[m1]", "4 8; 12 16"},
      {"inverse([m2])", "1 0; 0 0.5"},
      {"linearequation(([m2]),([m3]))", "5; 3"},
      {"[m1]*[m2]*[m2]", kNoSpace},
      {"--[m1]", kNoSpace},
      {"-[m1]^2", kNoSpace},
      {"inverse([m2]*2)", kNoSpace},
      {"inverse(inverse([m2]))", kNoSpace},
      {"[m1]+2*[m2]", kNoSpace},
  };
  for (const auto& row : rows) EXPECT_EQ(Reduced(row.text, files), row.result) << row.text;
}

TEST(ReduceMatrixTokens, AFileIsNumberedAfterTheTokenThatItsMatrixReplaces) {
  // A folder of a file's name makes writing that file, and no other, fail.
  const struct {
    const char* text;
    std::vector<int> written;
  } rows[] = {
      {"[m1]*[m2]*[m2]", {0}},
      {"2-[m1]*[m2]", {2}},
      {"[m1]*[m2]+[m2]*[m2]", {0, 4}},
      {"[m1]+-[m2]", {2}},
      {"2*transpose([m1])", {2}},
      {"transpose(transpose([m1]))", {2}},
      {"transpose([m1]+[m1])+([m1]+[m1])", {0, 2, 8}},
  };
  for (const auto& row : rows) {
    std::vector<int> written;
    for (int number = 0; number < 12; ++number) {
      const TemporaryFolder parent;
      TemporaryMatrices files(parent.Path());
      ASSERT_TRUE(files.Write("kavm99.dat", MatrixOf("1")));
      const std::string path =
          parent.File(parent.Names().front()) + "/" + TemporaryMatrices::NameOf(number);
      mkdir(path.c_str(), 0700);
      if (Reduced(row.text, files) == kNoSpace) written.push_back(number);
      rmdir(path.c_str());
    }
    EXPECT_EQ(written, row.written) << row.text;
  }
}

TEST(ReduceMatrixTokens, LeavesNoFileBehind) {
  const TemporaryFolder parent;
  TemporaryMatrices files(parent.Path());
  const char* const rows[] = {
      "[m1]*[m2]*[m2]",      "[m1]*[m2]+[m2]*[m2]",        "+([m1]*[m2])",
      "[m1]*[m2]+[m3]",      "([m1]*[m2])+inverse([m3])",  "([m1]*[m2])+([m1]*[m2])+1e999",
      "[m1]*[m2] [m1]*[m2]", "linearequation(-[m1],-2)+1",
  };
  for (const auto* text : rows) {
    Reduced(text, files);
    for (const auto& name : parent.Names()) {
      EXPECT_TRUE(std::filesystem::is_empty(parent.File(name))) << text;
    }
  }
  EXPECT_EQ(parent.Names().size(), 1U);
}

}  // namespace
}  // namespace kav::matrix_reducer_test
