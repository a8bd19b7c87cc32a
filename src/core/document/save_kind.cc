#include "core/document/save_kind.h"

#include <algorithm>

#include "core/document/file_name.h"

namespace zel {

SaveKind SaveKindOfPath(std::string_view path) {
  const std::string_view name = FileNameOf(path);
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return SaveKind::kDataFile;
  const std::string_view ext = name.substr(dot + 1);
  if (ext == "bmp" || ext == "BMP") return SaveKind::kBitmap;
  if (ext == "jpg" || ext == "JPG") return SaveKind::kJpeg;
  if (ext == "emf" || ext == "EMF") return SaveKind::kMetafile;
  return SaveKind::kDataFile;
}

bool WritesCurvesWithoutPoints(const CZELwDoc& doc) {
  for (int c = 0; c < std::min(doc.curve_count, kMaxCurves); ++c) {
    if (doc.point_count[c] == 0 && doc.StoredPoints(c) > 0) return true;
  }
  return false;
}

}  // namespace zel
