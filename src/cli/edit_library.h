// The library for line editing, loaded when there is a terminal to edit at.
#pragma once

#include <histedit.h>

#include <optional>

namespace kav {

/// Its functions, by the names in its header without what they begin with.
struct EditLibrary {
  decltype(&::el_init) init = nullptr;
  decltype(&::el_end) end = nullptr;
  decltype(&::el_set) set = nullptr;
  decltype(&::el_gets) gets = nullptr;
  decltype(&::el_line) line = nullptr;
  decltype(&::el_insertstr) insertText = nullptr;
  decltype(&::el_source) source = nullptr;
  decltype(&::history_init) historyInit = nullptr;
  decltype(&::history_end) historyEnd = nullptr;
  decltype(&::history) history = nullptr;
};

inline constexpr const char* kEditLibrary = "libedit.so.2";

/// The library of that name in the system; nullopt if it is not there, or lacks a function. Once
/// loaded it stays. So only who edits lines waits for it, and the system keeps it up to date.
std::optional<EditLibrary> LoadEditLibrary(const char* name);

}  // namespace kav
