#include "line/key_help.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "common/number_text.h"
#include "line/key_state.h"
#include "line/screen_commands.h"
#include "matrix/matrix_keypad.h"
#include "plotter/plotter_keypad.h"
#include "statistics/statistics_menus.h"

namespace kav::key_help_test {
namespace {

template <class Rows>
std::vector<ListedKey> Listed(const Rows& rows) {
  std::vector<ListedKey> listed;
  for (const auto& row : rows) listed.push_back({CaptionsOf(row), row.shortcut});
  return listed;
}

const std::map<std::string, std::vector<ListedKey>>& AllPads() {
  static const std::map<std::string, std::vector<ListedKey>> kPads{
      {"scientific", Listed(KeyPlaces())},
      {"matrix", Listed(MatrixKeyRows())},
      {"plotter", Listed(PlotterKeyRows())},
      {"one variable", Listed(StatisticsKeyRows(DataShape::OneVariable))},
      {"two variables", Listed(StatisticsKeyRows(DataShape::TwoVariables))}};
  return kPads;
}

bool IsWordOrMark(char16_t c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
         std::u16string_view(u" ,.:-").find(c) != std::u16string_view::npos;
}

// "a: what" or "what": no sentence, no caption alone, no sign.
TEST(KeyHelp, EveryFaceOfEveryKeySaysInPlainWordsWhatItDoes) {
  for (const auto& [pad, keys] : AllPads()) {
    EXPECT_GE(keys.size(), 14U) << pad;
    for (const ListedKey& key : keys) {
      for (const FaceText& face : key.captions) {
        const std::u16string_view text = face.description;
        SCOPED_TRACE(pad + ' ' + Narrow(face.caption) + ": " + Narrow(text));
        EXPECT_TRUE(text.size() >= 8 && text.size() <= 70);
        EXPECT_TRUE(std::all_of(text.begin(), text.end(), IsWordOrMark));
        EXPECT_TRUE(text.find(u' ') != text.npos);
        EXPECT_TRUE((text.front() >= u'a' && text.front() <= u'z') || text.starts_with(u"10 ") ||
                    text.starts_with(u"X-"));
        EXPECT_NE(text.back(), u' ');
      }
    }
  }
}

TEST(KeyHelp, FacesWithDifferentWorkHaveDifferentWords) {
  for (const auto& [pad, keys] : AllPads()) {
    std::map<std::u16string_view, std::u16string_view> captions;
    for (const ListedKey& key : keys) {
      // The units, the bases and the models are chosen by one key each, whose work stays the same.
      const bool isChoice = key.captions.front().description == key.captions.back().description;
      const std::size_t faces = isChoice ? 1 : key.captions.size();
      for (std::size_t i = 0; i < faces; ++i) {
        const auto [known, isNew] =
            captions.emplace(key.captions[i].description, key.captions[i].caption);
        EXPECT_TRUE(isNew || known->second == key.captions[i].caption)
            << pad << ' ' << Narrow(key.captions[i].caption);
      }
    }
  }
}

TEST(KeyHelp, TipsHaveCaptionWorkAndShortcut) {
  const FaceText mac{u"Mac", u"write a call of one of your macros"};
  EXPECT_EQ(TipOf(mac, "Alt+A"), u"Mac: write a call of one of your macros (Alt+A)");
  EXPECT_EQ(TipOf(mac, ""), u"Mac: write a call of one of your macros");
  EXPECT_EQ(DescriptionOf(mac, "Alt+A"), u"write a call of one of your macros (Alt+A)");
  const KeyFace& face = FaceOf(Key::Macro, Face::Plain);
  EXPECT_EQ(face.caption, mac.caption);
  EXPECT_EQ(face.description, mac.description);
}

TEST(KeyHelp, TheListHasEveryShortcutAndEveryFaceOfEveryKey) {
  for (const auto& [pad, keys] : AllPads()) {
    const std::vector<KeyListRow> rows = ListOfKeys(keys);
    for (std::size_t i = 0; i < ScreenShortcuts().size(); ++i) {
      EXPECT_EQ(rows[i].key, u"");
      EXPECT_EQ(rows[i].text, ScreenShortcuts()[i].text);
    }
    for (const ListedKey& key : keys) {
      for (const FaceText& face : key.captions) {
        const auto found = std::find_if(rows.begin(), rows.end(), [&](const KeyListRow& row) {
          return row.text == face.description && row.shortcut == Widen(key.shortcut) &&
                 (u", " + row.key + u",").find(u", " + std::u16string(face.caption) + u",") !=
                     std::u16string::npos;
        });
        EXPECT_NE(found, rows.end()) << pad << ' ' << Narrow(face.caption);
      }
    }
  }
}

TEST(KeyHelp, TheListSaysOnceWhatCaptionsHaveInCommon) {
  const auto rows = ListOfKeys({{{{u"DEG", u"switch"}, {u"RAD", u"switch"}}, "Alt+D"},
                                {{{u"SIN", u"sine"}, {u"ASIN", u"angle"}}, ""},
                                {{{u"<<", u"shift"}, {u"<<", u"shift"}}, ""}});
  const std::vector<KeyListRow> own(rows.end() - 4, rows.end());
  EXPECT_EQ(own, (std::vector<KeyListRow>{{u"DEG, RAD", u"Alt+D", u"switch"},
                                          {u"SIN", u"", u"sine"},
                                          {u"ASIN", u"", u"angle"},
                                          {u"<<", u"", u"shift"}}));
}

TEST(KeyHelp, RowsAreFoundByTheirWordsInAnyOrderAndCase) {
  const std::vector<KeyListRow> rows{{u"SIN", u"", u"sine of an angle"},
                                     {u"ASIN", u"", u"angle of a sine"},
                                     {u"", u"Ctrl+Q", u"end the program"}};
  const auto found = [&rows](std::u16string_view sought) {
    std::u16string keys;
    for (const KeyListRow& row : Found(rows, sought)) keys += row.key + row.shortcut + u';';
    return keys;
  };
  EXPECT_EQ(found(u""), u"SIN;ASIN;Ctrl+Q;");
  EXPECT_EQ(found(u"  Angle SINE "), u"SIN;ASIN;");
  EXPECT_EQ(found(u"asin"), u"ASIN;");
  EXPECT_EQ(found(u"ctrl+q"), u"Ctrl+Q;");
  EXPECT_EQ(found(u"cosine"), u"");
}

}  // namespace
}  // namespace kav::key_help_test
