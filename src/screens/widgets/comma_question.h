// Asks what the commas of a paste mean.
#pragma once

#include <optional>

#include "display/comma_reading.h"

class QWidget;

namespace kav {

/// One button a meaning, with what the number becomes by it. nullopt if nothing is to be pasted.
std::optional<CommaMeaning> AskForCommas(QWidget* parent, const CommaQuestion& question);

}  // namespace kav
