// What a store does while its file or its place is not as it should be.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "common/number_text.h"
#include "store/user_settings_fixture.h"
#include "store/user_settings_store.h"

namespace kav {

// A user that owns nothing: what root may not do is tried as this one.
inline constexpr uid_t kUserWithoutFiles = 65534;

inline bool BecomeNobody() {
  return geteuid() != 0 || seteuid(kUserWithoutFiles) == 0;
}

/// Whether the store goes on in memory, refuses to save and says so exactly once, in these words.
inline testing::AssertionResult SuffersOnce(UserSettingsStore& store,
                                            const std::u16string& notice) {
  store.Set(kNumber, 2);
  if (store.Save()) return testing::AssertionFailure() << "it was saved";
  const auto told = store.TakeNotice();
  if (told != notice) {
    return testing::AssertionFailure() << "told: " << Narrow(told.value_or(u"nothing"));
  }
  store.Set(kText, "still here");
  if (store.Save()) return testing::AssertionFailure() << "it was saved later";
  if (store.TakeNotice()) return testing::AssertionFailure() << "told again";
  if (store.Get(kNumber) != 2 || store.Get(kText) != "still here") {
    return testing::AssertionFailure() << "it forgot";
  }
  return testing::AssertionSuccess();
}

/// The same in another process: 0, or the number of what did not hold.
inline int ResultOfSuffering(UserSettingsStore& store, const std::u16string& notice) {
  const auto result = SuffersOnce(store, notice);
  if (!result) fprintf(stderr, "%s\n", result.message());
  return result ? 0 : 1;
}

}  // namespace kav
