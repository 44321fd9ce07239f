// What a button of a statistics screen asks of the outside, besides what key_request.h has.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "common/refusal.h"
#include "line/key_request.h"
#include "plotter/graph_input.h"
#include "statistics/data_fields.h"

namespace kav {

struct RefuseField {
  Refusal<DataField> refusal;  ///< told with the stop icon, then the field gets the focus
};
struct FocusField {
  DataField field;  ///< gets the focus, all of its text selected
};
struct AskDeleteRow {
  std::u16string_view question;  ///< on Yes: DeleteRow
};
struct AskClearRows {
  std::u16string_view question;  ///< on Yes: ClearRows
};
struct AskSaveDataFile {};  ///< then SaveTo with the file's path
struct AskLoadDataFile {
  std::u16string_view question;  ///< first, where not empty: on Yes as AskSaveDataFile
};                               ///< then LoadFrom with the file's path
struct ShowVariablesMenu {};     ///< MenuOfVariables, then ChooseVariables
struct ShowModelMenu {};         ///< MenuOfModels, then ChooseModel
struct OpenGraph {
  GraphInput input;
};
struct TellData {
  std::u16string text;  ///< with the stop icon
};
using StatisticsRequest =
    std::variant<Nothing, RefuseField, FocusField, AskDeleteRow, AskClearRows, AskSaveDataFile,
                 AskLoadDataFile, ShowVariablesMenu, ShowModelMenu, OpenGraph, TellData,
                 StoreMemoryVariable, RecallMemoryVariable>;

}  // namespace kav
