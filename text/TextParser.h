#pragma once

#include <string>

// Token readers with a 1-based cursor. Their cursor rules are deliberate: a token starts at the
// cursor, so it may carry the blanks in front of it; callers trim or convert the tokens.
// Positions are 16-bit in the file format's design: texts past 32,767 characters are not split.

// Tokens separated by blanks. For "ab cd ef" the tokens are "ab", " cd", " ef".
class clsTextParser
{
public:
    // Stores the text and puts the cursor on its first character.
    void setText(const std::string &text);
    const std::string &Text() const { return m_text; }

    // Puts the cursor back on the first character, then reads a token as GetNextToken does.
    bool GetFirstToken(std::string &token);
    // The next token and true, or "" and false when the cursor is past the end.
    bool GetNextToken(std::string &token);

private:
    std::string m_text;
    int m_length = 0;
    int m_position = 1;
};

// Tokens separated by any of a set of delimiters: the custom set when one is given, else blank,
// comma and tab. Only blanks are skipped before a token, and the delimiter search starts one
// place after the token's first non-blank character, so "1.5,,2" gives "1.5" and ",2".
class clsTextParserExt
{
public:
    void setText(const std::string &text);
    const std::string &Text() const { return m_text; }
    // Replaces the default delimiters; "" goes back to them.
    void setCustomDelimiters(const std::string &delimiters) { m_customDelimiters = delimiters; }

    bool GetFirstToken(std::string &token);
    bool GetNextToken(std::string &token);

private:
    const std::string &activeDelimiters() const;

    int m_position = 1;
    std::string m_text;
    std::string m_customDelimiters;
    std::string m_defaultDelimiters = std::string(" ,\t");
    int m_length = 0;
};
