#include "statistics/row_buttons.h"

namespace kav {
namespace {

/// A single row has no spread to show.
constexpr std::size_t kRowsForResults = 2;

}  // namespace

bool RowButtons::Allow(StatisticsKey key) const {
  switch (key) {
    case StatisticsKey::Add:
    case StatisticsKey::Ok:
    case StatisticsKey::Cancel:
    case StatisticsKey::Load:
    case StatisticsKey::MemoryMenu:
      return true;
    case StatisticsKey::Edit:
    case StatisticsKey::Delete:
      return ofSelection_;
    case StatisticsKey::Clear:
    case StatisticsKey::Save:
      return ofRows_;
    default:
      return ofResults_;
  }
}

void RowButtons::AfterInserting(std::size_t before, std::size_t now) {
  if (before < 1 && now >= 1) ofRows_ = true;
  if (before < kRowsForResults && now >= kRowsForResults) ofResults_ = true;
}

void RowButtons::AfterErasing(std::size_t now) {
  if (now == kRowsForResults - 1) ofResults_ = false;
  if (now == 0) ofRows_ = false;
}

void RowButtons::AfterEditing() {
  ofSelection_ = true;
  ofRows_ = true;
}

void RowButtons::AfterLoading(std::size_t complete) {
  ofSelection_ = false;
  ofRows_ = complete >= 1;
  ofResults_ = complete >= kRowsForResults;
}

}  // namespace kav
