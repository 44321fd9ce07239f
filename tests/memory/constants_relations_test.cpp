// The numbers of the delivered constants, held against each other: what defines a constant by
// others must hold between their rows as well as their digits allow.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "support/constant_relations.h"

namespace kav::test::constants_relations_test {
namespace {

/// What the arithmetic of Real itself may be off by, in relation to a value.
constexpr Real kRounding = 3e-18L;

constexpr std::size_t kFirmDigits = 15;

/// How far the row of `relation` may be from the value that others give it: by what is left open by
/// its last digit and by theirs.
Real AllowedError(const Relation& relation) {
  Values values;
  const Real exact = relation.value(values);
  Real allowed = values.At(values.Find(relation.row)).halfDigit + kRounding * std::abs(exact);
  for (const std::size_t row : std::set(values.Used())) {
    values.Shift(row);
    allowed += std::abs(relation.value(values) - exact);
  }
  return allowed;
}

TEST(ConstantsRelations, HoldAsWellAsTheDigitsAllow) {
  for (const Relation& relation : kRelations) {
    const Values values;
    const Real given = values[relation.row];
    const Real derived = relation.value(values);
    EXPECT_LE(std::abs(given - derived), AllowedError(relation))
        << relation.row << ": " << given << " is derived as " << derived;
  }
}

TEST(ConstantsRelations, WhatFollowsFromNoOtherRowIsAsPublished) {
  const Values values;
  for (const auto& [row, text] : kPublished) {
    EXPECT_EQ(values.At(values.Find(row)).text, text) << row;
  }
}

TEST(ConstantsRelations, EveryRowIsHeldByOneOfThem) {
  const Values values;
  for (const Relation& relation : kRelations) (void)(values[relation.row] + relation.value(values));
  for (const auto& [row, text] : kPublished) (void)values[row];
  for (std::size_t i = 0; i < values.Count(); ++i) {
    EXPECT_TRUE(values.Used().contains(i)) << values.At(i).name;
  }
}

/// A relation with the rows that take part in it.
struct Part {
  const Relation* relation;
  Real allowed;
  std::set<std::size_t> rows;
};

std::vector<Part> Parts() {
  std::vector<Part> parts;
  for (const Relation& relation : kRelations) {
    const Values values;
    (void)(values[relation.row] + relation.value(values));
    parts.push_back({&relation, AllowedError(relation), values.Used()});
  }
  return parts;
}

/// Whether one of the relations that `row` takes part in fails.
bool IsSeen(const std::vector<Part>& parts, const Values& values, std::size_t row) {
  return std::any_of(parts.begin(), parts.end(), [&](const Part& part) {
    if (!part.rows.contains(row)) return false;
    const Real error = values[part.relation->row] - part.relation->value(values);
    return !(std::abs(error) <= part.allowed);
  });
}

/// The places of the digits of `text` that the relations vouch for: all but the last, and no more
/// than a double can tell apart.
std::vector<std::size_t> FirmDigits(const std::string& text) {
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < std::min(text.find('e'), text.size()); ++i) {
    if (std::isdigit(static_cast<unsigned char>(text[i])) != 0) places.push_back(i);
  }
  places.resize(std::min(places.size() - 1, kFirmDigits));
  return places;
}

TEST(ConstantsRelations, AWrongDigitInARowIsSeen) {
  const std::vector<Part> parts = Parts();
  std::set<std::size_t> bound;
  for (const Part& part : parts) bound.insert(part.rows.begin(), part.rows.end());
  Values values;
  for (const std::size_t row : bound) {
    const DeliveredRow right = values.At(row);
    for (const std::size_t place : FirmDigits(right.text)) {
      for (const int wrong : {1, 9}) {
        std::string text = right.text;
        text[place] = static_cast<char>('0' + (text[place] - '0' + wrong) % 10);
        values.Set(row, ValueOf(text));
        EXPECT_TRUE(IsSeen(parts, values, row)) << right.name << " = " << text;
      }
    }
    values.Set(row, right.value);
  }
}

}  // namespace
}  // namespace kav::test::constants_relations_test
