#pragma once

#include <memory>
#include <string>

class QSaveFile;

// A line-oriented text file, opened either for reading or for writing, used by the project file
// and the settings files. Text in and out is UTF-8.
//
// Reading: the whole file is read at OpenForRead, decoded as UTF-8 when its bytes are valid
// UTF-8 (a leading byte-order mark is dropped) and as Windows-1252 otherwise. Lines end with
// CR LF or a lone LF. Files larger than kMaxFileSize, files holding NUL bytes (binary data) and
// lines longer than kMaxLineLength are refused, so a damaged file costs bounded memory.
//
// Writing: lines are collected and written at Close, as Windows-1252 when every character fits
// (older versions of the program read that) and as UTF-8 otherwise, each line ending in CR LF;
// also as UTF-8 when the Windows-1252 bytes would read back as other text.
// The lines go to a temporary file beside the target, which replaces the target only after
// every byte was written and flushed: a failed save leaves the old file as it was.
//
// Every operation returns true on success; on failure errorString() says why.
class DataFile
{
public:
    static constexpr long long kMaxFileSize = 16 * 1024 * 1024;
    static constexpr size_t kMaxLineLength = 65536;

    DataFile();
    ~DataFile(); // closes a file opened for reading; discards an unfinished save
    DataFile(const DataFile &) = delete;
    DataFile &operator=(const DataFile &) = delete;

    // Creates the temporary file beside `path`; fails when the folder cannot take it, or when
    // `path` names a folder.
    bool OpenForWrite(const std::string &path);
    // Reads and decodes the whole file; fails when it is missing, unreadable or not text.
    bool OpenForRead(const std::string &path);

    // Adds one line (without its terminator). A text holding LF is refused: it would break the
    // file's one-value-per-line layout. A lone CR reads back as part of the line and is kept.
    bool WriteLine(const std::string &text);
    // The next line without its terminator; fails at the end of the file.
    bool ReadLine(std::string &text);
    // Reads the next line as a whole number from -32768 to 32767, with an optional sign and
    // blanks around it; fails at the end of the file or on any other text.
    bool ReadInteger(int &value);
    // True when every line has been read (or no file is open for reading).
    bool atEnd() const;

    // For reading: forgets the file. For writing: encodes and writes the lines and replaces the
    // target; fails, keeping the old file, when any of that fails.
    bool Close();

    const std::string &errorString() const { return m_errorString; }
    // Number of the line last read or written, from 1.
    int lineNumber() const { return m_lineNumber; }

private:
    enum class Mode { Closed, Reading, Writing };

    bool fail(const std::string &message);
    bool failAtLine(const std::string &message);

    Mode m_mode = Mode::Closed;
    std::string m_path;
    std::string m_errorString;
    int m_lineNumber = 0;
    std::string m_content; // reading: the decoded file; writing: the lines so far, CR LF ended
    size_t m_readPosition = 0;
    std::unique_ptr<QSaveFile> m_saveFile;
};
