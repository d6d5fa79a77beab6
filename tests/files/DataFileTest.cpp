#include "DataFile.h"

#include "Files.h"
#include "SettingsFiles.h"
#include "TextEncoding.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {
using Lines = std::vector<std::string>;

// Every line of the file; fails the test when the file does not open.
Lines readAllLines(const std::string &path)
{
    DataFile file;
    EXPECT_TRUE(file.OpenForRead(path)) << file.errorString();
    Lines lines;
    std::string line;
    while (file.ReadLine(line))
        lines.push_back(line);
    EXPECT_TRUE(file.atEnd());
    return lines;
}

struct FileCase
{
    const char *name;
    std::string bytes;
    Lines lines; // UTF-8
};

// "\xC3\xA9" is é in UTF-8, "\xE9" in Windows-1252.
const FileCase kReads[] = {
    { "CR LF", "a\r\nb\r\n", { "a", "b" } },
    { "lone LF", "a\nb\n", { "a", "b" } },
    { "no terminator on the last line", "a\r\nb", { "a", "b" } },
    { "a CR inside a line stays", "a\rb\r\n", { "a\rb" } },
    { "empty file", "", {} },
    { "a single terminator is one empty line", "\r\n", { "" } },
    { "UTF-8", "caf\xC3\xA9 \xE2\x82\xAC", { "caf\xC3\xA9 \xE2\x82\xAC" } },
    { "Windows-1252 letters", "caf\xE9", { "caf\xC3\xA9" } },
    { "Windows-1252 signs", "\x80 \x93q\x94", { "\xE2\x82\xAC \xE2\x80\x9Cq\xE2\x80\x9D" } },
    { "Windows-1252 undefined byte", "a\x81", { "a\xC2\x81" } },
    { "byte-order mark dropped", "\xEF\xBB\xBFSwale_03", { "Swale_03" } },
};

TEST(DataFileReading, LinesOfUtf8ElseWindows1252)
{
    TempFolder folder;
    const std::string path = folder.file("read.txt");
    for (const FileCase &row : kReads) {
        SCOPED_TRACE(row.name);
        writeBytes(path, row.bytes);
        EXPECT_EQ(readAllLines(path), row.lines);
    }
}

// Lines that once came back changed, or could not be written at all, after being read from a
// file, and the bytes the file must hold: whatever a file gave must save and read back as it was.
const FileCase kRoundTrips[] = {
    { "every character fits Windows-1252",
      "caf\xE9\r\n\x80 5\r\n",
      { "caf\xC3\xA9", "\xE2\x82\xAC 5" } },
    { "one character that does not fit makes the file UTF-8",
      "caf\xC3\xA9\r\n\xCE\x94h\r\n",
      { "caf\xC3\xA9", "\xCE\x94h" } },
    { "Windows-1252 text that would read as UTF-8 is written as UTF-8",
      "\xC3\x83\xC2\xA9\r\n",
      { "\xC3\x83\xC2\xA9" } },
    // "Ã©" reads as é only when the whole file is UTF-8: one byte elsewhere that cannot be UTF-8
    // decides for Windows-1252.
    { "a byte elsewhere that cannot be UTF-8 keeps the file Windows-1252",
      "caf\xE9\r\n\xC3\xA9\r\n",
      { "caf\xC3\xA9", "\xC3\x83\xC2\xA9" } },
    { "a leading U+FEFF keeps a byte-order mark in front of it",
      "\xEF\xBB\xBF\xEF\xBB\xBFpath\r\n",
      { "\xEF\xBB\xBFpath" } },
    { "a lone CR inside a value", "carriage\rreturn\r\n", { "carriage\rreturn" } },
    { "a CR at the end of a value", "ends\r\r\nnext\r\n", { "ends\r", "next" } },
};

TEST(DataFileEncoding, WrittenLinesReadBackUnchanged)
{
    TempFolder folder;
    const std::string path = folder.file("round.txt");
    for (const FileCase &row : kRoundTrips) {
        SCOPED_TRACE(row.name);
        ASSERT_TRUE(WriteSettingsFile(path, row.lines)); // DataFile's lines, then Close
        EXPECT_EQ(readBytes(path), row.bytes);
        EXPECT_EQ(readAllLines(path), row.lines);
    }
}

TEST(TextEncoding, RecognisesMalformedUtf8)
{
    EXPECT_TRUE(isValidUtf8("\xF0\x9F\x98\x80")); // U+1F600
    EXPECT_FALSE(isValidUtf8("\xC0\xAF")); // overlong "/"
    EXPECT_FALSE(isValidUtf8("\xED\xA0\x80")); // a surrogate
    EXPECT_FALSE(isValidUtf8("\xF4\x90\x80\x80")); // beyond U+10FFFF
    EXPECT_FALSE(isValidUtf8("\xE2\x82")); // cut short
}

TEST(TextEncoding, EveryWindows1252ByteRoundTrips)
{
    std::string all;
    for (int b = 1; b < 256; ++b)
        all += static_cast<char>(b);
    const std::string text = windows1252ToUtf8(all);
    EXPECT_TRUE(isValidUtf8(text));
    std::string back;
    ASSERT_TRUE(utf8ToWindows1252(text, back));
    EXPECT_EQ(back, all);
}

// The messages of the refusals name the line: ProjectFileTest's damaged files check them.
const std::pair<const char *, std::optional<int>> kIntegers[] = {
    { "  12  ", 12 },   { "\t5\t", 5 },       { "+7", 7 },     { "-1", -1 },
    { "32767", 32767 }, { "-32768", -32768 }, { "32768", {} }, { "-32769", {} },
    { "", {} },         { "1.5", {} },        { "1e3", {} },   { "0x10", {} },
};

TEST(DataFileReadInteger, AcceptsOnlyShortWholeNumbers)
{
    TempFolder folder;
    const std::string path = folder.file("integers.txt");
    for (const auto &[line, expected] : kIntegers) {
        SCOPED_TRACE(std::string("line [") + line + "]");
        writeBytes(path, std::string(line) + "\r\n");
        DataFile file;
        ASSERT_TRUE(file.OpenForRead(path));
        int value = -999;
        EXPECT_EQ(file.ReadInteger(value), expected.has_value());
        if (expected) {
            EXPECT_EQ(value, *expected);
        }
    }
}

// Files that are no text the program wrote are refused at opening, with a reason.
TEST(DataFileRefusals, FilesThatAreNoTextDoNotOpen)
{
    TempFolder folder;
    const std::string binary = folder.file("binary.swl");
    writeBytes(binary, std::string("Swale_03\r\n\x01\x02\0\xFF\xFE", 15));
    const std::string large = folder.file("large.txt");
    writeBytes(large, std::string(static_cast<size_t>(DataFile::kMaxFileSize) + 1, '\n'));
    const std::string paths[] = { folder.file("missing.swl"), folder.path(), binary, large };
    for (const std::string &path : paths) {
        SCOPED_TRACE(path);
        DataFile file;
        EXPECT_FALSE(file.OpenForRead(path));
        EXPECT_FALSE(file.errorString().empty());
    }
    DataFile file;
    EXPECT_FALSE(file.OpenForWrite(folder.path()));
    EXPECT_FALSE(file.OpenForWrite(folder.file("no/such/folder/x.swl")));
}

TEST(DataFileRefusals, AHugeLineFailsItsRead)
{
    TempFolder folder;
    const std::string path = folder.file("huge.swl");
    writeBytes(path,
               "Swale_03\r\n" + std::string(DataFile::kMaxLineLength + 1, '7') + "\r\nafter\r\n");
    DataFile file;
    ASSERT_TRUE(file.OpenForRead(path));
    std::string line;
    ASSERT_TRUE(file.ReadLine(line));
    EXPECT_FALSE(file.ReadLine(line));
    EXPECT_NE(file.errorString().find("line 2: the line is longer than"), std::string::npos);
    EXPECT_FALSE(file.ReadLine(line)) << "nothing after a runaway line is read";

    // A line of exactly the limit is still read.
    writeBytes(path, std::string(DataFile::kMaxLineLength, 'x'));
    ASSERT_TRUE(file.OpenForRead(path));
    EXPECT_TRUE(file.ReadLine(line));
    EXPECT_EQ(line.size(), DataFile::kMaxLineLength);
}

} // namespace
