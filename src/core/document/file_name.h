// The bare name of a file from the path it was opened or typed by.
#ifndef ZEL_CORE_DOCUMENT_FILE_NAME_H_
#define ZEL_CORE_DOCUMENT_FILE_NAME_H_

#include <string_view>

namespace zel {

// `path` without its folder. Either separator ends the folder: a path typed
// on another system still shows its bare file name.
std::string_view FileNameOf(std::string_view path);

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_FILE_NAME_H_
