#include "DataFile.h"

#include "TextEncoding.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdlib>

namespace {
const std::string kUtf8ByteOrderMark = "\xEF\xBB\xBF";

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

// A whole number with an optional sign and blanks around it, from -32768 to 32767.
bool parseShortInteger(const std::string &line, int &value)
{
    size_t i = 0;
    while (i < line.size() && isBlank(line[i]))
        ++i;
    bool negative = false;
    if (i < line.size() && (line[i] == '+' || line[i] == '-')) {
        negative = line[i] == '-';
        ++i;
    }
    long magnitude = 0;
    const size_t firstDigit = i;
    while (i < line.size() && line[i] >= '0' && line[i] <= '9') {
        magnitude = magnitude * 10 + (line[i] - '0');
        if (magnitude > 32768)
            return false; // also stops runaway digit strings from overflowing
        ++i;
    }
    if (i == firstDigit)
        return false;
    while (i < line.size() && isBlank(line[i]))
        ++i;
    if (i != line.size())
        return false;
    const long result = negative ? -magnitude : magnitude;
    if (result > 32767)
        return false;
    value = static_cast<int>(result);
    return true;
}

// Reads the whole file, at most DataFile::kMaxFileSize bytes. Devices and pipes report no
// size, so they are read in pieces until their end or one byte past the limit.
bool readBounded(QFile &file, QByteArray &bytes)
{
    if (!file.isSequential()) {
        if (file.size() > DataFile::kMaxFileSize)
            return false;
        bytes = file.readAll();
        return file.error() == QFileDevice::NoError;
    }
    constexpr qint64 kPiece = 64 * 1024;
    while (bytes.size() <= DataFile::kMaxFileSize) {
        const QByteArray piece = file.read(kPiece);
        if (file.error() != QFileDevice::NoError)
            return false;
        if (piece.isEmpty())
            return true;
        bytes += piece;
    }
    return false;
}

std::string decodeFileBytes(std::string bytes)
{
    if (bytes.compare(0, kUtf8ByteOrderMark.size(), kUtf8ByteOrderMark) == 0) {
        const std::string rest = bytes.substr(kUtf8ByteOrderMark.size());
        if (isValidUtf8(rest))
            return rest;
    }
    if (isValidUtf8(bytes))
        return bytes;
    return windows1252ToUtf8(bytes);
}

// The bytes of `text` that decodeFileBytes turns back into `text`. Windows-1252 when every
// character fits, so older versions of the program can read the file; but a text such as "Ã©"
// gives the bytes C3 A9, which read as UTF-8 "é", and a text that starts with the character
// U+FEFF would lose it as a byte-order mark. Those are written as UTF-8, behind a byte-order
// mark of their own when the text starts with one.
std::string encodeFileText(const std::string &text)
{
    std::string bytes;
    if (utf8ToWindows1252(text, bytes) && decodeFileBytes(bytes) == text)
        return bytes;
    if (text.compare(0, kUtf8ByteOrderMark.size(), kUtf8ByteOrderMark) == 0)
        return kUtf8ByteOrderMark + text;
    return text;
}

// Writes every byte of `bytes`. A write that stores only part of them reports no error, so the
// rest is written again: that write then fails with the system's reason ("File too large").
bool writeAll(QSaveFile &file, const std::string &bytes)
{
    const qint64 size = static_cast<qint64>(bytes.size());
    qint64 done = 0;
    while (done < size) {
        const qint64 written = file.write(bytes.data() + done, size - done);
        if (written <= 0)
            return false;
        done += written;
    }
    return true;
}
} // namespace

DataFile::DataFile() = default;

DataFile::~DataFile() = default;

bool DataFile::fail(const std::string &message)
{
    m_errorString = message;
    return false;
}

bool DataFile::failAtLine(const std::string &message)
{
    return fail("line " + std::to_string(m_lineNumber) + ": " + message);
}

bool DataFile::OpenForWrite(const std::string &path)
{
    Close();
    m_errorString.clear();
    const QString target = QString::fromStdString(path);
    if (QFileInfo(target).isDir())
        return fail("the path names a folder");
    m_saveFile = std::make_unique<QSaveFile>(target);
    // Unbuffered: a failed write must reach QSaveFile itself, which then refuses to commit. A
    // buffered write that fails only while the buffer is flushed at commit would still replace
    // the target with a cut file.
    if (!m_saveFile->open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        const std::string reason = m_saveFile->errorString().toStdString();
        m_saveFile.reset();
        return fail(reason);
    }
    m_mode = Mode::Writing;
    m_path = path;
    m_lineNumber = 0;
    m_content.clear();
    return true;
}

bool DataFile::OpenForRead(const std::string &path)
{
    Close();
    m_errorString.clear();
    QFile file(QString::fromStdString(path));
    if (QFileInfo(file.fileName()).isDir())
        return fail("the path names a folder");
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString().toStdString());
    QByteArray bytes;
    if (!readBounded(file, bytes))
        return fail(file.error() != QFileDevice::NoError
                            ? file.errorString().toStdString()
                            : "the file is too large to be a project or settings file");
    if (bytes.contains('\0'))
        return fail("the file holds binary data, not text");
    m_content = decodeFileBytes(bytes.toStdString());
    m_readPosition = 0;
    m_lineNumber = 0;
    m_path = path;
    m_mode = Mode::Reading;
    return true;
}

bool DataFile::WriteLine(const std::string &text)
{
    if (m_mode != Mode::Writing)
        return fail("the file is not open for writing");
    ++m_lineNumber;
    // A lone CR reads back as part of its line; only LF ends a line.
    if (text.find('\n') != std::string::npos)
        return failAtLine("a value holds a line break");
    if (!isValidUtf8(text))
        return failAtLine("a value is not valid text");
    m_content += text;
    m_content += "\r\n";
    return true;
}

bool DataFile::ReadLine(std::string &text)
{
    if (m_mode != Mode::Reading)
        return fail("the file is not open for reading");
    if (atEnd())
        return fail("unexpected end of file after line " + std::to_string(m_lineNumber));
    ++m_lineNumber;
    size_t end = m_content.find('\n', m_readPosition);
    const size_t next = end == std::string::npos ? m_content.size() : end + 1;
    if (end == std::string::npos)
        end = m_content.size();
    if (end > m_readPosition && m_content[end - 1] == '\r')
        --end;
    if (end - m_readPosition > kMaxLineLength) {
        m_readPosition = m_content.size(); // nothing after a runaway line is trusted
        return failAtLine("the line is longer than " + std::to_string(kMaxLineLength)
                          + " characters");
    }
    text = m_content.substr(m_readPosition, end - m_readPosition);
    m_readPosition = next;
    return true;
}

bool DataFile::ReadInteger(int &value)
{
    std::string line;
    if (!ReadLine(line))
        return false;
    if (!parseShortInteger(line, value))
        return failAtLine("\"" + line.substr(0, 40)
                          + "\" is not a whole number from -32768 to 32767");
    return true;
}

bool DataFile::atEnd() const
{
    return m_mode != Mode::Reading || m_readPosition >= m_content.size();
}

bool DataFile::Close()
{
    const Mode mode = m_mode;
    m_mode = Mode::Closed;
    if (mode != Mode::Writing) {
        m_content.clear();
        return true;
    }
    const std::string bytes = encodeFileText(m_content);
    m_content.clear();
    bool ok = writeAll(*m_saveFile, bytes) && m_saveFile->flush()
            && m_saveFile->error() == QFileDevice::NoError;
    if (ok)
        ok = m_saveFile->commit();
    // A failed save is dropped uncommitted rather than through cancelWriting, which would
    // replace the system's reason ("No space left on device") with its own words.
    if (!ok)
        fail(m_saveFile->errorString().toStdString());
    m_saveFile.reset(); // an uncommitted QSaveFile removes its temporary file
    return ok;
}
