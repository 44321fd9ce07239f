// A matrix screen over settings of its own, for the tests of its model.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "common/number_text.h"
#include "matrix/matrix_model.h"
#include "settings/settings_store.h"
#include "support/marked_line.h"
#include "support/matrix_table.h"

namespace kav::test {

class MatrixScreen : public testing::Test {
 protected:
  MatrixScreen() { Open(); }

  void Open() { model_ = std::make_unique<MatrixModel>(store_); }

  void Set(std::string_view section, std::string_view name, std::int32_t value) {
    store_.Set(SettingKey<std::int32_t>{section, name, 0}, value);
  }
  std::int32_t Stored(std::string_view section, std::string_view name) const {
    return store_.Get(SettingKey<std::int32_t>{section, name, -12345});
  }

  /// Presses the key that shows `caption`.
  MatrixRequest Press(std::u16string_view caption) {
    for (const MatrixKeyRow& row : MatrixKeyRows()) {
      if (model_->Caption(row.key) == caption) return model_->Press(row.key);
    }
    ADD_FAILURE() << "no key shows " << Narrow(caption);
    return Nothing{};
  }
  /// Chooses the item of a menu that has the text.
  MatrixRequest Choose(MatrixKey menu, std::u16string_view text) {
    for (const MenuItem& item : model_->MenuOf(menu)) {
      if (item.text == text) return model_->Choose(menu, item.id);
    }
    ADD_FAILURE() << "no item is " << Narrow(text);
    return Nothing{};
  }
  MatrixRequest Tool(std::u16string_view text) { return Choose(MatrixKey::MatrixTools, text); }

  /// What a request tells with the stop icon; empty where it is another one.
  static std::u16string Told(const MatrixRequest& request) {
    const auto* stop = std::get_if<TellStop>(&request);
    return stop == nullptr ? std::u16string() : stop->text;
  }

  /// Evaluates `text` in place of the line; what is told.
  std::u16string Evaluate(std::u16string_view text) {
    model_->SetLine(std::u16string(text), {text.size(), text.size()});
    return Told(Press(u"="));
  }
  void SetMarked(std::u16string_view marked) {
    const ExpressionLine line = MarkedLine(marked);
    model_->SetLine(line.Text(), line.Selected());
  }
  std::u16string MarkedNow() const { return Marked(model_->Line()); }

  /// Makes the matrix `index` that of `table`, as MatrixOf has it, and shows what was shown before.
  void Fill(int index, std::u16string_view table) {
    const int shown = model_->Shown();
    const MatrixValue matrix = MatrixOf(table);
    model_->Show(index);
    model_->Resize(matrix.rows, matrix.columns);
    for (int row = 0; row < matrix.rows; ++row) {
      for (int column = 0; column < matrix.columns; ++column) {
        model_->SetCell(row, column, matrix.At(row, column));
      }
    }
    model_->Show(shown);
  }
  std::u16string Table(int index) const {
    return TableOf(model_->AllMatrices()[static_cast<std::size_t>(index)]);
  }
  std::u16string Shown() const { return TableOf(model_->ShownMatrix()); }
  bool IsEnabled(MatrixKey key) const { return model_->IsEnabled(key); }
  /// What the items of the history's menu write into an empty line, the oldest first.
  std::vector<std::u16string> Entries() {
    const ExpressionLine line = model_->Line();
    std::vector<std::u16string> entries;
    for (const MenuItem& item : model_->MenuOf(MatrixKey::PlayBack)) {
      model_->SetLine({}, {});
      model_->Choose(MatrixKey::PlayBack, item.id);
      entries.insert(entries.begin(), model_->Line().Text());
    }
    model_->SetLine(line.Text(), line.Selected());
    return entries;
  }

  MemorySettingsStore store_;
  std::unique_ptr<MatrixModel> model_;
};

}  // namespace kav::test
