#include "framework/core/StdioFile.h"

#include "framework/core/FileSystem.h"

#include <cerrno>
#include <cstring>
#include <memory>
#include <utility>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace
{
const char* StreamMode(UINT flags, bool isText)
{
    if ((flags & CFile::modeReadWrite) != 0)
    {
        return isText ? "r+" : "r+b";
    }
    if ((flags & CFile::modeWrite) != 0)
    {
        return isText ? "w" : "wb";
    }
    return isText ? "r" : "rb";
}

// The file itself is already open in the wanted way, so "w" cuts nothing here.
std::FILE* StreamOn(HANDLE file, UINT flags, bool isText)
{
#ifdef _WIN32
    const int descriptor = _open_osfhandle(reinterpret_cast<INT_PTR>(file), isText ? _O_TEXT : _O_BINARY);
    return descriptor >= 0 ? _fdopen(descriptor, StreamMode(flags, isText)) : nullptr;
#else
    return fdopen(static_cast<int>(reinterpret_cast<INT_PTR>(file)), StreamMode(flags, isText));
#endif
}

int SeekStream(std::FILE* stream, LONGLONG offset, int whence)
{
#ifdef _WIN32
    return _fseeki64(stream, offset, whence);
#else
    return fseeko(stream, offset, whence);
#endif
}

LONGLONG TellStream(std::FILE* stream)
{
#ifdef _WIN32
    return _ftelli64(stream);
#else
    return ftello(stream);
#endif
}
} // namespace

CStdioFile::CStdioFile() = default;

CStdioFile::CStdioFile(std::FILE* pOpenStream) : m_pStream(pOpenStream)
{
}

CStdioFile::CStdioFile(LPCSTR lpszFileName, UINT nOpenFlags)
{
    auto error = std::make_unique<CFileException>();
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, error.get()))
    {
        throw error.release(); // ended by the handler's Delete()
    }
}

CStdioFile::~CStdioFile()
{
    if (m_bCloseOnDelete)
    {
        CStdioFile::Abort();
    }
}

BOOL CStdioFile::Open(LPCSTR lpszFileName, UINT nOpenFlags, CFileException* pError)
{
    if (!CFile::Open(lpszFileName, nOpenFlags, pError))
    {
        return FALSE;
    }
    m_isText = (nOpenFlags & typeBinary) == 0;
    m_pStream = StreamOn(m_hFile, nOpenFlags, m_isText);
    if (m_pStream != nullptr)
    {
        return TRUE;
    }
    CFile::Abort();
    if (pError != nullptr)
    {
        pError->m_cause = CFileException::tooManyOpenFiles;
        pError->m_lOsError = errno;
        pError->m_strFileName = lpszFileName;
    }
    return FALSE;
}

void CStdioFile::CheckOpen() const
{
    if (m_pStream == nullptr)
    {
        AfxThrowFileException(CFileException::invalidFile, -1, m_strFileName);
    }
}

void CStdioFile::ThrowLastError(int cause) const
{
    AfxThrowFileException(cause, errno, m_strFileName);
}

LPSTR CStdioFile::ReadString(LPSTR lpsz, UINT nMax)
{
    CheckOpen();
    if (lpsz == nullptr || nMax == 0 || nMax > 0x7FFFFFFF)
    {
        AfxThrowInvalidArgException();
    }
    LPSTR line = std::fgets(lpsz, static_cast<int>(nMax), m_pStream);
    if (line == nullptr && std::ferror(m_pStream) != 0)
    {
        std::clearerr(m_pStream);
        ThrowLastError(CFileException::genericException);
    }
    return line;
}

namespace
{
// A piece of a line in a buffer without zeros, so that the last zero is the piece's end: lines may hold zeros.
template <std::size_t SIZE>
bool ReadPiece(CStdioFile& file, char (&piece)[SIZE])
{
    std::memset(piece, '\n', SIZE);
    return file.ReadString(piece, SIZE) != nullptr;
}

template <std::size_t SIZE>
std::size_t LengthOfPiece(const char (&piece)[SIZE])
{
    std::size_t end = SIZE;
    while (end > 0 && piece[end - 1] != '\0')
    {
        --end;
    }
    return end > 0 ? end - 1 : 0;
}
} // namespace

BOOL CStdioFile::ReadString(CString& rString)
{
    rString.Empty();
    char piece[256];
    while (ReadPiece(*this, piece))
    {
        const std::size_t length = LengthOfPiece(piece);
        const bool isEnd = length > 0 && piece[length - 1] == '\n';
        rString.Append(piece, static_cast<int>(isEnd ? length - 1 : length));
        if (isEnd)
        {
            if (m_isText && !rString.IsEmpty() && rString[rString.GetLength() - 1] == '\r')
            {
                rString.Truncate(rString.GetLength() - 1);
            }
            return TRUE;
        }
    }
    return !rString.IsEmpty();
}

void CStdioFile::WriteString(LPCSTR lpsz)
{
    CheckOpen();
    if (lpsz == nullptr)
    {
        AfxThrowInvalidArgException();
    }
    if (std::fputs(lpsz, m_pStream) < 0)
    {
        ThrowLastError(CFileException::diskFull);
    }
}

UINT CStdioFile::Read(void* lpBuf, UINT nCount)
{
    CheckOpen();
    if (nCount == 0)
    {
        return 0;
    }
    const std::size_t read = std::fread(lpBuf, 1, nCount, m_pStream);
    if (read < nCount && std::ferror(m_pStream) != 0)
    {
        std::clearerr(m_pStream);
        ThrowLastError(CFileException::genericException);
    }
    return static_cast<UINT>(read);
}

void CStdioFile::Write(const void* lpBuf, UINT nCount)
{
    CheckOpen();
    if (nCount > 0 && std::fwrite(lpBuf, 1, nCount, m_pStream) != nCount)
    {
        ThrowLastError(CFileException::diskFull);
    }
}

void CStdioFile::Flush()
{
    if (m_pStream != nullptr && std::fflush(m_pStream) != 0)
    {
        ThrowLastError(CFileException::diskFull);
    }
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom)
{
    constexpr int kWhence[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    CheckOpen();
    if (nFrom > end || SeekStream(m_pStream, lOff, kWhence[nFrom]) != 0)
    {
        ThrowLastError(CFileException::badSeek);
    }
    return CStdioFile::GetPosition();
}

ULONGLONG CStdioFile::GetPosition() const
{
    CheckOpen();
    const LONGLONG position = TellStream(m_pStream);
    if (position < 0)
    {
        ThrowLastError(CFileException::invalidFile);
    }
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CStdioFile::GetLength() const
{
    CheckOpen();
    const LONGLONG here = TellStream(m_pStream);
    if (here < 0 || SeekStream(m_pStream, 0, SEEK_END) != 0)
    {
        ThrowLastError(CFileException::invalidFile);
    }
    const LONGLONG length = TellStream(m_pStream);
    SeekStream(m_pStream, here, SEEK_SET);
    return static_cast<ULONGLONG>(length);
}

void CStdioFile::SetLength(ULONGLONG dwNewLen)
{
    CheckOpen();
    Flush();
    CFile::SetLength(dwNewLen);
    Seek(static_cast<LONGLONG>(dwNewLen), begin);
}

void CStdioFile::LockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

void CStdioFile::UnlockRange(ULONGLONG, ULONGLONG)
{
    AfxThrowNotSupportedException();
}

CFile* CStdioFile::Duplicate() const
{
    AfxThrowNotSupportedException();
}

// Closing the stream closes the handle below it.
void CStdioFile::Abort()
{
    if (std::FILE* stream = std::exchange(m_pStream, nullptr))
    {
        std::fclose(stream);
        m_hFile = hFileNull;
    }
    CFile::Abort();
}

void CStdioFile::Close()
{
    const CString path = m_strFileName;
    std::FILE* stream = std::exchange(m_pStream, nullptr);
    m_hFile = hFileNull;
    CFile::Abort();
    if (stream != nullptr && std::fclose(stream) != 0)
    {
        AfxThrowFileException(CFileException::diskFull, errno, path);
    }
}
