#include "plotter/curve_features.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <optional>
#include <string_view>
#include <vector>

#include "support/graph_inputs.h"

namespace kav::curve_features_test {
namespace {

CurveFunction Of(std::string_view formula) {
  return [checked = test::FormulaOf(formula)](double x) -> std::optional<double> {
    const auto y = checked.At({.x = x}, AngleUnit::Radians);
    return y ? std::optional(*y) : std::nullopt;
  };
}

std::vector<double> Places(const CurveFeatures& features) {
  std::vector<double> places;
  for (const CurveFeature& feature : features.found) places.push_back(feature.x);
  return places;
}

using Xs = std::vector<double>;

TEST(CurveFeaturesTest, RootsAreExact) {
  const Xs roots = Places(FindRoots(Of("x^2-2"), -10, 10));
  ASSERT_EQ(roots.size(), 2U);
  EXPECT_NEAR(roots[0], -std::numbers::sqrt2, 2.3e-16);  // the neighbour is as near to 0
  EXPECT_NEAR(roots[1], std::numbers::sqrt2, 2.3e-16);
  EXPECT_EQ(Places(FindRoots(Of("sin(x)"), -0.3, 3.5)), Xs({0, std::numbers::pi}));
  EXPECT_EQ(Places(FindRoots(Of("x"), -10, 10)), Xs({0}));
  EXPECT_EQ(Places(FindRoots(Of("x"), -7, 9.3)), Xs({0}));
  EXPECT_EQ(Places(FindRoots(Of("exp(x)-1"), -7, 9.3)), Xs({0}));
}

TEST(CurveFeaturesTest, PolesAndJumpsAreNoRoots) {
  EXPECT_EQ(Places(FindRoots(Of("1/x"), -10, 10)), Xs());
  EXPECT_EQ(Places(FindRoots(Of("1/x"), -7, 9.3)), Xs());
  EXPECT_EQ(Places(FindRoots(Of("tan(x)"), -2, 2)), Xs({0}));
  EXPECT_EQ(Places(FindRoots(Of("abs(x)/x+0.1*x"), -3, 4.1)), Xs());
  EXPECT_EQ(Places(FindRoots(Of("sqrt(x)+1"), -3, 4)), Xs());
}

TEST(CurveFeaturesTest, ACurveThatTouchesZeroHasARootThere) {
  EXPECT_EQ(Places(FindRoots(Of("x^2"), -7, 9.3)), Xs({0}));
  EXPECT_EQ(Places(FindRoots(Of("(x-0.5)^2"), -7, 9.3)), Xs({0.5}));
  EXPECT_EQ(Places(FindRoots(Of("x^2+1e-6"), -7, 9.3)), Xs());
}

TEST(CurveFeaturesTest, ALevelStretchIsNamedOnce) {
  const CurveFeatures roots = FindRoots(Of("x+abs(x)"), -1, 1);
  ASSERT_EQ(roots.found.size(), 1U);
  EXPECT_EQ(roots.found[0].x, -1);
  EXPECT_EQ(roots.found[0].until, 0);
  EXPECT_EQ(FindRoots(Of("0*x"), -1, 1).found.size(), 1U);
  EXPECT_TRUE(FindExtrema(Of("0*x+3"), -1, 1).found.empty());
  EXPECT_TRUE(FindExtrema(Of("sin(x)^2+cos(x)^2"), -1, 1).found.empty());
}

TEST(CurveFeaturesTest, ExtremaAreFoundBetweenSamples) {
  const CurveFeatures extrema = FindExtrema(Of("x^3-3*x"), -7, 9.3);
  ASSERT_EQ(Places(extrema), Xs({-1, 1}));
  EXPECT_EQ(extrema.found[0].kind, FeatureKind::Maximum);
  EXPECT_EQ(extrema.found[0].y, 2);
  EXPECT_EQ(extrema.found[1].kind, FeatureKind::Minimum);
  EXPECT_EQ(extrema.found[1].y, -2);
  const CurveFeatures wave = FindExtrema(Of("sin(x)"), 0, 3);
  ASSERT_EQ(wave.found.size(), 1U);
  EXPECT_NEAR(wave.found[0].x, std::numbers::pi / 2, 1e-8);
  EXPECT_EQ(wave.found[0].y, 1);
  EXPECT_EQ(Places(FindExtrema(Of("abs(x-0.3)"), -1, 1)), Xs({0.3}));
  EXPECT_EQ(Places(FindExtrema(Of("1/x"), -7, 9.3)), Xs());
  EXPECT_EQ(Places(FindExtrema(Of("tan(x)"), -7, 9.3)), Xs());
}

TEST(CurveFeaturesTest, TooManyAreCutAndToldSo) {
  const CurveFeatures roots = FindRoots(Of("sin(x*100)"), 0, 10);
  EXPECT_EQ(roots.found.size(), kMostFeatures);
  EXPECT_FALSE(roots.areAll);
  EXPECT_TRUE(FindRoots(Of("sin(x)"), -10, 10).areAll);
}

TEST(CurveFeaturesTest, SlopesAreWellConditioned) {
  EXPECT_NEAR(*SlopeAt(Of("sin(x)"), 1, 20), std::cos(1), 1e-12);
  EXPECT_NEAR(*SlopeAt(Of("x^3"), 2, 20), 12, 1e-10);
  EXPECT_NEAR(*SlopeAt(Of("x^2"), 0, 20), 0, 1e-14);
  EXPECT_FALSE(SlopeAt(Of("abs(x)"), 0, 20));
  EXPECT_FALSE(SlopeAt(Of("1/x"), 0, 20));
  EXPECT_FALSE(SlopeAt(Of("sqrt(x)"), 0, 20));
}

TEST(CurveFeaturesTest, AreasAreCountedWithTheirSign) {
  EXPECT_NEAR(AreaUnder(Of("sin(x)"), 0, std::numbers::pi).value, 2, 1e-14);
  EXPECT_NEAR(AreaUnder(Of("x^2"), -3, 3).value, 18, 1e-13);
  EXPECT_NEAR(AreaUnder(Of("x"), -2, 2).value, 0, 1e-14);
  EXPECT_NEAR(AreaUnder(Of("abs(x-0.3)"), 0, 1).value, 0.045 + 0.245, 1e-12);
  EXPECT_TRUE(AreaUnder(Of("x"), -2, 2).isWhole);
}

TEST(CurveFeaturesTest, GapsInAnAreaAreTold) {
  const CurveArea root = AreaUnder(Of("sqrt(x)"), -1, 1);
  EXPECT_FALSE(root.isWhole);
  EXPECT_NEAR(root.value, 2. / 3, 1e-8);
  EXPECT_FALSE(AreaUnder(Of("1/x"), -1, 1).isWhole);
}

}  // namespace
}  // namespace kav::curve_features_test
