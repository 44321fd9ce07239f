// Settings files and exports of any content. They can be read, saving over one loses nothing that
// could be read, and an import leaves exactly what the export held.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

#include "settings/setting_key.h"
#include "store/settings_toml.h"
#include "store/toml_document.h"
#include "store/user_settings_store.h"

namespace {

constexpr kav::SettingKey<std::int32_t> kNumber{"Config", "Angle Type", 1};
constexpr kav::SettingKey<std::string_view> kText{"History", "CalHistory1", ""};
constexpr std::string_view kLine = "2*sin(30) \"#\\\n";

/// The folder of this run, in memory if the system offers that. Removed at the end.
class Folder {
 public:
  Folder() {
    const char* base = std::filesystem::exists("/dev/shm") ? "/dev/shm" : "/tmp";
    path_ = std::string(base) + "/kav-settings-fuzzer-XXXXXX";
    if (mkdtemp(path_.data()) == nullptr) std::abort();
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  std::string SettingsFile() const { return path_ + "/settings.toml"; }

 private:
  std::string path_;
};

void Check(bool holds) {
  if (!holds) std::abort();
}

std::string FileContent(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Settings that were read, written and read again are the same. (A table with "not a number" in it
/// is not even equal to itself.)
void CheckWriting(std::string_view input) {
  const auto read = kav::ReadToml(input);
  if (!read || !(*read == *read)) return;
  const std::string written = kav::PrintToml(*read);
  const auto again = kav::ReadToml(written);
  Check(again && *again == *read);
  Check(kav::PrintToml(*again) == written);
}

/// A text can be imported exactly if it is an export; then it is all that is stored, and comes out
/// again as it is.
void CheckImport(const std::string& path, const std::string& input) {
  const bool isExport = kav::IsExport(input);
  kav::UserSettingsStore store(path);
  if (isExport) store.Set(kNumber, 3);
  Check(store.Import(input).has_value() != isExport);
  if (!isExport) return;
  const auto settings = kav::ReadSettings(input);
  Check(settings && kav::ReadSettings(FileContent(path)) == settings);
  const kav::StoredSetting* number = kav::FindSetting(*settings, kNumber.section, kNumber.name);
  if (number == nullptr) Check(store.Get(kNumber) == kNumber.fallback);
  const auto exported = store.Export();
  Check(exported && kav::ReadSettings(*exported) == settings);
}

void CheckStore(const std::string& path, const std::string& input) {
  std::ofstream(path, std::ios::binary) << input;
  const auto before = kav::ReadSettings(input);
  kav::UserSettingsStore store(path);
  store.Set(kNumber, 2);
  store.Set(kText, kLine);
  Check(store.Get(kNumber) == 2 && store.Get(kText) == kLine);
  if (!store.Save()) {
    Check(FileContent(path) == input);
    return;
  }
  kav::SettingsTable expected = before.value_or(kav::SettingsTable());
  expected["Config"]["Angle Type"] = 2;
  expected["History"]["CalHistory1"] = std::string(kLine);
  Check(kav::ReadSettings(FileContent(path)) == expected);
  const kav::UserSettingsStore reader(path);
  Check(reader.Get(kNumber) == 2 && reader.Get(kText) == kLine);
  if (!before) Check(FileContent(path + ".damaged") == input);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Folder folder;
  const std::string path = folder.SettingsFile();
  const std::string input(reinterpret_cast<const char*>(data), size);
  CheckWriting(input);
  CheckStore(path, input);
  CheckImport(path, input);
  unlink((path + ".damaged").c_str());
  unlink((path + ".before-import").c_str());
  return 0;
}
