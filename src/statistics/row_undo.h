// What was done to the rows of a statistics screen, and how it is undone and redone.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <variant>

#include "statistics/data_list.h"
#include "statistics/row_buttons.h"

namespace kav {

/// What belongs to rows besides the list itself.
struct RowsBeside {
  bool isModified = false;
  std::optional<std::size_t> selected;
  std::optional<DataSorting> sorted;
  RowButtons buttons;
};

/// A row with texts of its own.
struct HeldRow {
  std::array<std::string, kMostVariables> values;
  std::optional<std::int32_t> count;
};

// What leads back from a change. `row` is where it was made.
struct PutRowBack {
  std::size_t row;
  HeldRow held;
};
struct TakeRowOut {
  std::size_t row;
};
struct RewriteRow {
  std::size_t row;
  HeldRow held;
};
struct TakeTopOut {
  std::size_t rows;
};
struct PutTopBack {
  DataList rows;
};
struct ReplaceRows {
  DataList rows;
};
using WayBack =
    std::variant<PutRowBack, TakeRowOut, RewriteRow, TakeTopOut, PutTopBack, ReplaceRows>;

/// The last kMostSteps changes, as long as the rows that they hold are at most those that a list
/// may have: the oldest go first, and their memory goes back to the machine.
class RowUndo {
 public:
  static constexpr std::size_t kMostSteps = 100;
  /// Lists of more rows are not held while another one is loaded.
  static constexpr std::size_t kMostBesideLoading = 1'000'000;

  RowUndo() = default;
  RowUndo(const RowUndo&) = delete;
  RowUndo& operator=(const RowUndo&) = delete;
  ~RowUndo() { Clear(); }

  /// A change was made, from which `back` leads back; `before` is what it found.
  void Keep(WayBack back, const RowsBeside& before);
  /// The rows were sorted: what the last steps changed is no longer at its place. What was deleted
  /// can still be put back.
  void AfterSorting();
  /// The rows are in a file, and those before and after a step are not.
  void AfterSaving();
  void BeforeLoading();
  void Clear();

  bool CanUndo() const { return !done_.empty(); }
  bool CanRedo() const { return !undone_.empty(); }
  /// Makes the last change of `list` undone, or done again. `beside` is taken and given. Answers
  /// why it is refused; then nothing changes. Does nothing if there is no change.
  std::optional<DataRefusal> Undo(DataList& list, RowsBeside& beside);
  std::optional<DataRefusal> Redo(DataList& list, RowsBeside& beside);

 private:
  struct Step {
    WayBack back;
    RowsBeside beside;
  };
  using Steps = std::deque<Step>;  ///< the last change at the end

  static std::optional<DataRefusal> Move(Steps& from, Steps& to, DataList& list,
                                         RowsBeside& beside);
  static void Drop(Steps& steps, std::size_t first, std::size_t last);
  std::size_t HeldRows() const;

  Steps done_;
  Steps undone_;
};

/// Row `row` of `list`, copied.
HeldRow HoldRow(const DataList& list, std::size_t row);

}  // namespace kav
