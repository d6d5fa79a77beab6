#include "TextParser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {
// Every token of `text`, in order, until GetNextToken reports false.
template<typename Parser>
std::vector<std::string> tokensOf(Parser &parser, const std::string &text)
{
    parser.setText(text);
    std::vector<std::string> tokens;
    std::string token;
    bool more = parser.GetFirstToken(token);
    while (more) {
        tokens.push_back(token);
        if (tokens.size() > text.size() + 1) {
            ADD_FAILURE() << "the parser does not come to an end";
            break;
        }
        more = parser.GetNextToken(token);
    }
    EXPECT_EQ(token, "") << "a failed read leaves an empty token";
    return tokens;
}

using Tokens = std::vector<std::string>;

struct TokenCase
{
    const char *name;
    std::string text;
    Tokens expected;
};

// The blanks before a token stay with it: the token starts at the cursor, which rests on the
// separating blank after each token.
const TokenCase kBlankCases[] = {
    { "three words", "ab cd ef", { "ab", " cd", " ef" } },
    { "trailing blanks come back once", "a   ", { "a", "   " } },
    { "leading blanks belong to the first token", "  ab", { "  ab" } },
    { "blanks only", "   ", { "   " } },
    { "empty text", "", {} },
};

// Only blanks are skipped before a token; the delimiter search starts one place after the
// token's first non-blank character, and the delimiter that ends a token is consumed.
const TokenCase kDelimiterCases[] = {
    { "blank after the comma stays", "1.5, 2.0", { "1.5", " 2.0" } },
    { "empty field absorbs its comma", "1.5,,2", { "1.5", ",2" } },
    { "leading comma", ",5", { ",5" } },
    { "blank and comma", "1 ,2", { "1", ",2" } },
    { "a trailing blank ends the last token", "7 ", { "7" } },
    { "empty text", "", {} },
};

TEST(clsTextParser, SplitsAtBlanksKeepingLeadingBlanks)
{
    for (const TokenCase &row : kBlankCases) {
        SCOPED_TRACE(row.name);
        clsTextParser parser;
        EXPECT_EQ(tokensOf(parser, row.text), row.expected);
    }
}

TEST(clsTextParserExt, SplitsAtDefaultDelimiters)
{
    for (const TokenCase &row : kDelimiterCases) {
        SCOPED_TRACE(row.name);
        clsTextParserExt parser;
        EXPECT_EQ(tokensOf(parser, row.text), row.expected);
    }
}

TEST(clsTextParserExt, CustomDelimitersReplaceTheDefaults)
{
    clsTextParserExt parser;
    parser.setCustomDelimiters(";");
    EXPECT_EQ(tokensOf(parser, "1,5;2 5"), (Tokens { "1,5", "2 5" }));
    parser.setCustomDelimiters("");
    EXPECT_EQ(tokensOf(parser, "1,5;2"), (Tokens { "1", "5;2" }));
}

// GetFirstToken starts over on the same text; setText starts over on a new one.
TEST(TextParsers, GetFirstTokenAndSetTextStartOver)
{
    clsTextParserExt parser;
    parser.setText("4,8");
    std::string token;
    ASSERT_TRUE(parser.GetFirstToken(token));
    ASSERT_TRUE(parser.GetNextToken(token));
    ASSERT_TRUE(parser.GetFirstToken(token));
    EXPECT_EQ(token, "4");
    parser.setText("three");
    ASSERT_TRUE(parser.GetNextToken(token));
    EXPECT_EQ(token, "three");
}

TEST(TextParsers, TextBeyondTheSixteenBitCursorIsNotReached)
{
    // The cursor of the design is a 16-bit integer: a text longer than 32,767 characters is
    // split as far as the cursor reaches, and the parser still ends.
    const std::string text = std::string(32767, 'a') + " tail";
    clsTextParser parser;
    const Tokens tokens = tokensOf(parser, text);
    ASSERT_EQ(tokens.size(), 1u);
    EXPECT_EQ(tokens[0].size(), 32767u);
}
} // namespace
