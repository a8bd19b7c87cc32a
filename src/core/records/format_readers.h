// The readers of the record file formats behind ReadRecord, and the record
// under construction that they share: its scaled samples, its channels and
// the refusals that name the file and the line.
#ifndef ZEL_CORE_RECORDS_FORMAT_READERS_H_
#define ZEL_CORE_RECORDS_FORMAT_READERS_H_

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/input_file.h"
#include "core/document/messages.h"
#include "core/records/record.h"
#include "core/records/record_reader.h"
#include "core/records/record_text.h"

namespace zel {

class RecordBuilder {
 public:
  RecordBuilder(std::string file_name, const RecordReading& reading,
                MessageSink& messages)
      : file_name_(std::move(file_name)),
        reading_(reading),
        messages_(messages) {}

  const std::string& file_name() const { return file_name_; }
  const RecordReading& reading() const { return reading_; }
  const ImportChoices& choices() const { return reading_.choices; }
  MessageSink& messages() { return messages_; }
  Record& record() { return record_; }

  // Shows "Error : <what>! <file>, line <line><detail>" and returns
  // ReadResult::kRefused.
  ReadResult Refuse(std::string_view what, int line,
                    std::string_view detail = "");
  // The refusal of a file that holds a NUL byte on `line`.
  ReadResult RefuseNotText(int line);
  // The refusal of a line `lines` could not take (a NUL byte, too long);
  // kRead when it took every line.
  ReadResult LineProblem(const TextLines& lines);
  // After `lines` found no next line: its LineProblem, or else the refusal
  // of a file that ends before what it announced.
  ReadResult EndedEarly(const TextLines& lines, std::string_view what,
                        std::string_view detail);

  // The channels of a file holding several, in file order. The one being
  // read is the one the user chose; a file that names none holds one.
  void AddChannel(std::string name) { channels_.push_back(std::move(name)); }
  const std::vector<std::string>& channels() const { return channels_; }
  // Whether the channel just added is the chosen one.
  bool InChosenChannel() const {
    return static_cast<int>(channels_.size()) == reading_.choices.channel;
  }
  // Adds an acceleration channel of a file that describes each channel in
  // text lines. When it is the chosen one, the record's event and station
  // are `text`'s lines `event_line` and `station_line` (from 0; none when
  // there are fewer lines), collapsed, and its component the channel's
  // name. Whether it is the chosen one.
  bool AddDescribedChannel(std::string name,
                           const std::vector<std::string>& text,
                           std::size_t event_line, std::size_t station_line);

  // Evenly sampled records: the step in seconds as the file gives it, from
  // `line`. False after a message when it, or it times the time scale, is
  // not a positive finite number.
  bool SetTimeStep(double seconds, int line);
  // The next sample, in g; false after a message when the value is not
  // finite once scaled. Samples past the document's capacity are counted
  // only.
  bool Add(double g, int line);
  // A sample at its own time in seconds (two-column text); the times must
  // increase evenly.
  bool AddTimed(double seconds, double g, int line);
  // The numbers of a data line separated by blanks or tabs, each times
  // `factor` giving g, as samples; `taken` tells how many. False after the
  // refusal of a field that is not a number.
  bool AddValuesOf(std::string_view line, int number, double factor,
                   std::size_t& taken);
  // Samples offered so far, kept or not.
  std::size_t count() const { return count_; }
  // Counts `n` more samples that the document's capacity leaves out, once
  // it is full.
  void CountBeyondCapacity(std::size_t n) { count_ += n; }

  // The checks of a sample read at `line`, for readers that keep their own
  // samples; each is false after its refusal. A time in seconds, scaled,
  // must be finite and follow the one `before` it; a value in g is
  // `scaled` by the amplitude scale and must stay finite in any unit.
  bool CheckTime(double time, int line);
  bool CheckTimeFollows(double time, double before, int line);
  bool ScaleValue(double g, int line, double& scaled);
  // The refusal of a channel choice the file does not hold; kRead when it
  // holds the chosen channel.
  ReadResult ChannelProblem();

  // Ends the record at `line`: refuses a wrong channel choice or a record
  // without samples, says so when the record was cut to the capacity, and
  // sets the time step. kRead or kRefused.
  ReadResult Finish(int line);
  // Ends a file of channels once `lines` found no next line: its
  // LineProblem, the refusal of a file without an acceleration channel
  // (`detail` telling why), or Finish at `last`.
  ReadResult FinishChannels(const TextLines& lines, int last,
                            std::string_view detail);

 private:
  bool AddValue(double g, int line);

  std::string file_name_;
  const RecordReading& reading_;
  MessageSink& messages_;
  Record record_;
  std::vector<std::string> channels_;
  std::vector<std::string_view> fields_;  // of the line AddValuesOf reads
  double step_ = 0.0;                     // scaled, of an evenly sampled record
  bool timed_ = false;
  double first_step_ = 0.0;  // scaled, of a record with its own times
  double last_time_ = 0.0;
  std::size_t count_ = 0;
};

// Reads `count` numbers written `format.per_line` to a line, each
// `format.width` wide (a line may stop short), from the lines that follow,
// and hands each to `take` (which returns false after its own refusal).
// Refuses a field that is not a number and data that end early.
ReadResult ReadFixedValues(TextLines& lines, RecordBuilder& out,
                           std::size_t count, const FortranFormat& format,
                           const std::function<bool(double, int)>& take);
// Whether `line` begins with a count of values a data block can announce:
// a whole number, not negative and not beyond any record.
bool LeadingPointCount(std::string_view line, double& points);
// ReadFixedValues of a data block of `points` values: those of the chosen
// channel, times `factor` giving g, are the record's samples; the others
// are skipped.
ReadResult ReadBlockValues(TextLines& lines, RecordBuilder& out, double points,
                           const FortranFormat& format, bool chosen,
                           double factor);

// The largest factor a value in g is multiplied by to give a document's
// acceleration unit (mm/s^2).
inline constexpr double kLargestGravity = 9815.0;

// ZEL's own .dbs layout, read by the catalog's tokenizer as it always was.
ReadResult ReadDbs(InputFile& file, RecordBuilder& out);
ReadResult ReadPeer(TextLines& lines, RecordBuilder& out);
ReadResult ReadKnet(TextLines& lines, RecordBuilder& out);
ReadResult ReadEsm(TextLines& lines, RecordBuilder& out);
ReadResult ReadCosmos(TextLines& lines, RecordBuilder& out);
ReadResult ReadCsmip(TextLines& lines, RecordBuilder& out);
ReadResult ReadPlainText(TextLines& lines, RecordBuilder& out);

// Whether a line of text is a row of numbers separated by blanks, tabs,
// commas or semicolons, and how many.
inline constexpr std::string_view kPlainSeparators = " \t,;";
bool IsNumberRow(std::string_view line, std::size_t* count = nullptr);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_FORMAT_READERS_H_
