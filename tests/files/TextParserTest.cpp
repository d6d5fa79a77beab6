#include "TextParser.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <vector>

namespace {
using Tokens = std::vector<std::string>;

// Every token of `text`, in order, until GetNextToken reports false. Tokens are never empty: a
// parser that does not come to an end stops at the bound with a token left.
template<typename Parser>
Tokens tokensOf(Parser &parser, const std::string &text)
{
    parser.setText(text);
    Tokens tokens;
    std::string token;
    for (bool more = parser.GetFirstToken(token); more && tokens.size() <= text.size();
         more = parser.GetNextToken(token))
        tokens.push_back(token);
    EXPECT_EQ(token, "") << "a failed read leaves an empty token; else the parser does not end";
    return tokens;
}

struct TokenCase
{
    bool atBlanks; // clsTextParser, else clsTextParserExt
    const char *customDelimiters;
    std::string text;
    Tokens expected;
};

const TokenCase kCases[] = {
    // At blanks, the blanks before a token stay with it: the token starts at the cursor, which
    // rests on the separating blank after each token.
    { true, "", "ab cd ef", { "ab", " cd", " ef" } },
    { true, "", "a   ", { "a", "   " } }, // trailing blanks come back once
    { true, "", "  ab", { "  ab" } },
    { true, "", "   ", { "   " } },
    { true, "", "", {} },
    // The cursor is a 16-bit integer in the design: a longer text is split as far as the cursor
    // reaches, and the parser still ends.
    { true, "", std::string(32767, 'a') + " tail", { std::string(32767, 'a') } },
    // With delimiters, only blanks are skipped before a token; the delimiter search starts one
    // place after the token's first non-blank character, and the delimiter that ends a token is
    // consumed.
    { false, ";", "1,5;2 5", { "1,5", "2 5" } }, // custom delimiters replace the defaults
    { false, "", "1,5;2", { "1", "5;2" } }, // "" brings the defaults back
    { false, "", "1.5, 2.0", { "1.5", " 2.0" } },
    { false, "", "1.5,,2", { "1.5", ",2" } }, // an empty field absorbs its comma
    { false, "", ",5", { ",5" } },
    { false, "", "1 ,2", { "1", ",2" } },
    { false, "", "7 ", { "7" } }, // a trailing blank ends the last token
    { false, "", "", {} },
};

// One parser of each kind reads every row: each new text starts over.
TEST(TextParsers, SplitTextsIntoTokens)
{
    clsTextParser atBlanks;
    clsTextParserExt atDelimiters;
    for (size_t i = 0; i < std::size(kCases); ++i) {
        const TokenCase &row = kCases[i];
        SCOPED_TRACE("row " + std::to_string(i) + ": [" + row.text.substr(0, 20) + "]");
        atDelimiters.setCustomDelimiters(row.customDelimiters);
        EXPECT_EQ(row.atBlanks ? tokensOf(atBlanks, row.text) : tokensOf(atDelimiters, row.text),
                  row.expected);
    }
}
} // namespace
