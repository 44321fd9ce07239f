#include "cli/edit_library.h"

#include <dlfcn.h>

namespace kav {
namespace {

/// Sets `function` to the one called `name`; false if there is none.
template <class Function>
bool Find(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  return function != nullptr;
}

}  // namespace

std::optional<EditLibrary> LoadEditLibrary(const char* name) {
  void* library = dlopen(name, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return std::nullopt;
  EditLibrary found;
  const bool isWhole =
      Find(library, "el_init", found.init) && Find(library, "el_end", found.end) &&
      Find(library, "el_set", found.set) && Find(library, "el_gets", found.gets) &&
      Find(library, "el_line", found.line) && Find(library, "el_insertstr", found.insertText) &&
      Find(library, "el_source", found.source) &&
      Find(library, "history_init", found.historyInit) &&
      Find(library, "history_end", found.historyEnd) && Find(library, "history", found.history);
  if (isWhole) return found;
  dlclose(library);
  return std::nullopt;
}

}  // namespace kav
