#include "core/records/record.h"

#include <array>
#include <string>
#include <utility>

namespace zel {

const char* RecordFormatName(RecordFormat format) {
  switch (format) {
    case RecordFormat::kDbs:
      return "ZEL dbase (.dbs)";
    case RecordFormat::kPeer:
      return "PEER NGA (.AT2)";
    case RecordFormat::kKnet:
      return "K-NET/KiK-net ASCII";
    case RecordFormat::kEsm:
      return "ESM/ITACA ASCII";
    case RecordFormat::kCosmos:
      return "COSMOS V0/V1/V2";
    case RecordFormat::kCsmip:
      return "CSMIP/DMG V1/V2";
    case RecordFormat::kPlainText:
      return "plain-text columns";
  }
  return "";
}

double GravitiesPer(AccelUnit unit) {
  switch (unit) {
    case AccelUnit::kG:
      return 1.0;
    case AccelUnit::kMilliG:
      return 1e-3;
    case AccelUnit::kMicroG:
      return 1e-6;
    case AccelUnit::kGal:
      return 1.0 / kStandardGravityGal;
    case AccelUnit::kMetre:
      return 100.0 / kStandardGravityGal;
    case AccelUnit::kMillimetre:
      return 0.1 / kStandardGravityGal;
    case AccelUnit::kInch:
      return 2.54 / kStandardGravityGal;
  }
  return 1.0;
}

bool AccelUnitOfText(std::string_view text, AccelUnit& unit) {
  std::string word;
  for (char c : text) {
    if (c == ' ' || c == '\t') continue;
    word.push_back(c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c);
  }
  // The length part, then how the square of the second is written.
  static constexpr std::pair<const char*, AccelUnit> kLengths[] = {
      {"cm", AccelUnit::kGal},
      {"mm", AccelUnit::kMillimetre},
      {"m", AccelUnit::kMetre},
      {"in", AccelUnit::kInch}};
  static constexpr const char* kPerSecondSquared[] = {
      "/s^2", "/s2", "/s**2", "/s/s", "/sec^2", "/sec2", "/sec**2", "/sec/sec"};
  if (word == "g") {
    unit = AccelUnit::kG;
  } else if (word == "mg") {
    unit = AccelUnit::kMilliG;
  } else if (word == "gal" || word == "gals") {
    unit = AccelUnit::kGal;
  } else {
    for (const auto& [length, u] : kLengths) {
      const std::string prefix = length;
      if (word.compare(0, prefix.size(), prefix) != 0) continue;
      for (const char* square : kPerSecondSquared) {
        if (word.compare(prefix.size(), std::string::npos, square) == 0) {
          unit = u;
          return true;
        }
      }
    }
    return false;
  }
  return true;
}

bool PlainUnitOfWord(const std::string& word, AccelUnit& unit) {
  static constexpr std::array<std::pair<const char*, AccelUnit>, 5> kWords = {{
      {"g", AccelUnit::kG},
      {"gal", AccelUnit::kGal},
      {"cm/s2", AccelUnit::kGal},
      {"m/s2", AccelUnit::kMetre},
      {"mm/s2", AccelUnit::kMillimetre},
  }};
  for (const auto& [text, u] : kWords) {
    if (word == text) {
      unit = u;
      return true;
    }
  }
  return false;
}

ImportChoices WithDefaultColumns(ImportChoices choices, std::size_t count) {
  if (choices.time_column == ImportChoices::kDefault) {
    choices.time_column = count >= 2 ? 1 : 0;
  }
  if (choices.accel_column == ImportChoices::kDefault) {
    choices.accel_column = count >= 2 ? 2 : 1;
  }
  return choices;
}

std::string RecordDescription(const Record& record) {
  std::string text;
  for (const std::string* part :
       {&record.event, &record.station, &record.component, &record.sensor}) {
    if (part->empty()) continue;
    if (!text.empty()) text += ", ";
    text += *part;
  }
  return text;
}

}  // namespace zel
