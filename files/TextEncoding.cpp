#include "TextEncoding.h"

#include <array>
#include <cstdint>

namespace {
// Code points of the Windows-1252 bytes 80 to 9F; the rest of the upper half is Latin-1.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80-87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88-8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90-97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98-9F
};

void appendUtf8(std::string &out, char32_t cp)
{
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

// Decodes the character starting at bytes[i]; advances i. Returns false on malformed input.
bool decodeUtf8(const std::string &bytes, size_t &i, char32_t &cp)
{
    const auto byteAt = [&bytes](size_t k) { return static_cast<uint8_t>(bytes[k]); };
    const uint8_t lead = byteAt(i);
    int extra = 0;
    char32_t minimum = 0;
    if (lead < 0x80) {
        cp = lead;
        ++i;
        return true;
    } else if ((lead & 0xE0) == 0xC0) {
        extra = 1;
        minimum = 0x80;
        cp = lead & 0x1F;
    } else if ((lead & 0xF0) == 0xE0) {
        extra = 2;
        minimum = 0x800;
        cp = lead & 0x0F;
    } else if ((lead & 0xF8) == 0xF0) {
        extra = 3;
        minimum = 0x10000;
        cp = lead & 0x07;
    } else {
        return false;
    }
    if (i + static_cast<size_t>(extra) >= bytes.size())
        return false; // cut short
    for (int k = 1; k <= extra; ++k) {
        const uint8_t next = byteAt(i + static_cast<size_t>(k));
        if ((next & 0xC0) != 0x80)
            return false;
        cp = (cp << 6) | (next & 0x3F);
    }
    if (cp < minimum || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF))
        return false;
    i += static_cast<size_t>(extra) + 1;
    return true;
}
} // namespace

bool isValidUtf8(const std::string &bytes)
{
    size_t i = 0;
    char32_t cp = 0;
    while (i < bytes.size()) {
        if (!decodeUtf8(bytes, i, cp))
            return false;
    }
    return true;
}

std::string windows1252ToUtf8(const std::string &bytes)
{
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) {
        const auto b = static_cast<uint8_t>(c);
        if (b < 0x80)
            out += c;
        else if (b < 0xA0)
            appendUtf8(out, kHighControls[b - 0x80]);
        else
            appendUtf8(out, b);
    }
    return out;
}

bool utf8ToWindows1252(const std::string &text, std::string &bytes)
{
    bytes.clear();
    bytes.reserve(text.size());
    size_t i = 0;
    char32_t cp = 0;
    while (i < text.size()) {
        if (!decodeUtf8(text, i, cp))
            return false;
        if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) {
            bytes += static_cast<char>(cp);
            continue;
        }
        bool found = false;
        for (size_t k = 0; k < kHighControls.size(); ++k) {
            if (kHighControls[k] == cp) {
                bytes += static_cast<char>(0x80 + k);
                found = true;
                break;
            }
        }
        if (!found)
            return false;
    }
    return true;
}
