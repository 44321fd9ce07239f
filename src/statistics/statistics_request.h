// What a button of a statistics screen asks of the outside.
#pragma once

#include <variant>

#include "common/refusal.h"
#include "line/key_request.h"
#include "plotter/graph_input.h"
#include "statistics/data_fields.h"
#include "statistics/statistics_keypad.h"

namespace kav {

/// Told with the stop icon; then the field gets the focus.
using FieldRefusal = Refusal<DataField>;

struct FocusField {
  DataField field;  ///< gets the focus, all of its text selected
};

/// On Yes to the question of Delete: DeleteRow; to that of Clear: ClearRows.
using StatisticsRequest = std::variant<Nothing, FieldRefusal, FocusField, AskFirst<StatisticsKey>,
                                       AskSaveFile, AskLoadFile, ShowMenu<StatisticsKey>, OpenGraph,
                                       TellStop, StoreMemoryVariable, RecallMemoryVariable>;

}  // namespace kav
