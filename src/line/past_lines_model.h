// The history of all sessions without its pixels: what is found, and what is done with a line.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "display/number_format.h"
#include "engine/calc_modes.h"
#include "settings/past_lines.h"
#include "settings/settings_store.h"

namespace kav {

/// What "=" made of `line` in `base`; `answer` is empty if it failed.
PastLine MakePastLine(PastOrigin origin, std::u16string_view line, std::u16string_view answer,
                      BaseMode base);

/// Adds `line` to `lines`, unless the user wants none to be kept.
void KeepPastLine(PastLines& lines, const SettingsStore& store, PastLine line);

/// The lines of `room` as they were typed, the newest last.
std::vector<std::u16string> TypedLinesOf(PastLines& lines, PastRoom room);

/// Those of `own`, the lines of one screen, that are not among `all`, and then these: an earlier
/// version kept only the former.
std::vector<std::u16string> Joined(std::vector<std::u16string> own,
                                   const std::vector<std::u16string>& all);

/// Whether the answer of `past` is a number that can be inserted.
bool HasNumber(const PastLine& past);
/// The answer of `past`, which must have a number, as the line of a screen in `base` takes it: in
/// the way of an answer that the 20 entries of a screen hold.
std::u16string AnswerInsertion(const PastLine& past, DisplayFormat format, BaseMode base);

/// A past line as a row shows it.
struct PastRow {
  std::u16string line;
  std::u16string answer;
  std::u16string_view tag;  ///< of the base, if that is not decimal
};

/// The lines of one room, the newest first, and those among them that hold a text. Lines and store
/// must outlive it.
class PastLinesModel {
 public:
  /// Reads nothing before the first Load.
  PastLinesModel(PastLines& lines, SettingsStore& store, PastRoom room);

  /// Takes over what was added, by this process or another one.
  void Load();
  /// Only lines that hold `text`, or whose answers do, count from now on; all for an empty one.
  /// Small letters and capitals are the same.
  void Search(std::u16string_view text);

  // What was found.
  std::size_t Count() const { return found_.size(); }
  const PastLine& At(std::size_t row) const { return found_[row]; }
  PastRow Row(std::size_t row) const;
  /// All of a row, however long; with line breaks.
  std::u16string Tip(std::size_t row) const;
  /// What to show if nothing was found.
  std::u16string_view WhyNone() const;

  // Deleting.
  void Delete(std::size_t row);
  bool CanUndo() const { return !deleted_.empty(); }
  /// Puts the line that was deleted last back, and answers its row; nullopt if it is not found.
  std::optional<std::size_t> Undo();
  bool CanClear() const { return !all_.empty(); }
  std::u16string ClearQuestion() const;
  void Clear();

  // Whether lines are kept.
  bool IsKept() const;
  void Keep();
  /// No line is kept from now on. If there are any, the answer is a question: on Yes, Clear.
  std::optional<std::u16string> KeepNone();

 private:
  void Find();

  PastLines& lines_;
  SettingsStore& store_;
  PastRoom room_;
  std::string sought_;           ///< in small letters
  std::vector<PastLine> all_;    ///< the newest first
  std::vector<PastLine> found_;  ///< of these
  std::vector<PastLine> deleted_;
};

}  // namespace kav
