// Keys, menus and dialogs of the matrix screen.
#include <gtest/gtest.h>

#include "support/matrix_screen.h"
#include "support/stored_macros.h"
#include "support/temporary_folder.h"
#include "support/unit_places.h"

namespace kav::matrix_model_keys_test {
namespace {

using test::MatrixScreen;
using test::Places;
using test::PlacesOf;

TEST_F(MatrixScreen, WritingKeysEditTheLine) {
  struct Row {
    std::u16string_view caption;
    std::u16string_view before;
    std::u16string_view after;
  };
  for (const Row& row : {
           Row{u"7", u"1|2", u"17|2"},
           Row{u"00", u"1[2]3", u"100|3"},
           Row{u"Exp", u"1|", u"1E|"},
           Row{u"*", u"[1+2]", u"(1+2)*|"},
           Row{u"/", u"|", u"/|"},
           Row{u"Y^N", u"[1+2]", u"(1+2)^|"},
           Row{u"+", u"1[23]45", u"1234+|5"},
           Row{u"(...)", u"2*|", u"2*(|)"},
           Row{u"(...)", u"2*[3+4]", u"2*(3+4)|"},
           Row{u"BS", u"12|3", u"1|3"},
           Row{u"BS", u"|3", u"|3"},
           Row{u"BS", u"1[23]4", u"1|4"},
           Row{u"DEL", u"12|3", u"12|"},
           Row{u"DEL", u"1[23]4", u"1|4"},
           Row{u"CLR", u"1[23]4", u"|"},
       }) {
    SetMarked(row.before);
    EXPECT_TRUE(std::holds_alternative<Nothing>(Press(row.caption)));
    EXPECT_EQ(MarkedNow(), row.after) << Narrow(row.caption);
  }
}

TEST_F(MatrixScreen, MenuKeysOpenTheirMenus) {
  struct Row {
    std::u16string_view caption;
    MatrixKey key;
  };
  Evaluate(u"[M1]");
  for (const Row& row :
       {Row{u"F(X)", MatrixKey::Functions}, Row{u"Tools", MatrixKey::Tools},
        Row{u"MOpers", MatrixKey::Operations}, Row{u"MTools", MatrixKey::MatrixTools},
        Row{u"MVar", MatrixKey::Variables}, Row{u"MPB", MatrixKey::PlayBack}}) {
    const MatrixRequest request = Press(row.caption);
    const auto* show = std::get_if<ShowMenu<MatrixKey>>(&request);
    ASSERT_NE(show, nullptr) << Narrow(row.caption);
    EXPECT_EQ(show->key, row.key) << Narrow(row.caption);
  }
}

TEST_F(MatrixScreen, HistoryKeyWaitsForAFirstExpression) {
  EXPECT_TRUE(std::holds_alternative<Nothing>(Press(u"MPB")));
}

TEST_F(MatrixScreen, HistoryMenuShowsTheNewestOnTopCutToTwentyCharacters) {
  Evaluate(u"[M1]+[M2]");
  Evaluate(u"transpose([M1])+[M2]*2");
  EXPECT_EQ(model_->MenuOf(MatrixKey::PlayBack),
            (Menu{{2, u"transpose([M1])+[..."}, {1, u"[M1]+[M2]"}}));
  SetMarked(u"2*[3]");
  EXPECT_TRUE(std::holds_alternative<Nothing>(model_->Choose(MatrixKey::PlayBack, 2)));
  EXPECT_EQ(model_->Line().Text(), u"2*transpose([M1])+[M2]*2");
}

TEST_F(MatrixScreen, FunctionsEncloseTheSelection) {
  SetMarked(u"2*|");
  Choose(MatrixKey::Functions, u"sin");
  EXPECT_EQ(MarkedNow(), u"2*sin(|)");
  SetMarked(u"2*[30]");
  Choose(MatrixKey::Functions, u"frac");
  EXPECT_EQ(MarkedNow(), u"2*frac(30)|");
}

TEST_F(MatrixScreen, OperationsAreInsertedInPlaceOfTheSelection) {
  struct Row {
    std::u16string_view item;
    std::u16string_view text;
  };
  for (const Row& row :
       {Row{u"Inverse", u"2*inverse("}, Row{u"Transpose", u"2*transpose("},
        Row{u"Linear Equation", u"2*linearequation("}, Row{u"Determinant", u"2*determinant("},
        Row{u"Triangular", u"2*triangular("}}) {
    SetMarked(u"2*[3]");
    Choose(MatrixKey::Operations, row.item);
    EXPECT_EQ(model_->Line().Text(), row.text);
    EXPECT_TRUE(model_->Line().Selected().IsEmpty());
  }
}

TEST_F(MatrixScreen, NamesOfMatricesAreInserted) {
  for (const std::u16string_view name : {u"[M1]", u"[M2]", u"[M3]", u"[M Ans]"}) {
    SetMarked(u"2*|");
    Choose(MatrixKey::Variables, name);
    EXPECT_EQ(model_->Line().Text(), u"2*" + std::u16string(name));
  }
}

TEST_F(MatrixScreen, ItemsThatAMenuDoesNotOfferDoNothing) {
  SetMarked(u"1|");
  for (const MatrixKey menu : {MatrixKey::Functions, MatrixKey::Tools, MatrixKey::Operations,
                               MatrixKey::MatrixTools, MatrixKey::Variables, MatrixKey::PlayBack}) {
    for (const int id : {-1, 0, 17, 2147483647}) {
      EXPECT_TRUE(std::holds_alternative<Nothing>(model_->Choose(menu, id)));
    }
  }
  EXPECT_EQ(MarkedNow(), u"1|");
}

// Tools.

TEST_F(MatrixScreen, ConstantsAndVariablesAreAskedForAndInserted) {
  EXPECT_TRUE(std::holds_alternative<OpenConstants>(Choose(MatrixKey::Tools, u"Constants")));
  SetMarked(u"2*|");
  model_->TakeConstant(u"6.62607015e-34");
  EXPECT_EQ(MarkedNow(), u"2*6.62607015e-34|");
  EXPECT_TRUE(
      std::holds_alternative<RecallMemoryVariable>(Choose(MatrixKey::Tools, u"Recall MemVar")));
  SetMarked(u"2*[3]");
  model_->TakeVariable(u"1234567.50");
  EXPECT_EQ(MarkedNow(), u"2*1234567.5|");
  EXPECT_TRUE(std::holds_alternative<TellStop>(model_->TakeVariable(u"1e999")));
  EXPECT_EQ(MarkedNow(), u"2*1234567.5|");
}

ConverterInput InputOf(const MatrixRequest& request) {
  const auto* open = std::get_if<OpenConverter>(&request);
  return open == nullptr ? ConverterInput{u"no OpenConverter", {}, 0} : open->input;
}

TEST_F(MatrixScreen, ConverterGetsTheLastAnswerWithoutSeparators) {
  struct Row {
    std::u16string_view line;
    std::u16string_view value;
  };
  EXPECT_EQ(InputOf(Choose(MatrixKey::Tools, u"Converter")).value, u"1");
  for (const Row& row :
       {Row{u"1234.5*2", u"2469"}, Row{u"1-1", u"1"}, Row{u"3", u"3"}, Row{u"1/0", u"1"}}) {
    Evaluate(row.line);
    EXPECT_EQ(InputOf(Choose(MatrixKey::Tools, u"Converter")).value, row.value) << Narrow(row.line);
  }
}

TEST_F(MatrixScreen, ConverterGetsFloatingPointWhateverIsShown) {
  for (const std::int32_t type : {0, 1, 2, 3, 4}) {
    Set("Config", "Display Type", type);
    Open();
    Evaluate(u"12345.5");
    EXPECT_EQ(InputOf(Choose(MatrixKey::Tools, u"Converter")).value, u"12345.5") << type;
  }
}

TEST_F(MatrixScreen, ConverterGetsBackWhatItLeft) {
  Set("Convert", "ClassPos", 3);
  Set("Convert", "InputTypePos", 2);
  Set("Convert", "OutputTypePos", 1);
  Open();
  const ConverterInput first = InputOf(Choose(MatrixKey::Tools, u"Converter"));
  EXPECT_EQ(PlacesOf(first.positions), (Places{3, 2, 1}));
  EXPECT_EQ(first.memory, 0);
  SetMarked(u"2*[5]");
  model_->TakeConverter({u"39.37", {6, 1, 2}, 8});
  EXPECT_EQ(MarkedNow(), u"2*39.37|");
  const ConverterInput second = InputOf(Choose(MatrixKey::Tools, u"Converter"));
  EXPECT_EQ(PlacesOf(second.positions), (Places{6, 1, 2}));
  EXPECT_EQ(second.memory, 8);
}

TEST_F(MatrixScreen, MacroOpensTheEditorWhereThereIsNone) {
  const MatrixRequest request = Choose(MatrixKey::Tools, u"Macro");
  const auto* editor = std::get_if<OpenMacroEditor>(&request);
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->message, u"Not exist saved macro");
}

TEST_F(MatrixScreen, MacroIsChosenFromTheListAndCalled) {
  test::StoreMacros(store_, {{"F", "TYPE2 : F(X,Y)", "x+y"}});
  EXPECT_TRUE(std::holds_alternative<OpenMacroList>(Choose(MatrixKey::Tools, u"Macro")));
  SetMarked(u"[2]");
  model_->TakeMacro(0);
  EXPECT_EQ(MarkedNow(), u"M:F(2 , )|");
}

// Matrix tools.

TEST_F(MatrixScreen, AnswerLacksToolsAndKeysThatWouldReplaceIt) {
  model_->Show(3);
  for (const MenuItem& item : model_->MenuOf(MatrixKey::MatrixTools)) {
    EXPECT_NE(item.text, u"M Cut");
    EXPECT_NE(item.text, u"M Paste");
    EXPECT_NE(item.text, u"M Load");
  }
  EXPECT_FALSE(IsEnabled(MatrixKey::ClearCells));
  EXPECT_FALSE(IsEnabled(MatrixKey::Size));
  EXPECT_TRUE(std::holds_alternative<Nothing>(Press(u"M CLS")));
  constexpr int kCut = 1;
  constexpr int kLoad = 5;
  Fill(3, u"7");
  EXPECT_TRUE(std::holds_alternative<Nothing>(model_->Choose(MatrixKey::MatrixTools, kLoad)));
  model_->Choose(MatrixKey::MatrixTools, kCut);
  EXPECT_EQ(Table(3), u"7");
}

TEST_F(MatrixScreen, MatrixIsCutCopiedAndPastedWithItsWidths) {
  Fill(0, u"1 2; 3 4");
  model_->SetColumnWidths(UniformWidths(33));
  Tool(u"M Cut");
  EXPECT_EQ(Shown(), u"_ _; _ _");
  model_->Show(1);
  Tool(u"M Paste");
  EXPECT_EQ(Shown(), u"1 2; 3 4");
  EXPECT_EQ(model_->Widths(), UniformWidths(33));
  model_->SetCell(0, 0, u"9");
  Tool(u"M Copy");
  EXPECT_EQ(Shown(), u"9 2; 3 4");
  model_->Show(2);
  Tool(u"M Paste");
  EXPECT_EQ(Shown(), u"9 2; 3 4");
}

TEST_F(MatrixScreen, AnswerCanBeCopied) {
  Fill(0, u"5");
  Evaluate(u"[M1]*2");
  Tool(u"M Copy");
  model_->Show(1);
  Tool(u"M Paste");
  EXPECT_EQ(Shown(), u"10");
}

TEST_F(MatrixScreen, EmptyMatrixClipboardIsNotPasted) {
  Fill(0, u"1 2");
  Tool(u"M Paste");
  EXPECT_EQ(Shown(), u"1 2");
}

TEST_F(MatrixScreen, InvalidMatrixIsNotSaved) {
  const std::u16string_view told[] = {u"Matrix [M1] is invalid", u"Matrix [M2] is invalid",
                                      u"Matrix [M3] is invalid", u"Matrix [M Ans] is invalid"};
  for (int index = 0; index < 4; ++index) {
    model_->Show(index);
    EXPECT_EQ(Told(Tool(u"M Save")), told[index]);
  }
}

TEST_F(MatrixScreen, MatrixIsSavedAndLoadedThroughFiles) {
  const TemporaryFolder folder;
  Fill(0, u"1 2 3; 4 5 6");
  EXPECT_TRUE(std::holds_alternative<AskSaveFile>(Tool(u"M Save")));
  EXPECT_EQ(model_->SaveTo(folder.File("m.txt")), std::nullopt);
  EXPECT_EQ(FileContent(folder.File("m.txt")), "[2*3]\r\n1\t2\t3\r\n4\t5\t6\r\n");
  model_->Show(2);
  EXPECT_TRUE(std::holds_alternative<AskLoadFile>(Tool(u"M Load")));
  EXPECT_EQ(model_->LoadFrom(folder.File("m.txt")), std::nullopt);
  EXPECT_EQ(Table(2), u"1 2 3; 4 5 6");
  EXPECT_EQ(model_->LoadFrom(folder.File("none.txt")),
            Widen(folder.File("none.txt")) + u" is invalid.");
  EXPECT_EQ(Table(2), u"1 2 3; 4 5 6");
}

TEST_F(MatrixScreen, WidthsBelongToTheShownMatrix) {
  model_->SetColumnWidths(UniformWidths(33));
  model_->Show(3);
  EXPECT_EQ(model_->Widths(), UniformWidths(60));
  EXPECT_TRUE(std::holds_alternative<AutofitColumns>(Tool(u"Autofit Col Width")));
  model_->SetColumnWidths(UniformWidths(44));
  model_->Show(0);
  EXPECT_EQ(model_->Widths(), UniformWidths(33));
  Tool(u"Reset Col Width");
  EXPECT_EQ(model_->Widths(), UniformWidths(60));
  model_->Show(3);
  EXPECT_EQ(model_->Widths(), UniformWidths(44));
}

TEST_F(MatrixScreen, CopiedAndPastedCellsUndoAndRedoThroughTheScreen) {
  Fill(0, u"1 2; 3 4");
  const std::u16string copied = model_->CopyCells({0, 0, 0, 0});
  EXPECT_EQ(copied, u"1\t2\n3\t4");
  model_->Show(1);
  EXPECT_EQ(model_->PasteCells(0, 0, copied + u"\n5"), std::nullopt);
  EXPECT_EQ(Shown(), u"1 2 _; 3 4 _; 5 _ _");
  model_->Show(2);
  model_->Undo();
  EXPECT_EQ(model_->Shown(), 1);
  EXPECT_EQ(Shown(), u"_ _ _; _ _ _; _ _ _");
  model_->Redo();
  EXPECT_EQ(Shown(), u"1 2 _; 3 4 _; 5 _ _");
}

}  // namespace
}  // namespace kav::matrix_model_keys_test
