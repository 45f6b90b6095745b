#pragma once

#include "framework/window/CWinApp.h"

#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// An application whose profile is a few lists of bytes.
class ProfileApp : public CWinApp
{
public:
    ProfileApp() : CWinApp("LayoutTests")
    {
    }
    BOOL GetProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE* data, UINT* size) override
    {
        ++reads;
        if (whenRead)
        {
            whenRead();
        }
        const auto found = stored.find(Key(section, entry));
        if (found == stored.end())
        {
            return FALSE;
        }
        *data = new BYTE[found->second.size()]; // the caller's to free
        std::memcpy(*data, found->second.data(), found->second.size());
        *size = static_cast<UINT>(found->second.size());
        return TRUE;
    }
    BOOL WriteProfileBinary(LPCTSTR section, LPCTSTR entry, LPBYTE data, UINT size) override
    {
        if (whenWritten)
        {
            whenWritten();
        }
        stored[Key(section, entry)].assign(data, data + size);
        return TRUE;
    }
    static std::string Key(LPCTSTR section, LPCTSTR entry)
    {
        return std::string(section) + "/" + entry;
    }

    std::map<std::string, std::vector<BYTE>> stored;
    int reads = 0;
    std::function<void()> whenRead;
    std::function<void()> whenWritten;
};

/// The test program's application.
extern ProfileApp g_app;
