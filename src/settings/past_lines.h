// The lines that were evaluated in all sessions, with their answers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kav {

/// Where a line was evaluated.
enum class PastOrigin { Scientific, Prompt, Matrix };

/// Whose lines belong together: what the scientific screen and the prompt evaluate is the same.
enum class PastRoom { Calculator, Matrix };

constexpr PastRoom RoomOf(PastOrigin origin) {
  return origin == PastOrigin::Matrix ? PastRoom::Matrix : PastRoom::Calculator;
}

/// A line and what came of it. Texts are UTF-8.
struct PastLine {
  std::int64_t id = 0;  ///< of this one alone; larger than those of earlier lines
  PastOrigin origin = PastOrigin::Scientific;
  std::int32_t base = 1;  ///< as the setting kBaseType has it
  std::string line;       ///< as it was typed
  std::string answer;     ///< as it was shown; empty if there was none

  bool operator==(const PastLine&) const = default;
};

/// Whether both say the same, whenever and wherever that was.
bool SaysTheSame(const PastLine& a, const PastLine& b);

/// The newest lines of each room, whoever evaluated them.
class PastLines {
 public:
  /// Of each room; older ones are dropped.
  static constexpr std::size_t kCapacity = 1000;
  /// In bytes. A longer line, or one with a longer answer, is not kept.
  static constexpr std::size_t kLongestLine = 8192;
  static constexpr std::size_t kLongestAnswer = 2048;

  PastLines() = default;
  PastLines(const PastLines&) = delete;
  PastLines& operator=(const PastLines&) = delete;
  virtual ~PastLines() = default;

  /// The newest last.
  virtual std::vector<PastLine> Of(PastRoom room) = 0;

  /// Adds `line` as the newest, with an id of its own; nothing if the newest of its room says the
  /// same already.
  virtual void Add(PastLine line) = 0;

  // Each answers whether it is done for good.
  virtual bool Remove(std::int64_t id) = 0;
  /// Puts a line that was removed back to its place.
  virtual bool PutBack(const PastLine& line) = 0;
  virtual bool Clear(PastRoom room) = 0;
};

/// What the calls of PastLines do with `lines`, of all rooms and the newest last. False: nothing.
bool AddTo(std::vector<PastLine>& lines, PastLine line);
bool RemoveFrom(std::vector<PastLine>& lines, std::int64_t id);
bool PutBackInto(std::vector<PastLine>& lines, const PastLine& line);
bool ClearIn(std::vector<PastLine>& lines, PastRoom room);

/// Past lines that nothing keeps.
class MemoryPastLines final : public PastLines {
 public:
  std::vector<PastLine> Of(PastRoom room) override;
  void Add(PastLine line) override;
  bool Remove(std::int64_t id) override { return RemoveFrom(lines_, id); }
  bool PutBack(const PastLine& line) override { return PutBackInto(lines_, line); }
  bool Clear(PastRoom room) override { return ClearIn(lines_, room); }

 private:
  std::vector<PastLine> lines_;
};

}  // namespace kav
