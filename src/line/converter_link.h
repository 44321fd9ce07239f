// What a screen keeps for the unit converter from one opening of it to the next.
#pragma once

#include <string>

#include "common/unit_positions.h"
#include "line/expression_line.h"
#include "line/key_request.h"
#include "settings/settings_store.h"

namespace kav {

/// The positions in the converter's lists, which are stored, and the memory register M, which is
/// not. The converter may change both.
struct ConverterLink {
  /// Loads the positions; M is 0.
  explicit ConverterLink(const SettingsStore& store);
  void Save(SettingsStore& store) const;

  /// Asks for the converter with `value` to convert.
  OpenConverter Request(std::u16string value) const;
  /// Takes what the converter left; a result goes into `line` in place of the selection.
  void Take(const ConverterOutcome& outcome, ExpressionLine& line);

  UnitPositions positions;
  double memory = 0;
};

/// What the converter is opened with if the last answer is 0, or there is none yet.
inline constexpr std::u16string_view kValueToConvert = u"1";

}  // namespace kav
