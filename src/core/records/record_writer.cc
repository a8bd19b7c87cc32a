#include "core/records/record_writer.h"

#include "core/document/c_format.h"
#include "core/document/replacing_file.h"

namespace zel {

std::string DbsText(const Record& record) {
  std::string text;
  const std::string description = RecordDescription(record);
  if (!description.empty()) text += "** " + description + "\n";
  text += CFormat("** Source: %s, %s, dt=%.9g s, npts=%zu, units g\n",
                  RecordFormatName(record.format), record.name.c_str(),
                  record.time_step, record.samples.size());
  for (const RecordSample& sample : record.samples) {
    text += CFormat("%.9g, %.9g\n", sample.time, sample.value);
  }
  return text;
}

bool WriteDbsRecord(const Record& record, const std::string& path,
                    MessageSink& messages) {
  return WriteTextFile(path, DbsText(record), messages);
}

}  // namespace zel
