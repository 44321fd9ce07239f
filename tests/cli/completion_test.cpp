#include "cli/completion.h"

#include <gtest/gtest.h>

namespace kav::completion_test {
namespace {

using Names = std::vector<std::string>;

const Names kNames{"pi", "sin(", "sinh(", "sqrt(", "asin(", "M:Area(", "M:Area of a(", "M:volume("};

struct Row {
  const char* before;
  const char* insertion;
  Names choices;
};

TEST(Completion, InsertsWhatIsSureAndListsTheRest) {
  const std::vector<Row> rows{
      {"", "", {}},
      {"2+", "", {}},
      {"sq", "rt(", {}},
      {"2*sq", "rt(", {}},
      {"p", "i", {}},
      {"pi", "", {"pi"}},
      {"si", "n", {}},
      {"sin", "", {"sin(", "sinh("}},
      {"s", "", {"sin(", "sinh(", "sqrt("}},
      {"sinh", "(", {}},
      {"unknown", "", {}},
      {"sin(", "", {}},
      {"SQ", "rt(", {}},
      {"1sq", "rt(", {}},
      {"\xc3\xa9sq", "rt(", {}},
      {"M", ":", {}},
      {"M:", "", {"M:Area(", "M:Area of a(", "M:volume("}},
      {"M:v", "olume(", {}},
      {"1+M:v", "olume(", {}},
      {"M:A", "rea", {}},
      {"M:Area", "", {"M:Area(", "M:Area of a("}},
      {"M:Area ", "of a(", {}},
      {"M:area", "", {}},
      {"M:volume(sq", "rt(", {}},
      {"M:volume(M:v", "olume(", {}},
  };
  for (const Row& row : rows) {
    const Completion completion = Complete(row.before, kNames);
    EXPECT_EQ(completion.insertion, row.insertion) << row.before;
    EXPECT_EQ(completion.choices, row.choices) << row.before;
  }
}

}  // namespace
}  // namespace kav::completion_test
