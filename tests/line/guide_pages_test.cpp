// The guide's pages: their headings, their pictures and their examples, which all are true.
#include "line/guide_pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "common/number_text.h"
#include "converter/converter_model.h"
#include "macros/macros_texts.h"
#include "plotter/graph_model.h"
#include "statistics/two_variable_model.h"
#include "support/graph_inputs.h"
#include "support/matrix_screen.h"
#include "support/scientific_screen.h"
#include "support/statistics_fixture.h"
#include "support/stored_macros.h"

namespace kav::guide_pages_test {
namespace {

using Words = std::vector<std::string>;

std::string WithoutCommas(std::string text) {
  std::erase(text, ',');
  return text;
}

/// Whether `shown` is `expected`, or with "about " before that, rounds to it.
bool IsAsSaid(const std::string& shown, std::string expected) {
  constexpr std::string_view kAbout = "about ";
  if (!expected.starts_with(kAbout)) return shown == expected;
  expected = WithoutCommas(expected.substr(kAbout.size()));
  const std::size_t point = expected.find('.');
  if (point == std::string::npos) return false;
  const auto decimals = static_cast<int>(expected.size() - point - 1);
  const auto number = ReadWholeNumber(WithoutCommas(shown));
  return number &&
         std::abs(*number - *ReadWholeNumber(expected)) <= 0.5 * std::pow(10, -decimals) + 1e-12;
}

/// An item of a list: what stands in backquotes, and what stands before, between and behind.
struct Item {
  Words texts;
  Words codes;

  /// The last text up to the colon, behind which stands more than the fact.
  std::string Said() const { return texts.back().substr(0, texts.back().find(": ")); }
};

Item ItemOf(const std::string& line) {
  Item item;
  std::string* part = &item.texts.emplace_back();
  for (const char c : line) {
    if (c != '`') {
      *part += c;
    } else {
      part = item.texts.size() > item.codes.size() ? &item.codes.emplace_back()
                                                   : &item.texts.emplace_back();
    }
  }
  return item;
}

struct Page {
  std::string text;
  std::vector<std::string> items;  ///< each in one line
};

/// The pages by their headings.
const std::map<std::string, Page>& Pages() {
  static const auto kPages = [] {
    std::map<std::string, Page> pages;
    std::ifstream file(std::string(KAV_DOCS_FOLDER) + "/guide.md");
    Page* page = &pages[""];
    bool isInItem = false;
    for (std::string line; std::getline(file, line);) {
      if (line.starts_with("## ")) page = &pages[line.substr(3)];
      page->text += line + '\n';
      isInItem = line.starts_with("- ") || (isInItem && line.starts_with("  "));
      if (line.starts_with("- ")) {
        page->items.push_back(line.substr(2));
      } else if (isInItem) {
        page->items.back() += line.substr(1);
      }
    }
    return pages;
  }();
  return kPages;
}
const Page& PageOf(GuidePage page) {
  return Pages().at(Narrow(HeadingOf(page)));
}

constexpr GuidePage kAllPages[] = {
    GuidePage::Scientific, GuidePage::Matrix, GuidePage::OneVariable, GuidePage::TwoVariable,
    GuidePage::Plotter,    GuidePage::Graph,  GuidePage::Converter,   GuidePage::OwnUnits,
    GuidePage::Macros,     GuidePage::Memory, GuidePage::Constants,   GuidePage::Settings};

TEST(GuidePages, EachHasAPictureThatIsThere) {
  EXPECT_EQ(Pages().size(), std::size(kAllPages) + 1);
  for (const GuidePage page : kAllPages) {
    // The plotter's and the graph's stand one below the other.
    const std::string& text = PageOf(page).text;
    std::size_t at = text.find("](images/");
    EXPECT_NE(at, std::string::npos) << Narrow(HeadingOf(page));
    for (; at != std::string::npos; at = text.find("](images/", at + 1)) {
      const std::string name = text.substr(at + 2, text.find(')', at) - at - 2);
      EXPECT_TRUE(std::filesystem::exists(std::string(KAV_DOCS_FOLDER) + "/" + name)) << name;
    }
  }
}

TEST(GuidePages, ItsPagesOfDocumentsAreThere) {
  for (const auto& [heading, page] : Pages()) {
    for (std::size_t at = page.text.find(".md)"); at != std::string::npos;
         at = page.text.find(".md)", at + 1)) {
      const std::size_t begin = page.text.rfind('(', at) + 1;
      const std::string name = page.text.substr(begin, at + 3 - begin);
      EXPECT_TRUE(std::filesystem::exists(std::string(KAV_DOCS_FOLDER) + "/" + name)) << name;
    }
  }
}

/// What an example says and what the calculator shows, if the item has the form of one.
struct Example {
  std::string said;
  std::string shown;
};

/// Has `exampleOf` try every item of `page`, of which at least `least` have to be examples.
void ExpectTrue(GuidePage page, int least,
                const std::function<std::optional<Example>(const Item&)>& exampleOf) {
  int examples = 0;
  for (const std::string& line : PageOf(page).items) {
    SCOPED_TRACE(line);
    const auto example = exampleOf(ItemOf(line));
    if (!example) continue;
    ++examples;
    EXPECT_TRUE(IsAsSaid(example->shown, example->said)) << example->shown;
  }
  EXPECT_GE(examples, least);
}

/// What stands behind " gives ".
std::optional<std::string> Given(const Item& item) {
  constexpr std::string_view kGives = " gives ";
  const std::string said = item.Said();
  if (!said.starts_with(kGives)) return std::nullopt;
  return said.substr(kGives.size());
}

/// "1 2; 3 4" as rows of words.
std::vector<Words> RowsOf(const std::string& text) {
  std::vector<Words> rows(1);
  bool isInside = false;
  for (const char c : text) {
    if (c == ';') rows.emplace_back();
    if (c == ';' || c == ' ') {
      isInside = false;
      continue;
    }
    if (!isInside) rows.back().emplace_back();
    isInside = true;
    rows.back().back() += c;
  }
  return rows;
}

class Scientific final : public test::Screen {
 public:
  void TestBody() override {}

  std::string Answer(const std::string& before, const std::string& expression) {
    const std::map<std::string, std::pair<int, int>> settings{{"", {1, 1}},
                                                              {"In degrees, ", {1, 1}},
                                                              {"In radians, ", {2, 1}},
                                                              {"In hexadecimal, ", {1, 2}},
                                                              {"In binary, ", {1, 3}},
                                                              {"In octal, ", {1, 4}}};
    EXPECT_TRUE(settings.contains(before)) << before;
    Set("Config", "Angle Type", settings.at(before).first);
    Set("Config", "Base Type", settings.at(before).second);
    Open();
    Evaluate(Widen(expression));
    return Narrow(Result());
  }
  void Define(const std::string& name, const std::string& formula) {
    test::StoreMacros(store_, {{name, kMacroTypeXY, formula}});
  }
};

TEST(GuidePages, ItsExpressionsGiveWhatItSays) {
  Scientific screen;
  ExpectTrue(GuidePage::Scientific, 23, [&](const Item& item) -> std::optional<Example> {
    const auto given = Given(item);
    EXPECT_TRUE(given && item.codes.size() == 1);
    return Example{given.value_or(""), screen.Answer(item.texts[0], item.codes[0])};
  });
}

TEST(GuidePages, ItsMacrosGiveWhatItSays) {
  Scientific screen;
  ExpectTrue(GuidePage::Macros, 2, [&](const Item& item) -> std::optional<Example> {
    if (item.texts[0] == "The macro ") {
      screen.Define(item.codes.at(0), item.codes.at(1));
      return std::nullopt;
    }
    return Example{Given(item).value_or(""), screen.Answer("", item.codes[0])};
  });
}

class Matrices final : public test::MatrixScreen {
 public:
  void TestBody() override {}

  void FillOne(const std::string& name, const std::string& cells) {
    ASSERT_TRUE(name == "[M1]" || name == "[M2]");
    Fill(name[2] - '1', Widen(cells));
  }
  std::string Answer(const std::string& expression) {
    EXPECT_EQ(Evaluate(Widen(expression)), u"");
    return Narrow(Table(3));
  }
};

TEST(GuidePages, ItsMatricesGiveWhatItSays) {
  Matrices screen;
  ExpectTrue(GuidePage::Matrix, 5, [&](const Item& item) -> std::optional<Example> {
    EXPECT_EQ(item.codes.size(), 2U);
    if (item.texts.at(1) == " is ") {
      screen.FillOne(item.codes[0], item.codes[1]);
      return std::nullopt;
    }
    EXPECT_EQ(item.texts[1], " gives ");
    return Example{item.codes[1], screen.Answer(item.codes[0])};
  });
}

template <class Model>
class Data final : public test::StatisticsFixture<Model> {
 public:
  void TestBody() override {}

  void Enter(const std::string& rows) {
    for (const Words& row : RowsOf(rows)) {
      if constexpr (std::is_same_v<Model, StatisticsModel>) {
        this->Add(Widen(row.at(0)), Widen(row.at(1)));
      } else {
        this->Add(Widen(row.at(0)), Widen(row.at(1)), u"1");
      }
    }
  }
  /// `before` is "" or such as "With 6 as X, ".
  std::string Answer(const std::string& before, const std::string& key) {
    if (before.starts_with("With ")) {
      const std::string value = before.substr(5, before.find(' ', 5) - 5);
      const bool isX = before.ends_with(" as X, ");
      EXPECT_TRUE(isX || before.ends_with(" as Y, "));
      this->Type(Widen(isX ? value : "0"), Widen(isX ? "0" : value), u"1");
    }
    // The captions have letters that are no ASCII.
    for (const StatisticsKeyRow& row : StatisticsKeyRows(this->model_->Shape())) {
      if (Narrow(row.caption) == key || ToBytes(row.caption) == key) {
        return Narrow(this->Result(row.caption));
      }
    }
    return "no such key";
  }

 private:
  static std::string ToBytes(std::u16string_view text) {
    std::string bytes;
    for (const char16_t c : text) {
      if (c < 0x80) {
        bytes += static_cast<char>(c);
      } else {
        bytes += static_cast<char>(0xC0 | (c >> 6));
        bytes += static_cast<char>(0x80 | (c & 0x3F));
      }
    }
    return bytes;
  }
};

template <class Model>
void ExpectStatistics(GuidePage page, int least, const std::string& introduction) {
  Data<Model> screen;
  ExpectTrue(page, least, [&](const Item& item) -> std::optional<Example> {
    EXPECT_EQ(item.codes.size(), 1U);
    if (item.texts[0] == introduction) {
      screen.Enter(item.codes[0]);
      return std::nullopt;
    }
    return Example{Given(item).value_or(""), screen.Answer(item.texts[0], item.codes[0])};
  });
}

TEST(GuidePages, ItsStatisticsGiveWhatItSays) {
  ExpectStatistics<StatisticsModel>(GuidePage::OneVariable, 5, "The data are ");
  ExpectStatistics<TwoVariableModel>(GuidePage::TwoVariable, 5, "The pairs are ");
}

TEST(GuidePages, ItsCurvesAreWhereItSays) {
  std::optional<GraphModel> graph;
  ExpectTrue(GuidePage::Graph, 3, [&](const Item& item) -> std::optional<Example> {
    if (item.codes.size() == 2) {
      graph.emplace(test::GraphOf({item.codes[0], item.codes[1]}));
      return std::nullopt;
    }
    // "At X = 1.6, the curves are at about 2.56 and 2.6"
    const std::string said = item.Said();
    const std::size_t comma = said.find(", the curves are at ");
    const std::size_t both = said.find(" and ");
    EXPECT_TRUE(said.starts_with("At X = ") && comma != std::string::npos);
    const auto reading = graph->Calculate(Widen(said.substr(7, comma - 7)));
    EXPECT_TRUE(reading && reading->lines.size() == 2);
    const std::string first = said.substr(comma + 20, both - comma - 20);
    const std::string about = first.starts_with("about ") ? "about " : "";
    const auto shown = [&](std::size_t curve) {
      const std::string line = Narrow(reading->lines.at(curve));
      return line.substr(line.find(" = ") + 3);
    };
    EXPECT_TRUE(IsAsSaid(shown(0), first)) << shown(0);
    return Example{about + said.substr(both + 5), shown(1)};
  });
}

int PlaceOf(const std::vector<std::u16string>& texts, std::string_view wanted) {
  const auto found = std::find(texts.begin(), texts.end(), Widen(wanted));
  EXPECT_NE(found, texts.end()) << wanted;
  return static_cast<int>(found - texts.begin());
}

TEST(GuidePages, ItsConversionsGiveWhatItSays) {
  MemorySettingsStore store;
  ExpectTrue(GuidePage::Converter, 3, [&](const Item& item) -> std::optional<Example> {
    // "26 Miles in `07. Length` are about 41.84 Kilometers"
    const std::string& from = item.texts.at(0);
    const std::string& to = item.texts.at(1);
    const std::size_t blank = from.find(' ');
    std::size_t unit = to.find(' ', 5);
    if (to.starts_with(" are about ")) unit = to.find(' ', 11);
    ConverterModel model(store, Widen(from.substr(0, blank)), {});
    EXPECT_FALSE(model.ChooseCategory(PlaceOf(model.Categories(), item.codes.at(0))));
    model.ChooseInput(PlaceOf(model.Inputs(), from.substr(blank + 1, from.size() - blank - 5)));
    model.ChooseOutput(PlaceOf(model.Outputs(), to.substr(unit + 1)));
    return Example{to.substr(5, unit - 5), Narrow(model.ShownResult())};
  });
}

}  // namespace
}  // namespace kav::guide_pages_test
