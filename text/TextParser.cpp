#include "TextParser.h"

namespace {
// Characters from 1-based position `from` to `to`, inclusive.
std::string slice(const std::string &text, int from, int to)
{
    if (to < from)
        return {};
    return text.substr(static_cast<size_t>(from - 1), static_cast<size_t>(to - from + 1));
}

char at(const std::string &text, int position)
{
    return text[static_cast<size_t>(position - 1)];
}

// Position of the first non-blank character from `position` on; `length` when all are blank.
int firstNonBlank(const std::string &text, int position, int length)
{
    for (int i = position; i <= length; ++i) {
        if (at(text, i) != ' ')
            return i;
    }
    return length;
}

int clampedLength(const std::string &text)
{
    // The cursor is a 16-bit integer in the design; longer texts are cut to what it can reach.
    return text.size() > 32767 ? 32767 : static_cast<int>(text.size());
}

// The cursor rules both parsers share. The token starts at the cursor (so it keeps the blanks
// before it); the separator search starts one place after the first non-blank character.
// `consumed` is 0 when the cursor stays on the separator, 1 when it steps past it.
template<typename IsSeparator>
bool readToken(const std::string &text, int length, int &position, IsSeparator isSeparator,
               int consumed, std::string &token)
{
    token.clear();
    if (position > length)
        return false;
    const int start = firstNonBlank(text, position, length);
    if (start == length) {
        token = slice(text, position, length);
        position = length + 1;
        return true;
    }
    int end = length + 1;
    for (int i = start + 1; i <= length; ++i) {
        if (isSeparator(at(text, i))) {
            end = i;
            break;
        }
    }
    token = slice(text, position, end - 1);
    position = end + consumed;
    return true;
}
} // namespace

void clsTextParser::setText(const std::string &text)
{
    m_text = text;
    m_length = clampedLength(text);
    m_position = 1;
}

bool clsTextParser::GetFirstToken(std::string &token)
{
    m_position = 1;
    return GetNextToken(token);
}

bool clsTextParser::GetNextToken(std::string &token)
{
    // The cursor stays on the separating blank.
    return readToken(
            m_text, m_length, m_position, [](char c) { return c == ' '; }, 0, token);
}

void clsTextParserExt::setText(const std::string &text)
{
    m_text = text;
    m_length = clampedLength(text);
    m_position = 1;
}

const std::string &clsTextParserExt::activeDelimiters() const
{
    return m_customDelimiters.empty() ? m_defaultDelimiters : m_customDelimiters;
}

bool clsTextParserExt::GetFirstToken(std::string &token)
{
    m_position = 1;
    return GetNextToken(token);
}

bool clsTextParserExt::GetNextToken(std::string &token)
{
    const std::string &delimiters = activeDelimiters();
    const auto isDelimiter
            = [&delimiters](char c) { return delimiters.find(c) != std::string::npos; };
    return readToken(m_text, m_length, m_position, isDelimiter, 1,
                     token); // the delimiter is consumed
}
