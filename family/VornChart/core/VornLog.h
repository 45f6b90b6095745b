#pragma once

#include "family/VornChart/core/Export.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

/// Weight of a log message; the smaller, the graver.
enum LogStatus : int
{
    LOG_FATAL = 0,
    LOG_ERROR = 1,
    LOG_WARNING = 2,
    LOG_INFO = 3,
    LOG_DEBUG = 4
};

/// The process's message log: collects every message in memory and, once InitLog has opened a file, appends it there
/// too. Messages are kept as they come, each followed by a carriage return and a line feed. Used from one thread.
class VORNCHART_API VornLog
{
public:
    VornLog();

    /// A copy has the text and the thresholds of @p other, and no file.
    VornLog(const VornLog& other);

    /// Takes over text and thresholds of @p other and keeps this log's own file.
    VornLog& operator=(const VornLog& other);

    virtual ~VornLog();

    /// Hands out a copy of the collected text, terminated by a zero; the caller releases it with delete[].
    /// @return the text's length without the zero; -1 with a null @p text when there is no memory for it.
    virtual int GetLog(char*& text);

    /// Opens @p file for appending, in place of the file opened before, and creates it if need be.
    /// @return false when the name is null or empty or the file cannot be opened; the log then goes on as before.
    bool InitLog(const char* file);

    /// Adds @p text and a line end to the collected text and to the open file, which is flushed. Null adds nothing.
    void LogMsg(const char* text, LogStatus level);
    void LogMsg(const std::string& text, LogStatus level);

    /// Empties the collected text; the file keeps what it has and stays open.
    void ClearLog();

    /// The weight up to which messages are worth showing to the user, and the same for the alternative, more talkative
    /// display. Everything is logged in any case.
    void SetDisplayThresholds(LogStatus normal, LogStatus alternative);

    /// The log that the whole process shares; null until someone makes it.
    static VornLog* Shared();

protected:
    /// The shared log, for the derived class that makes it; who makes it deletes it.
    static VornLog* mpSingleInst;

    /// A message of this weight or graver is worth showing to the user; LOG_ERROR at first.
    LogStatus mDisplayLevel = LOG_ERROR;

    /// The same for the alternative, more talkative display; LOG_WARNING at first.
    LogStatus mAltDisplayLevel = LOG_WARNING;

private:
    struct FileCloser
    {
        void operator()(std::FILE* file) const
        {
            std::fclose(file);
        }
    };

    void Add(std::string_view text);

    std::string m_text;
    std::unique_ptr<std::FILE, FileCloser> m_file;
};
