// Tables of constants of any content. They are read as a second reader, byte by byte, reads them;
// rows that are written read back the same; and each row is found by its own texts.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "memory/constants_table.h"

namespace {

using kav::Constant;

void Check(bool holds) {
  if (!holds) std::abort();
}

/// A record, collected byte by byte.
struct Record {
  bool hasBracket = false;
  bool hasEquals = false;
  Constant constant;

  void Take(char16_t c) {
    if (hasEquals) {
      constant.value += c;
    } else if (c == u'=') {
      hasEquals = true;
    } else if (hasBracket) {
      constant.name += c;
    } else if (c == u']') {
      hasBracket = true;
    } else if (c == u'[') {
      isInGroup = true;
      constant.group.clear();
    } else if (isInGroup) {
      constant.group += c;
    }
  }

  bool IsRow() const { return !constant.name.empty() && !constant.value.empty(); }

  bool isInGroup = false;
};

std::vector<Constant> ReadByteByByte(std::string_view bytes) {
  std::vector<Constant> rows;
  Record record;
  for (const char byte : bytes) {
    if (byte != ';') {
      record.Take(static_cast<unsigned char>(byte));
      continue;
    }
    if (record.IsRow()) rows.push_back(record.constant);
    record = {};
  }
  return rows;
}

std::string Bytes(std::u16string_view text) {
  std::string bytes;
  for (const char16_t c : text) {
    Check(c < 256);
    bytes += static_cast<char>(c);
  }
  return bytes;
}

std::string Written(const std::vector<Constant>& rows) {
  std::string bytes;
  for (const Constant& row : rows) {
    bytes += "[" + Bytes(row.group) + "]" + Bytes(row.name) + "=" + Bytes(row.value) + ";";
  }
  return bytes;
}

void CheckFilter(const Constant& row) {
  Check(kav::Matches(row, u""));
  Check(kav::Matches(row, row.group + u" " + row.value + u" " + row.name));
  Check(!kav::Matches(row, row.name + u" ;"));  // no text of a row has one
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::vector<Constant> rows = kav::ParseConstants(bytes);
  Check(rows == ReadByteByByte(bytes));
  Check(rows == kav::ParseConstants(Written(rows)));
  for (const Constant& row : rows) CheckFilter(row);
  return 0;
}
