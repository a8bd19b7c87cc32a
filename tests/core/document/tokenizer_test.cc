#include "core/document/tokenizer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/document/test_files.h"

namespace zel {
namespace {

struct Token {
  int result;
  std::string text;
  int line;
  bool operator==(const Token&) const = default;
};

std::vector<Token> Tokenize(const std::string& bytes) {
  InputFile file = testing::OpenBytes(bytes);
  Tokenizer tokenizer(file);
  std::vector<Token> tokens;
  std::string token;
  for (int limit = 100; limit > 0; --limit) {
    const int result = tokenizer.ReadToken(token);
    tokens.push_back({result, token, tokenizer.line()});
    if (result < 0 && !tokenizer.too_long()) break;
  }
  return tokens;
}

TEST(TokenizerTest, SplitsKeywordsCommasAndValuesAndCountsLines) {
  EXPECT_EQ(Tokenize("*TITLE, El Centro  \r\n 1.0\t, -2.5\n\n*ENDDATA"),
            (std::vector<Token>{{1, "*", 1},
                                {1, "TITLE", 1},
                                {1, ",", 1},
                                {1, "El Centro  ", 1},
                                {1, "1.0\t", 2},
                                {1, ",", 2},
                                {1, "-2.5", 2},
                                {1, "*", 4},
                                {-1, "ENDDATA", 4}}));
}

TEST(TokenizerTest, CommentLinesAreSkippedWhereverATokenMayBegin) {
  EXPECT_EQ(Tokenize("** heading\n*FLAGS, 1\n  ** note, with * and ,\n*DATA"),
            (std::vector<Token>{{1, "*", 2},
                                {1, "FLAGS", 2},
                                {1, ",", 2},
                                {1, "1", 2},
                                {1, "*", 4},
                                {-1, "DATA", 4}}));
  // The character after a comment is taken without skipping blanks: an empty
  // line after a comment reads as an empty token.
  EXPECT_EQ(Tokenize("**c\n\nA"),
            (std::vector<Token>{{1, "", 2}, {-1, "A", 3}}));
  EXPECT_EQ(Tokenize("** only a comment").front().result, -1);
}

TEST(TokenizerTest, LongTokensAreCutAt120CharactersWithoutLosingTheRest) {
  const std::vector<Token> tokens = Tokenize(std::string(250, 'x') + "\n,");
  ASSERT_EQ(tokens.size(), 5u);
  EXPECT_EQ(tokens[0], (Token{-1, std::string(120, 'x'), 1}));
  EXPECT_EQ(tokens[1], (Token{-1, std::string(120, 'x'), 1}));
  EXPECT_EQ(tokens[2], (Token{1, std::string(10, 'x'), 1}));
  EXPECT_EQ(tokens[3], (Token{1, ",", 2}));
  EXPECT_EQ(tokens[4].result, -1);
  EXPECT_EQ(Tokenize(std::string(120, 'x') + "\n").front().result, 1);
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
