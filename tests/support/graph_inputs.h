// Graphs to test with.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string_view>
#include <utility>

#include "engine/formula_checker.h"
#include "plotter/graph_input.h"

namespace kav::test {

/// `text`, which has to be a formula in x, checked.
inline CheckedFormula FormulaOf(std::string_view text) {
  auto formula = CheckFormula(text, VariableType::X);
  EXPECT_TRUE(formula) << text;
  return formula ? *std::move(formula) : CheckedFormula();
}

/// What a graph of these formulas in radians is opened with; all else as by default.
inline GraphInput GraphOf(std::initializer_list<std::string_view> formulas) {
  GraphInput input;
  input.angle = AngleUnit::Radians;
  for (const std::string_view formula : formulas) {
    input.curves.push_back({u"a curve", FormulaOf(formula)});
  }
  return input;
}

}  // namespace kav::test
