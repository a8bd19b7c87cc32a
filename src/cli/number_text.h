// The number check shared by the command-line options.
#ifndef ZEL_CLI_NUMBER_TEXT_H_
#define ZEL_CLI_NUMBER_TEXT_H_

#include <string>

namespace zel::cli {

// Whether all of `text` is one number in the C locale's notation (an
// optional sign, digits, a point, an exponent), whatever the user's locale.
bool IsNumberText(const std::string& text);

}  // namespace zel::cli

#endif  // ZEL_CLI_NUMBER_TEXT_H_
