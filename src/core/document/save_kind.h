// What File / Save writes for a chosen file name: the data file or an image
// of the chart, decided by the name's extension.
#ifndef ZEL_CORE_DOCUMENT_SAVE_KIND_H_
#define ZEL_CORE_DOCUMENT_SAVE_KIND_H_

#include <string_view>

#include "core/document/curve_document.h"

namespace zel {

enum class SaveKind { kDataFile, kBitmap, kJpeg, kMetafile };

// The extension is compared case-sensitively: only "bmp"/"BMP",
// "jpg"/"JPG" and "emf"/"EMF" make images; "zel", "ZEL", a mixed-case
// extension such as "Bmp", any other extension and none at all write the
// data file.
SaveKind SaveKindOfPath(std::string_view path);

// True when writing the data file would lose curves: some curve holds values
// but no point count, so its *DATA block would be written empty. A document
// read by File Open is such a one (it keeps no point counts).
bool WritesCurvesWithoutPoints(const CZELwDoc& doc);

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_SAVE_KIND_H_
