#pragma once

// What a displayed number or a message may never hold, shared by the robustness tests and the
// calc fuzzer (header only: the fuzzers build on their own).

#include <cctype>
#include <cmath>
#include <cstdlib>
#include <string>

inline std::string lowerCase(std::string text)
{
    for (char &c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// Output texts are numbers: neither "nan" nor "inf" may appear anywhere in them.
inline bool holdsNanOrInf(const std::string &text)
{
    const std::string lower = lowerCase(text);
    return lower.find("nan") != std::string::npos || lower.find("inf") != std::string::npos;
}

// A result text is a finite number as the display writes it, never "nan", "inf" or junk.
inline bool isFiniteNumberText(const std::string &text)
{
    if (text.empty() || holdsNanOrInf(text))
        return false;
    char *end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    return *end == '\0' && std::isfinite(value);
}

// Messages are words ("infiltration" is one): "nan", "inf" and "infinity" must not stand as a
// word of their own, as printf would write them into a message.
inline bool holdsNanOrInfWord(const std::string &text)
{
    const std::string lower = lowerCase(text);
    const auto isLetter = [&lower](size_t i) {
        return i < lower.size() && std::isalpha(static_cast<unsigned char>(lower[i]));
    };
    for (const std::string word : { "nan", "inf", "infinity" }) {
        for (size_t at = lower.find(word); at != std::string::npos; at = lower.find(word, at + 1)) {
            if ((at == 0 || !isLetter(at - 1)) && !isLetter(at + word.size()))
                return true;
        }
    }
    return false;
}
