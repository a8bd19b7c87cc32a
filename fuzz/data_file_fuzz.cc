// libFuzzer target: any bytes through the .zel reader.
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/document/data_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  zel::CZELwDoc doc;
  zel::MessageLog messages;
  zel::ReadDataFile(
      doc,
      zel::InputFile::FromBytes(
          std::string(reinterpret_cast<const char*>(data), size), "fuzz.zel"),
      messages);
  return 0;
}
