// Which record format a file is written in, told from its first bytes.
#ifndef ZEL_CORE_RECORDS_RECORD_DETECT_H_
#define ZEL_CORE_RECORDS_RECORD_DETECT_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "core/records/record.h"

namespace zel {

// How many bytes of a file detection looks at.
inline constexpr std::size_t kDetectionBytes = 1 << 16;

enum class Detection { kKnown, kUnknown, kNotText };

// Looks at `head`, the first bytes of a file (at most kDetectionBytes, a
// UTF-8 byte-order mark already taken off), and sets `format`; `line` is
// then the line holding a NUL byte (kNotText). A file of nothing but blank
// and "**" comment lines is a .dbs file.
Detection DetectRecordFormat(std::string_view head, RecordFormat& format,
                             int& line);

// The message for a file of no known format: what ZEL reads.
std::string UnknownFormatMessage(const std::string& file_name);

// The columns of a plain-text file from its first bytes: a name for each
// (the header row's when it has as many fields as the data, else
// "Column N") and the default choices (time and acceleration in the first
// two columns, or one column of accelerations).
void PlainTextLayout(std::string_view head, RecordLayout& layout);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RECORD_DETECT_H_
