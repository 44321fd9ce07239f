// The editor of the user's own conversions: browsing, editing, what it refuses, and what it stores.
#include "screens/converter/user_conversion_dlg.h"

#include <gtest/gtest.h>

#include <QTimer>

#include "converter/user_conversions.h"
#include "screens/dialog_layout.h"
#include "screens/offer_driver.h"
#include "screens/user_conversion_driver.h"
#include "store/user_settings_store.h"
#include "support/processor_time.h"
#include "support/temporary_folder.h"

namespace kav::test::user_conversion_dlg_test {
namespace {

const std::u16string kMaximum = u"Maximum of user-define unit convert is 60";

using UserConversionDlgTest = UserConversionDriver;

TEST_F(UserConversionDlgTest, BrowsesWithTheFieldsDisabled) {
  StoreThree();
  Open([this] {
    EXPECT_EQ(Dlg().windowTitle(), "Edit Unit Convert");
    EXPECT_EQ(Fields(), "inch|cm|2.54");
    for (const QLineEdit* field : {&Source(), &Target(), &Rate()}) {
      EXPECT_FALSE(field->isEnabled());
    }
    EXPECT_TRUE(List().isEnabled());
    EXPECT_TRUE(HasFocus(List()));
    EXPECT_EQ(List().currentRow(), 0);
    EXPECT_EQ(Labels(), (Texts{u"inch -> cm", u"mile -> km", u"h -> s"}));
    EXPECT_EQ(Buttons(), (Texts{u"New", u"Edit", u"Delete", u"Close"}));
  });
}

TEST_F(UserConversionDlgTest, EditsWithTheListDisabledAndItsButtonsHidden) {
  StoreThree();
  Open([this] {
    Tap(u"Edit");
    for (const QLineEdit* field : {&Source(), &Target(), &Rate()}) {
      EXPECT_TRUE(field->isEnabled());
    }
    EXPECT_FALSE(List().isEnabled());
    EXPECT_TRUE(HasFocus(Rate()));
    EXPECT_EQ(Buttons(), (Texts{u"MEM", u"Save", u"Cancel"}));
  });
}

TEST_F(UserConversionDlgTest, ItsCaptionsAreShown) {
  StoreThree();
  Open([this] {
    for (const auto* caption : {u"->", u"Rate", u"List(3/60)"}) EXPECT_TRUE(Shows(caption));
    EXPECT_EQ(List().accessibleName(), "Unit converts");
  });
}

TEST_F(UserConversionDlgTest, WithoutConversionsOnlyNewCanBeginOne) {
  Open([this] {
    EXPECT_EQ(Buttons(), (Texts{u"New", u"Close"}));
    EXPECT_TRUE(Shows(u"List(0/60)"));
    EXPECT_EQ(Fields(), "||0");
    EXPECT_TRUE(HasFocus(*FindKey(Dlg(), u"New")));
    Press(Qt::Key_Return);
    EXPECT_TRUE(IsEditing());
    EXPECT_TRUE(HasFocus(Source()));
  });
}

TEST_F(UserConversionDlgTest, WithSixtyNewIsHidden) {
  StoreConversions(store_, NumberedConversions(60));
  Open([this] {
    EXPECT_EQ(Buttons(), (Texts{u"Edit", u"Delete", u"Close"}));
    EXPECT_TRUE(Shows(u"List(60/60)"));
    EXPECT_EQ(Delete(QMessageBox::Yes), u"");
    EXPECT_EQ(Buttons(), (Texts{u"New", u"Edit", u"Delete", u"Close"}));
    EXPECT_TRUE(Shows(u"List(59/60)"));
  });
}

TEST_F(UserConversionDlgTest, WithSixtyAnEditIsRefused) {
  StoreConversions(store_, NumberedConversions(60));
  Open([this] {
    Tap(u"Edit");
    Rate().setText("5");
    EXPECT_EQ(RefusedSave(), kMaximum);
    EXPECT_EQ(Fields(), "a0|b0|5");
    EXPECT_TRUE(IsEditing());
  });
  EXPECT_EQ(StoredConversions(store_), NumberedConversions(60));
}

TEST_F(UserConversionDlgTest, The61stIsRefused) {
  StoreConversions(store_, NumberedConversions(59));
  Open([this] {
    Tap(u"New");
    ASSERT_TRUE(SaveConversion({u"theirs", u"x", u"1"}, std::nullopt, store_));
    Fill("mine", "x", "1");
    EXPECT_EQ(RefusedSave(), kMaximum);
    EXPECT_EQ(Fields(), "mine|x|1");
    Tap(u"Cancel");
    EXPECT_TRUE(Shows(u"List(60/60)"));
  });
  EXPECT_EQ(StoredConversions(store_).size(), 60U);
}

TEST_F(UserConversionDlgTest, TheListChoosesWhatIsShown) {
  StoreThree();
  Open([this] {
    SelectInList(2);
    EXPECT_EQ(Fields(), "h|s|3600");
    Press(Qt::Key_Up);
    EXPECT_EQ(Fields(), "mile|km|1.609344");
    QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::ControlModifier, PlaceOf(1));
    EXPECT_EQ(Fields(), "||0");
    EXPECT_EQ(Buttons(), (Texts{u"New", u"(Edit)", u"(Delete)", u"Close"}));
  });
}

TEST_F(UserConversionDlgTest, AnEditedOneIsReplaced) {
  StoreThree();
  Open([this] {
    SelectInList(1);
    Tap(u"Edit");
    Fill("yard", "m", "0.9144");
    Tap(u"Save");
    EXPECT_EQ(Labels(), (Texts{u"inch -> cm", u"yard -> m", u"h -> s"}));
    EXPECT_EQ(List().currentRow(), 1);
  });
  EXPECT_EQ(StoredConversions(store_),
            (Conversions{kThree[0], {"yard -> m", "0.9144"}, kThree[2]}));
}

TEST_F(UserConversionDlgTest, TheSamePairIsRefusedAnewAndAllowedToItsOwnEdit) {
  StoreThree();
  Open([this] {
    Tap(u"New");
    Fill("inch", "cm", "2.5");
    EXPECT_EQ(RefusedSave(), u"inch -> cm exists already.");
    Tap(u"Cancel Edit");
    Fill("inch", "cm", "2.5");
    Tap(u"Save");
    EXPECT_FALSE(IsEditing());
  });
  EXPECT_EQ(StoredConversion(store_, 0), (UserConversion{"inch -> cm", "2.5"}));
}

TEST_F(UserConversionDlgTest, EachRefusalHasItsMessageAndItsField) {
  StoreThree();
  enum Field { kSource, kTarget, kRate };
  struct Row {
    const char* source;
    const char* target;
    const char* rate;
    std::u16string_view message;
    Field field;
  };
  const std::u16string_view empty = u"Please, Input a unit name";
  const std::u16string_view arrow = u"Invalid unit name.";
  const std::u16string_view rate = u"Invalid convert rate";
  const Row rows[] = {
      {"", "b", "1", empty, kSource},
      {"   ", "", "0", empty, kSource},
      {"a", "", "1", empty, kTarget},
      {"a->", "  ", "1", empty, kTarget},
      {"m->s", "b", "1", arrow, kSource},
      {"a", "m->s", "1", arrow, kTarget},
      {"h", "s", "0", u"h -> s exists already.", kSource},
      {" h ", " s ", "1", u"h -> s exists already.", kSource},
      {"a", "b", "", rate, kRate},
      {"a", "b", "0", rate, kRate},
      {"a", "b", "0.0", rate, kRate},
      {"a", "b", "1e-999", rate, kRate},
      {"a", "b", "1e999", rate, kRate},
      {"a", "b", "inf", rate, kRate},
      {"a", "b", "nan", rate, kRate},
      {"a", "b", "0x10", rate, kRate},
      {"a", "b", "1,000,00", rate, kRate},
      {"a", "b", "1/3", rate, kRate},
      {"a", "b", "1234567890123456789012345678901", rate, kRate},
  };
  Open([&, this] {
    Tap(u"Edit");
    for (const Row& row : rows) {
      Fill(row.source, row.target, row.rate);
      const std::string typed = Fields();
      EXPECT_EQ(RefusedSave(), row.message);
      QWidget* const fields[] = {&Source(), &Target(), &Rate()};
      EXPECT_TRUE(HasFocus(*fields[row.field])) << typed;
      EXPECT_TRUE(IsEditing());
      EXPECT_EQ(Fields(), typed);
    }
  });
  EXPECT_EQ(StoredConversions(store_), kThree);
}

TEST_F(UserConversionDlgTest, ARateOfAnyMagnitudeIsStoredAsTyped) {
  Open([this] {
    for (const char* rate : {"1e-300", "-1E+300", "+0.0000001", ".5"}) {
      Tap(u"New");
      Fill(rate, "x", rate);
      Tap(u"Save");
      EXPECT_FALSE(IsEditing()) << rate;
    }
  });
  EXPECT_EQ(StoredConversions(store_), (Conversions{{"1e-300 -> x", "1e-300"},
                                                    {"-1E+300 -> x", "-1E+300"},
                                                    {"+0.0000001 -> x", "+0.0000001"},
                                                    {".5 -> x", ".5"}}));
}

TEST_F(UserConversionDlgTest, ARateIsStoredInItsOwnSpelling) {
  Open([this] {
    for (const char* rate : {"1,000,000.5", "1’000", "1,5"}) {
      Tap(u"New");
      Fill(rate, "x", rate);
      Tap(u"Save");
    }
    EXPECT_EQ(Asked(Dlg()), "15 or 1.5?");
    TapOffer(Dlg(), "1.5");
    EXPECT_FALSE(IsEditing());
  });
  EXPECT_EQ(StoredConversions(store_),
            (Conversions{
                {"1,000,000.5 -> x", "1000000.5"}, {"1’000 -> x", "1000"}, {"1,5 -> x", "1.5"}}));
}

TEST_F(UserConversionDlgTest, NamesOfTenThousandCharactersAreKeptInFull) {
  const QString source(10000, 's');
  const QString target(10000, 't');
  const std::string stored = (source + " -> " + target).toStdString();
  const ProcessorTime time;
  Open([&, this] {
    Tap(u"New");
    Fill(source, target, "2");
    Tap(u"Save");
    EXPECT_EQ(Source().text(), source);
    EXPECT_EQ(Target().text(), target);
    Tap(u"Edit");
    Rate().setText("3");
    Tap(u"Save New");
    Fill(source, target, "2");
    EXPECT_EQ(RefusedSave(), std::u16string(200, u's') + u"…" + u" exists already.");
    Tap(u"Cancel");
    Delete(QMessageBox::No);
  });
  EXPECT_LT(time.Milliseconds(), 3000);
  EXPECT_EQ(StoredConversions(store_), (Conversions{{stored, "3"}}));
}

TEST_F(UserConversionDlgTest, DeletingMovesTheRestUpAndRewritesTheirRates) {
  StoreThree();
  Open([this] {
    SelectInList(1);
    EXPECT_EQ(Delete(QMessageBox::No), u"");
    EXPECT_EQ(Labels().size(), 3U);
    Delete(QMessageBox::Yes);
    EXPECT_EQ(Labels(), (Texts{u"inch -> cm", u"h -> s"}));
    EXPECT_EQ(Fields(), "h|s|3600.000000");
    EXPECT_EQ(List().currentRow(), 1);
    EXPECT_TRUE(HasFocus(List()));
    EXPECT_TRUE(Shows(u"List(2/60)"));
  });
  EXPECT_EQ(StoredConversions(store_),
            (Conversions{{"inch -> cm", "2.540000"}, {"h -> s", "3600.000000"}}));
  EXPECT_EQ(StoredConversion(store_, 2), kThree[2]) << "what lies behind the count is left alone";
}

TEST_F(UserConversionDlgTest, BeforeRatesLoseDigitsTheQuestionNamesThem) {
  StoreConversions(store_, {{"a -> b", "1"}, {"c -> d", "0.0000001"}, {"e -> f", "1.23456789"}});
  Open([this] {
    EXPECT_EQ(Delete(QMessageBox::No),
              u"All rates will be stored with six decimals. These will lose digits:\n"
              u"c -> d\ne -> f");
    EXPECT_EQ(StoredConversion(store_, 1).rateText, "0.0000001");
    Delete(QMessageBox::Yes);
    EXPECT_EQ(Fields(), "c|d|0.000000");
    EXPECT_EQ(Delete(QMessageBox::No), u"");
  });
  EXPECT_EQ(StoredConversions(store_),
            (Conversions{{"c -> d", "0.000000"}, {"e -> f", "1.234568"}}));
}

TEST_F(UserConversionDlgTest, TheLongestQuestionIsNoHigherThanTheScreen) {
  Conversions conversions = NumberedConversions(60);
  for (auto& conversion : conversions) {
    conversion = {"kilometers per hour " + conversion.text + " of miles per hour", "1e-9"};
  }
  StoreConversions(store_, conversions);
  for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(1080, 1440)}) {
    SCOPED_TRACE(size.width());
    Show(screen_, size);
    Open([&, this] {
      BoxWatch::Instance().Expect(QMessageBox::NoButton);
      QTimer::singleShot(50, &Dlg(), [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_LE(box->height(), size.height());
        box->reject();
      });
      Tap(u"Delete");
      const auto seen = BoxWatch::Instance().TakeSeen();
      ASSERT_EQ(seen.size(), 1U);
      EXPECT_TRUE(seen[0].more.ends_with(u"\nand 54 more"));
    });
  }
}

TEST_F(UserConversionDlgTest, AfterTheLastDeletionOneBeginsAnew) {
  StoreConversions(store_, NumberedConversions(1));
  Open([this] {
    Delete(QMessageBox::Yes);
    EXPECT_EQ(Fields(), "||0");
    EXPECT_EQ(Buttons(), (Texts{u"New", u"Close"}));
    EXPECT_TRUE(HasFocus(*FindKey(Dlg(), u"New")));
  });
}

TEST_F(UserConversionDlgTest, AMemoryVariableReplacesTheRate) {
  store_.Set(NumberedKey{"MemoryVar", "Var1", "0"}, "-1.50e3");
  Open([this] {
    Tap(u"New");
    Fill("a", "b", "123");
    BoxWatch::Instance().ExpectDialog([](QDialog& memory) { memory.reject(); });
    Tap(u"MEM");
    EXPECT_EQ(Fields(), "a|b|123");
    BoxWatch::Instance().ExpectDialog([](QDialog& memory) {
      memory.findChild<QListWidget*>()->setCurrentRow(1);
      test::Tap(memory, u"Recall");
    });
    Tap(u"MEM");
    EXPECT_EQ(Fields(), "a|b|-1.50e3");
    EXPECT_TRUE(HasFocus(Rate()));
    Tap(u"Save");
  });
  EXPECT_EQ(StoredConversion(store_, 0), (UserConversion{"a -> b", "-1.50e3"}));
}

TEST_F(UserConversionDlgTest, ItSharesTheSettingsWithOtherPrograms) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  UserSettingsStore own(path);
  UserSettingsStore other(path);
  EXPECT_TRUE(LoadUserConversions(own).empty());
  ASSERT_TRUE(SaveConversion({u"theirs", u"x", u"1e-9"}, std::nullopt, other));
  Open(own, [&, this] {
    EXPECT_EQ(Labels(), Texts{u"theirs -> x"});
    Tap(u"New");
    ASSERT_TRUE(SaveConversion({u"second", u"x", u"2"}, std::nullopt, other));
    Fill("mine", "x", "3");
    Tap(u"Save");
    EXPECT_EQ(Labels(), (Texts{u"theirs -> x", u"second -> x", u"mine -> x"}));
    ASSERT_TRUE(SaveConversion({u"last", u"x", u"1e-8"}, std::nullopt, other));
    EXPECT_TRUE(Delete(QMessageBox::No).ends_with(u"theirs -> x\nlast -> x"));
    ASSERT_TRUE(RemoveConversion({2, "mine -> x"}, other));
    Tap(u"Delete");
    EXPECT_EQ(Labels().size(), 3U) << "what is gone is not asked about";
  });
}

TEST_F(UserConversionDlgTest, EverythingHasRoomAtEverySize) {
  const std::string wide(300, 'W');
  Conversions conversions = NumberedConversions(59);
  conversions[1] = {wide + " -> " + wide, "1e-300"};
  StoreConversions(store_, conversions);
  for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(1080, 1440), QSize(180, 240)}) {
    SCOPED_TRACE(size.width());
    Show(screen_, size);
    Open([&, this] {
      EXPECT_EQ(Dlg().size(), size);
      ExpectRoomForAll(Dlg());
      SelectInList(1);
      Tap(u"Edit");
      QCoreApplication::processEvents();
      ExpectRoomForAll(Dlg());
      EXPECT_GE(List().viewport()->height(), 2 * List().sizeHintForRow(0));
      for (const QLineEdit* field : {&Source(), &Target(), &Rate()}) {
        EXPECT_GE(field->width(), 4 * field->fontMetrics().horizontalAdvance('W'));
      }
    });
  }
}

}  // namespace
}  // namespace kav::test::user_conversion_dlg_test
