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
  bool operator==(const Token&) const = default;
};

std::vector<Token> Tokenize(const std::string& bytes, int limit = 100) {
  std::FILE* file = testing::OpenBytes(bytes);
  std::vector<Token> tokens;
  std::string token;
  while (limit-- > 0) {
    const int result = ReadToken(file, token);
    tokens.push_back({result, token});
    if (result < 0 && std::feof(file)) break;
  }
  std::fclose(file);
  return tokens;
}

TEST(TokenizerTest, SplitsKeywordsCommasAndValues) {
  EXPECT_EQ(Tokenize("*TITLE, El Centro  \r\n 1.0\t, -2.5\n*ENDDATA"),
            (std::vector<Token>{{1, "*"},
                                {1, "TITLE"},
                                {1, ","},
                                {1, "El Centro  "},
                                {1, "1.0\t"},
                                {1, ","},
                                {1, "-2.5"},
                                {1, "*"},
                                {-1, "ENDDATA"}}));
}

TEST(TokenizerTest, CommentLinesAreSkippedWhereverATokenMayBegin) {
  EXPECT_EQ(
      Tokenize("** heading\n*FLAGS, 1\n  ** note, with * and ,\n*DATA"),
      (std::vector<Token>{
          {1, "*"}, {1, "FLAGS"}, {1, ","}, {1, "1"}, {1, "*"}, {-1, "DATA"}}));
  // The character after a comment is taken without skipping blanks: an empty
  // line after a comment reads as an empty token.
  EXPECT_EQ(Tokenize("**c\n\nA"), (std::vector<Token>{{1, ""}, {-1, "A"}}));
  EXPECT_EQ(Tokenize("** only a comment"), (std::vector<Token>{{-1, ""}}));
}

TEST(TokenizerTest, LongTokensAreCutAt120CharactersWithoutLosingTheRest) {
  const std::string line(250, 'x');
  const std::vector<Token> tokens = Tokenize(line + "\n,");
  ASSERT_EQ(tokens.size(), 5u);
  EXPECT_EQ(tokens[0], (Token{-1, std::string(120, 'x')}));
  EXPECT_EQ(tokens[1], (Token{-1, std::string(120, 'x')}));
  EXPECT_EQ(tokens[2], (Token{1, std::string(10, 'x')}));
  EXPECT_EQ(tokens[3], (Token{1, ","}));
  EXPECT_EQ(tokens[4], (Token{-1, ""}));
}

TEST(TokenizerTest, TrimAndUpperCase) {
  std::string text = "unit&type \t\r\n";
  TrimRight(text);
  MakeUpper(text);
  EXPECT_EQ(text, "UNIT&TYPE");
  std::string blank = " \t";
  TrimRight(blank);
  EXPECT_EQ(blank, "");
  std::string accented = "gr\xC3\xA4v";
  MakeUpper(accented);
  EXPECT_EQ(accented, "GR\xC3\xA4V");
}

}  // namespace
}  // namespace zel
