// An earthquake record as a file gives it, before any document holds it:
// the samples, the time step, where it comes from, and what the user may
// have to choose to read it (a channel, a plain-text file's columns, unit and
// time step).
#ifndef ZEL_CORE_RECORDS_RECORD_H_
#define ZEL_CORE_RECORDS_RECORD_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/curve_document.h"

namespace zel {

// The record file formats ZEL reads, told apart by their content.
enum class RecordFormat {
  kDbs,        // ZEL's own "time, value" lines in g
  kPeer,       // PEER NGA .AT2
  kKnet,       // NIED K-NET / KiK-net ASCII
  kEsm,        // ESM / ITACA ASCII
  kCosmos,     // COSMOS strong-motion format v01.20 (V0, V1, V2)
  kCsmip,      // CSMIP / DMG volume 1 and 2 files
  kPlainText,  // columns of numbers
};

// The format's name in messages and in the import step.
const char* RecordFormatName(RecordFormat format);

// Units of acceleration found in record files or chosen by the user.
enum class AccelUnit { kG, kMilliG, kMicroG, kGal, kMetre, kMillimetre, kInch };

// Standard gravity in cm/s^2, as the data centres convert to g.
inline constexpr double kStandardGravityGal = 980.665;

// How many g one `unit` is.
double GravitiesPer(AccelUnit unit);

// The unit a record file names, in any of the ways the formats write it
// ("g", "gal", "cm/s^2", "cm/sec2", "cm/s/s", "m/s**2", "mg", ...), case
// and blanks aside; false when it is none of them.
bool AccelUnitOfText(std::string_view text, AccelUnit& unit);

// The plain-text unit words of --unit and the import step, in this order:
// "g", "gal", "cm/s2", "m/s2", "mm/s2". False for any other word.
bool PlainUnitOfWord(const std::string& word, AccelUnit& unit);

// How the samples are scaled as they are read: times by the time scale,
// values by the amplitude scale, as the record dialogs ask.
struct RecordScales {
  double time = 1.0;
  double amplitude = 1.0;
};

// What the user chose for a file that needs it.
struct ImportChoices {
  static constexpr int kDefault = -1;
  int channel = 1;  // 1-based, for files holding several
  // Plain text, 1-based columns; kDefault takes the file's own layout (time
  // and acceleration in the first two columns, or one column of
  // accelerations), 0 for no time column.
  int time_column = kDefault;
  int accel_column = kDefault;
  double time_step = 0.0;  // seconds, for text without times; 0: not given
  AccelUnit unit = AccelUnit::kG;
};

// `choices` with the columns left at kDefault set to the layout of rows of
// `count` numbers.
ImportChoices WithDefaultColumns(ImportChoices choices, std::size_t count);

// Whether the record is read to be integrated or transformed, which needs
// its time step.
enum class TimeStepUse { kNotNeeded, kNeeded };

struct RecordReading {
  RecordScales scales;
  ImportChoices choices;
  TimeStepUse use = TimeStepUse::kNotNeeded;
};

struct Record {
  RecordFormat format = RecordFormat::kDbs;
  std::string name;  // the file's name without its folder
  std::string event;
  std::string station;
  std::string component;
  std::string sensor;  // "borehole" or "surface" for KiK-net
  // Seconds between samples, scaled; 0 when the file does not tell it (a
  // .dbs record of fewer than four samples).
  double time_step = 0.0;
  // Times in seconds and accelerations in g, both scaled, as the .dbs reader
  // has always stored them; at most kRecordCapacity.
  std::vector<RecordSample> samples;
};

// "event, station, component, sensor", the parts the file gave.
std::string RecordDescription(const Record& record);

// What a file asks of the user before it can be read.
struct RecordLayout {
  RecordFormat format = RecordFormat::kDbs;
  std::vector<std::string> channels;  // more than one: the user picks one
  // Plain text: a name per column (the header row's, or "Column N").
  std::vector<std::string> columns;
  ImportChoices defaults;

  bool NeedsImportStep() const {
    return channels.size() > 1 || format == RecordFormat::kPlainText;
  }
};

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RECORD_H_
