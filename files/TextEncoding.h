#pragma once

#include <string>

// The two character sets of project and settings files. Text inside the program is UTF-8;
// files written by older versions of the program are in Windows-1252 (the Western code page),
// so a file is read as UTF-8 when its bytes are valid UTF-8 and as Windows-1252 otherwise.

// True when `bytes` is well-formed UTF-8 (no overlong forms, no surrogates, at most U+10FFFF).
bool isValidUtf8(const std::string &bytes);

// Turns Windows-1252 bytes into UTF-8. The five bytes the code page leaves undefined (81, 8D,
// 8F, 90, 9D) become the control characters of the same number, as Windows itself maps them.
std::string windows1252ToUtf8(const std::string &bytes);

// Turns valid UTF-8 into Windows-1252. Returns false, leaving `bytes` unspecified, when a
// character has no place in the code page (or the text is not valid UTF-8).
bool utf8ToWindows1252(const std::string &text, std::string &bytes);
