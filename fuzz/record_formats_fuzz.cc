// Feeds arbitrary bytes to each record format's reader. The first byte picks
// the reader (past detection, so that a damaged header still reaches it)
// and the import choices; the rest is the file. Whatever is read is also
// detected, inspected and written in the .dbs layout.
#include <cstdint>
#include <string>

#include "core/document/messages.h"
#include "core/records/format_readers.h"
#include "core/records/record_reader.h"
#include "core/records/record_writer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  if (size == 0) return 0;
  const std::uint8_t pick = data[0];
  const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  zel::MessageLog log;
  zel::RecordReading reading;
  reading.choices.channel = 1 + (pick >> 3) % 3;
  if ((pick & 0x40) != 0) {
    reading.choices.time_column = 0;
    reading.choices.accel_column = 1 + (pick >> 4) % 3;
    reading.choices.time_step = 0.01;
  }
  reading.use = (pick & 0x80) != 0 ? zel::TimeStepUse::kNeeded
                                   : zel::TimeStepUse::kNotNeeded;

  zel::InputFile file = zel::InputFile::FromBytes(bytes, "fuzz.V2");
  zel::RecordBuilder out("fuzz.V2", reading, log);
  zel::ReadResult result;
  if (pick % 8 == 0) {
    result = zel::ReadDbs(file, out);
  } else {
    zel::TextLines lines(file);
    switch (pick % 8) {
      case 1:
        result = zel::ReadPeer(lines, out);
        break;
      case 2:
        result = zel::ReadKnet(lines, out);
        break;
      case 3:
        result = zel::ReadEsm(lines, out);
        break;
      case 4:
        result = zel::ReadCosmos(lines, out);
        break;
      case 5:
        result = zel::ReadCsmip(lines, out);
        break;
      default:
        result = zel::ReadPlainText(lines, out);
        break;
    }
  }
  if (result == zel::ReadResult::kRead) {
    if (out.record().samples.size() >
        static_cast<std::size_t>(zel::kRecordCapacity)) {
      __builtin_trap();  // the document's capacity is a hard limit
    }
    zel::DbsText(out.record());
  }

  // The same bytes through detection, as the dialogs and zel-cli read them.
  zel::Record record;
  zel::ReadRecord(zel::InputFile::FromBytes(bytes, "fuzz.txt"), reading, record,
                  log);
  zel::InspectRecordFile(zel::InputFile::FromBytes(bytes, "fuzz.dat"));
  return 0;
}
