// Asks what the commas of a text mean.
#pragma once

#include <functional>
#include <string_view>

#include "display/comma_reading.h"

class QWidget;

namespace kav {

/// Asks `text` beside `field`, with one answer a meaning: what the number becomes by it. One of the
/// functions is called once that is answered or given up.
void AskForCommas(const QWidget& field, std::u16string_view text, const CommaQuestion& question,
                  const std::function<void(CommaMeaning)>& take, std::function<void()> giveUp = {});

}  // namespace kav
