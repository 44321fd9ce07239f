// The frame that owns the screens, as they know it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "display/display_settings_model.h"
#include "display/text_scale.h"
#include "line/guide_pages.h"
#include "line/key_help.h"
#include "line/key_request.h"
#include "settings/past_lines.h"
#include "settings/settings_store.h"

class QWidget;

namespace kav {

/// The calculating screens, by the numbers of the settings.
enum class ScreenMode { Scientific = 1, Plotter = 2, OneVariable = 3, TwoVariable = 4, Matrix = 5 };

/// The dialogs that screens open: each function returns when its dialog is closed. `parent` is the
/// screen that opens it.
struct ScreenDialogs {
  /// Opens with `first`; whether it was closed with OK.
  std::function<bool(QWidget* parent, DisplayPage first)> displaySettings;
  std::function<void(QWidget* parent)> unitEditor;
  std::function<void(QWidget* parent)> macroEditor;
  std::function<std::optional<int>(QWidget* parent)> macroList;  ///< the macro chosen
  std::function<ConverterOutcome(QWidget* parent, const ConverterInput& input)> converter;
  std::function<void(QWidget* parent, const std::u16string& value)> storeVariable;
  std::function<std::optional<std::u16string>(QWidget* parent)> recallVariable;
  std::function<std::optional<std::u16string>(QWidget* parent)> constants;
  /// Lists the keys of a screen. Empty: there is no such list.
  std::function<void(QWidget* parent, const std::vector<ListedKey>& keys)> keys;
  /// Opens the guide, beside `parent`, a screen or a dialog; it stays open. Empty: there is none.
  std::function<void(QWidget* parent, GuidePage page)> guide;
};

/// A screen as the Mode menu offers it.
struct ScreenChoice {
  ScreenMode mode;
  std::u16string_view caption;
};

/// What a screen leaves for its next time, as long as the program runs.
class KeptWork {
 public:
  KeptWork() = default;
  KeptWork(const KeptWork&) = delete;
  KeptWork& operator=(const KeptWork&) = delete;
  virtual ~KeptWork() = default;

  /// Asks what is to be saved of it before the end; whether the program may end.
  virtual bool MayEnd(QWidget* parent) = 0;
};

/// The frame as a screen knows it. It outlives its screens.
class Frame {
 public:
  Frame() = default;
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;
  virtual ~Frame() = default;

  virtual SettingsStore& Store() = 0;
  /// The lines of all sessions. By default they last as long as the frame.
  virtual PastLines& Past() { return past_; }
  virtual const ScreenDialogs& Dialogs() const = 0;
  virtual std::vector<ScreenChoice> ScreensBeside(ScreenMode own) const = 0;

  /// Writes the store to disk, at once unless another program keeps the file. If that fails, tells
  /// the user, once.
  virtual void SaveStore() = 0;

  // Ask for a file, and write all settings into it, or make those in it all there are: the calling
  // screen then makes room for a new one. `parent` is the screen.
  virtual void ExportSettings(QWidget* parent) = 0;
  virtual void ImportSettings(QWidget* parent) = 0;
  /// Makes texts larger or smaller, and the shown window with them if it can be.
  virtual void ScaleText(TextStep) {}

  // Both end the calling screen, but not before the current event has been handled.
  virtual void ChangeMode(ScreenMode mode) = 0;
  virtual void Exit() = 0;

  /// What the screen `mode` keeps while others are shown; null for nothing.
  std::unique_ptr<KeptWork>& KeptBy(ScreenMode mode) { return kept_[mode]; }
  /// Asks for all that is kept.
  bool MayEnd(QWidget* parent) const {
    for (const auto& [mode, kept] : kept_) {
      if (kept && !kept->MayEnd(parent)) return false;
    }
    return true;
  }

 private:
  std::map<ScreenMode, std::unique_ptr<KeptWork>> kept_;
  MemoryPastLines past_;
};

}  // namespace kav
