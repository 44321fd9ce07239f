// A plotter screen over settings of its own, for the tests of its model.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "common/number_text.h"
#include "plotter/plotter_model.h"
#include "settings/settings_store.h"
#include "support/marked_line.h"

namespace kav::test {

class PlotterScreen : public testing::Test {
 protected:
  using Equations = std::vector<std::u16string>;

  PlotterScreen() { Open(); }

  void Open() { model_ = std::make_unique<PlotterModel>(store_); }

  void Set(std::string_view section, std::string_view name, std::int32_t value) {
    store_.Set(SettingKey<std::int32_t>{section, name, 0}, value);
  }
  void SetText(std::string_view section, std::string_view name, std::string_view value) {
    store_.Set(SettingKey<std::string_view>{section, name, ""}, value);
  }
  std::int32_t Stored(std::string_view section, std::string_view name) const {
    return store_.Get(SettingKey<std::int32_t>{section, name, -12345});
  }
  std::string StoredText(std::string_view section, std::string_view name) const {
    return store_.Get(SettingKey<std::string_view>{section, name, "nothing"});
  }

  /// Presses the visible key that shows `caption`.
  PlotterRequest Press(std::u16string_view caption) {
    for (const PlotterKeyRow& row : PlotterKeyRows()) {
      if (model_->IsVisible(row.key) && model_->Caption(row.key) == caption) {
        return model_->Press(row.key);
      }
    }
    ADD_FAILURE() << "no key shows " << Narrow(caption);
    return Nothing{};
  }
  template <class Request>
  static bool Is(const PlotterRequest& request) {
    return std::holds_alternative<Request>(request);
  }
  /// What a request refuses; empty if it is another one.
  static std::u16string Told(const PlotterRequest& request) {
    const auto* refusal = std::get_if<PlotterRefusal>(&request);
    return refusal == nullptr ? std::u16string() : refusal->text;
  }
  /// Where a refusal leads to; the input for nullopt.
  static std::optional<RangeField> FocusOf(const PlotterRequest& request) {
    const auto* refusal = std::get_if<PlotterRefusal>(&request);
    EXPECT_NE(refusal, nullptr);
    return refusal == nullptr ? std::nullopt : refusal->focus;
  }

  void Put(std::u16string_view marked) { model_->SetInput(MarkedLine(marked)); }
  /// Types `equation` in place of the input and adds it; what is told.
  std::u16string Add(std::u16string_view equation) {
    ExpressionLine line;
    line.InsertText(equation);
    model_->SetInput(line);
    const auto refusal = model_->Add();
    return refusal ? refusal->text : std::u16string();
  }
  std::u16string MarkedNow() const { return Marked(model_->Input()); }
  void SetRange(const RangeTexts& texts) {
    for (const RangeField field : kRangeFields) model_->SetRangeText(field, texts[IndexOf(field)]);
  }

  const Equations& List() const { return model_->Equations().All(); }
  /// What the items of the history's menu write into an empty input, the oldest first.
  Equations Entries() {
    const ExpressionLine input = model_->Input();
    Equations entries;
    for (const MenuItem& item : model_->MenuOf(PlotterKey::PlayBack)) {
      model_->SetInput({});
      model_->Choose(PlotterKey::PlayBack, item.id);
      entries.insert(entries.begin(), model_->Input().Text());
    }
    model_->SetInput(input);
    return entries;
  }
  bool IsEnabled(PlotterKey key) const { return model_->IsEnabled(key); }

  MemorySettingsStore store_;
  std::unique_ptr<PlotterModel> model_;
};

}  // namespace kav::test
