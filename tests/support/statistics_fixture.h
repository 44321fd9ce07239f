// A statistics screen over settings of its own, for the tests of its models.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "common/number_text.h"
#include "settings/settings_store.h"
#include "statistics/statistics_model.h"
#include "support/temporary_folder.h"

namespace kav::test {

template <class Model>
class StatisticsFixture : public testing::Test {
 protected:
  StatisticsFixture() { Open(); }

  /// Makes a fresh screen. A StatisticsModel is that of one variable.
  void Open() {
    if constexpr (std::is_same_v<Model, StatisticsModel>) {
      model_ = std::make_unique<Model>(DataShape::OneVariable, store_);
    } else {
      model_ = std::make_unique<Model>(store_);
    }
  }

  void Set(std::string_view name, std::int32_t value) {
    store_.Set(SettingKey<std::int32_t>{"Config", name, 0}, value);
  }

  /// Presses the visible button that shows `caption`.
  StatisticsRequest Press(std::u16string_view caption) {
    for (const StatisticsKeyRow& row : StatisticsKeyRows(model_->Shape())) {
      if (model_->IsVisible(row.key) && model_->Caption(row.key) == caption) {
        return model_->Press(row.key);
      }
    }
    ADD_FAILURE() << "no button shows " << Narrow(caption);
    return Nothing{};
  }
  /// Presses a result button. Answers what the result line then shows.
  std::u16string Result(std::u16string_view caption) {
    EXPECT_TRUE(std::holds_alternative<Nothing>(Press(caption))) << Narrow(caption);
    return model_->ResultText();
  }

  void Type(std::u16string_view x, std::u16string_view count) {
    model_->SetFields({std::u16string(x), u"", std::u16string(count)});
  }
  void Type(std::u16string_view x, std::u16string_view y, std::u16string_view count) {
    model_->SetFields({std::u16string(x), std::u16string(y), std::u16string(count)});
  }
  template <class... Texts>
  void Add(Texts... texts) {
    Type(texts...);
    EXPECT_TRUE(std::holds_alternative<FocusField>(Press(u"Add")));
  }

  /// Adds points of count 1, the first on top.
  void Fill(const std::vector<std::array<std::u16string_view, 2>>& points) {
    for (auto point = points.rbegin(); point != points.rend(); ++point) {
      Add((*point)[0], (*point)[1], std::u16string_view(u"1"));
    }
  }
  /// Loads a file of this content. Answers what the user is told.
  std::optional<std::u16string> Load(const std::string& content) {
    PutFile(folder_.File("load.txt"), content);
    return model_->LoadFrom(folder_.File("load.txt"), {});
  }

  /// Makes the lines of `rows` the list, without a file.
  void Replace(const std::string& rows) {
    model_->ClearRows();
    EXPECT_FALSE(model_->PasteRows(Widen(rows), {}));
  }

  /// Deletes or clears after a Yes.
  void Delete(std::size_t row) {
    model_->Select(row);
    EXPECT_EQ(std::get<AskFirst<StatisticsKey>>(Press(u"Delete")).key, StatisticsKey::Delete);
    model_->DeleteRow();
  }
  void Clear() {
    EXPECT_EQ(std::get<AskFirst<StatisticsKey>>(Press(u"Clear")).key, StatisticsKey::Clear);
    model_->ClearRows();
  }

  /// Whether leaving the screen asks to save: the list was changed, and its total is above 1.
  bool AsksToSave() const { return model_->QuestionBeforeLeaving().has_value(); }

  /// The cells from the top, such as "4 1; 2 3".
  std::string Rows() const {
    const DataList& list = model_->List();
    std::string text;
    for (std::size_t row = 0; row < list.RowCount(); ++row) {
      if (row > 0) text += "; ";
      for (std::size_t i = 0; i < VariablesOf(list.Shape()); ++i) {
        text.append(list.ValueText(row, i)).append(" ");
      }
      text += list.CountText(row).empty() ? "-" : list.CountText(row);
    }
    return text;
  }

  /// The captions of all buttons that can be pressed, in their order.
  std::u16string Enabled() const {
    std::u16string text;
    for (const StatisticsKeyRow& row : StatisticsKeyRows(model_->Shape())) {
      if (!model_->IsVisible(row.key) || !model_->IsEnabled(row.key)) continue;
      if (!text.empty()) text += u"|";
      text += model_->Caption(row.key);
    }
    return text;
  }

  /// What the user is told with the stop icon; empty for other requests.
  static std::u16string Told(const StatisticsRequest& request) {
    if (const auto* told = std::get_if<TellStop>(&request)) return told->text;
    if (const auto* refused = std::get_if<FieldRefusal>(&request)) return refused->text;
    return {};
  }

  TemporaryFolder folder_;
  MemorySettingsStore store_;
  std::unique_ptr<Model> model_;
};

}  // namespace kav::test
