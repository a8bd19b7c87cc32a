// libFuzzer target: any bytes through the .zel reader.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

#include "core/document/data_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  std::FILE* file = size == 0 ? std::fopen("/dev/null", "r")
                              : fmemopen(bytes.data(), bytes.size(), "r");
  if (file == nullptr) return 0;
  zel::CZELwDoc doc;
  zel::MessageLog messages;
  zel::ReadDataFile(doc, file, messages);
  return 0;
}
