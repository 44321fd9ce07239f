// The editor where the library for line editing is missing. With it, prompt_test types at a
// terminal.
#include "cli/line_editor.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "support/temporary_folder.h"

namespace kav::line_editor_test {
namespace {

TEST(LineEditor, WithoutTheLibraryLinesAreReadAsTheyCome) {
  const TemporaryFolder folder;
  const std::string typed = folder.File("typed");
  PutFile(typed, "1+1\n\n2*3");
  ASSERT_NE(std::freopen(typed.c_str(), "r", stdin), nullptr);
  LineEditor editor([](std::string_view) { return Completion(); }, "libno-such-library.so.0");
  std::string line;
  EXPECT_EQ(editor.Read(line, "> "), LineEditor::Outcome::Line);
  EXPECT_EQ(line, "1+1");
  editor.Remember(line);
  EXPECT_EQ(editor.Read(line, "> "), LineEditor::Outcome::Line);
  EXPECT_EQ(line, "");
  EXPECT_EQ(editor.Read(line, "> "), LineEditor::Outcome::Line);
  EXPECT_EQ(line, "2*3") << "the last line needs no end";
  EXPECT_EQ(editor.Read(line, "> "), LineEditor::Outcome::End);
}

}  // namespace
}  // namespace kav::line_editor_test
