#include "core/document/file_name.h"

namespace zel {

std::string_view FileNameOf(std::string_view path) {
  const std::size_t slash = path.find_last_of("/\\");
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

}  // namespace zel
