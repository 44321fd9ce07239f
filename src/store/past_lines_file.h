// The past lines in a file that windows and prompts share.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "settings/file_error.h"
#include "settings/past_lines.h"
#include "store/user_settings_store.h"

namespace kav {

/// Nothing of the disk is touched before a call needs it. Several processes may use one file at the
/// same time: each adds and changes while it holds the lock of the file's folder, and what is read
/// is at any moment whole. A symbolic link stays one. A line that cannot be kept yet is one of the
/// past lines all the same, and each later call tries again.
class PastLinesFile final : public PastLines {
 public:
  /// The files of this user.
  explicit PastLinesFile(StoreUser user);
  /// The file `path`, which is made when the first line is added; empty: there is no place for it.
  /// The lines in `old`, a plain text that prompts once kept, are taken over while the file `path`
  /// holds nothing yet, and `old` is removed.
  PastLinesFile(std::string path, std::string old, StoreUser user);

  std::vector<PastLine> Of(PastRoom room) override;
  /// Keeps `line` before it returns, unless another process has the lock and this is a window,
  /// which does not wait.
  void Add(PastLine line) override;
  bool Remove(std::int64_t id) override;
  bool PutBack(const PastLine& line) override;
  bool Clear(PastRoom room) override;

  /// Keeps what could not be kept yet, without any wait. False if another process has the lock: to
  /// be called again soon.
  bool TrySave();
  /// The same with a wait of up to two seconds, for the end of the program.
  void SaveAtLast();

  /// Why lines are not kept or not deleted, told once until one could be kept again; nullopt for
  /// nothing to tell.
  std::optional<std::u16string> TakeNotice();
  bool HasNotice() const { return !notice_.empty(); }

 private:
  using Outcome = std::optional<FileError>;
  using Change = std::function<bool(std::vector<PastLine>&)>;

  Outcome WithLock(std::chrono::milliseconds patience,
                   const std::function<Outcome(const std::string& file)>& action);
  Outcome Save(std::chrono::milliseconds patience);
  Outcome Append(const std::string& file);
  Outcome AppendText(const std::string& file, const std::function<std::string(std::string_view)>&);
  Outcome TakeOver(const std::string& file);
  Outcome Rewrite(const std::string& file, const Change& change);
  bool ChangeAll(const Change& change);
  void TellOnce(std::u16string text);

  std::string path_;
  std::string old_;
  StoreUser user_;
  std::vector<PastLine> unsaved_;
  std::int64_t newestId_ = 0;
  std::size_t cutAt_;  ///< the size in bytes from which on old lines are removed from the file
  std::u16string notice_;
  std::u16string told_;
};

}  // namespace kav
