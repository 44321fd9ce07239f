// The lines that were evaluated, and their answers.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "display/number_format.h"
#include "engine/calc_modes.h"
#include "settings/keys.h"
#include "settings/settings_store.h"

namespace kav {

/// Where a history is stored: a count, and the entries under keys that are numbered from `first`
/// on.
struct HistoryKeys {
  IntegerKey count;
  NumberedKey (*entry)(int number);
  int first;
};

inline constexpr HistoryKeys kCalculatorHistory{kCalHistoryCount, CalHistoryEntry, 1};
inline constexpr HistoryKeys kMatrixHistory{kCalMHistoryCount, CalMHistoryEntry, 0};
inline constexpr HistoryKeys kPlotterHistory{kGrapHistoryCount, GrapHistoryEntry, 1};

/// Up to 20 texts, the newest last. An expression is kept as typed; an answer is "=", a base tag
/// such as "[D]", and the number as it was shown.
class History {
 public:
  static constexpr std::size_t kCapacity = 20;
  /// The most bytes that are stored: pasted megabytes must not fill the settings, which are limited
  /// and written at each "=".
  static constexpr std::size_t kMostStored = std::size_t{1} << 20U;

  /// The stored entries. A stored count outside 0 to kCapacity counts as the nearer of the two.
  static History Load(const SettingsStore& store, const HistoryKeys& keys);
  /// Stores the entries; of those beyond kMostStored the newest that fit.
  void Save(SettingsStore& store, const HistoryKeys& keys) const;

  bool IsEmpty() const { return entries_.empty(); }
  /// Oldest first.
  const std::vector<std::u16string>& Entries() const { return entries_; }
  bool NewestIs(std::u16string_view text) const;

  /// Adds `text` unless it equals the newest entry; the oldest makes room for it.
  void Add(std::u16string text);

 private:
  std::vector<std::u16string> entries_;
};

/// The entry for an answer that was shown as `shown` in `base`.
std::u16string AnswerEntry(std::u16string_view shown, BaseMode base);

/// What choosing `entry` inserts. An expression is inserted as it stands. An answer is read in the
/// base of its tag, and inserted as InsertedNumber writes it in `base`.
std::u16string EntryInsertion(std::u16string_view entry, DisplayFormat format, BaseMode base);

/// `entry` as a menu shows it: at most 20 characters.
std::u16string EntryLabel(std::u16string_view entry);

}  // namespace kav
