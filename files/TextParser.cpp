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
    token.clear();
    if (m_position > m_length)
        return false;
    const int start = firstNonBlank(m_text, m_position, m_length);
    if (start == m_length) {
        token = slice(m_text, m_position, m_length);
        m_position = m_length + 1;
        return true;
    }
    int end = m_length + 1;
    for (int i = start + 1; i <= m_length; ++i) {
        if (at(m_text, i) == ' ') {
            end = i;
            break;
        }
    }
    token = slice(m_text, m_position, end - 1);
    m_position = end; // the cursor stays on the separating blank
    return true;
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
    token.clear();
    const std::string &delimiters = activeDelimiters();
    if (m_position > m_length)
        return false;
    const int start = firstNonBlank(m_text, m_position, m_length);
    if (start == m_length) {
        token = slice(m_text, m_position, m_length);
        m_position = m_length + 1;
        return true;
    }
    int end = m_length + 1;
    for (int i = start + 1; i <= m_length; ++i) {
        if (delimiters.find(at(m_text, i)) != std::string::npos) {
            end = i;
            break;
        }
    }
    token = slice(m_text, m_position, end - 1);
    m_position = end + 1; // the delimiter is consumed
    return true;
}
