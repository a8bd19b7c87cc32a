#include "core/document/tokenizer.h"

#include <gtest/gtest.h>

#include <string>

#include "core/document/test_files.h"

namespace zel {
namespace {

// Every token as "text@line", "|" between them; "!" marks a -1 result.
std::string Tokenize(const std::string& bytes) {
  InputFile file = testing::OpenBytes(bytes);
  Tokenizer tokenizer(file);
  std::string tokens;
  std::string token;
  for (int limit = 100; limit > 0; --limit) {
    const int result = tokenizer.ReadToken(token);
    if (!tokens.empty()) tokens += '|';
    tokens += (result < 0 ? "!" : "") + token + '@' +
              std::to_string(tokenizer.line());
    if (result < 0 && !tokenizer.too_long()) break;
  }
  return tokens;
}

TEST(TokenizerTest, SplitsKeywordsCommasAndValuesAndCountsLines) {
  EXPECT_EQ(Tokenize("*TITLE, El Centro  \r\n 1.0\t, -2.5\n\n*ENDDATA"),
            "*@1|TITLE@1|,@1|El Centro  @1|1.0\t@2|,@2|-2.5@2|*@4|!ENDDATA@4");
}

TEST(TokenizerTest, CommentLinesAreSkippedWhereverATokenMayBegin) {
  EXPECT_EQ(Tokenize("** heading\n*FLAGS, 1\n  ** note, with * and ,\n*DATA"),
            "*@2|FLAGS@2|,@2|1@2|*@4|!DATA@4");
  // The character after a comment is taken without skipping blanks: an empty
  // line after a comment reads as an empty token.
  EXPECT_EQ(Tokenize("**c\n\nA"), "@2|!A@3");
  EXPECT_EQ(Tokenize("** only a comment"), "!@1");
}

TEST(TokenizerTest, LongTokensAreCutAt120CharactersWithoutLosingTheRest) {
  const std::string x120(120, 'x');
  EXPECT_EQ(Tokenize(std::string(250, 'x') + "\n,"),
            "!" + x120 + "@1|!" + x120 + "@1|xxxxxxxxxx@1|,@2|!@2");
  EXPECT_EQ(Tokenize(x120 + "\n"), x120 + "@1|!@1");
}

TEST(TokenizerTest, NulBytesAreNotedWithTheirLine) {
  InputFile file = testing::OpenBytes(std::string("0, 1\n1,\0 2\n", 11));
  Tokenizer tokenizer(file);
  std::string token;
  while (tokenizer.ReadToken(token) == 1) {
  }
  EXPECT_EQ(tokenizer.nul_line(), 2);
}

}  // namespace
}  // namespace zel
