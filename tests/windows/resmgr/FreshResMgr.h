#pragma once

#include "toolkit/ResMgr.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <vector>

namespace vorn::test
{

/// A manager without objects before the test, and none after it.
class FreshResMgr : public testing::Test
{
protected:
    FreshResMgr()
    {
        ResMgr::FreeInst();
    }
    ~FreshResMgr() override
    {
        ResMgr::FreeInst();
    }

    static ResMgr& Manager()
    {
        return *ResMgr::Inst();
    }
};

/// A font's description: the face and the height, all else as the system chooses.
inline LOGFONTA Face(const char* face, LONG height = -12)
{
    LOGFONTA description = {};
    description.lfHeight = height;
    std::snprintf(description.lfFaceName, LF_FACESIZE, "%s", face);
    return description;
}

/// While it lives the process can make no drawing objects.
class NoMoreHandles
{
public:
    NoMoreHandles()
    {
        while (HPEN pen = ::CreatePen(PS_SOLID, 1, RGB(1, 2, 3)))
        {
            m_pens.push_back(pen);
        }
    }
    ~NoMoreHandles()
    {
        for (const HPEN pen : m_pens)
        {
            ::DeleteObject(pen);
        }
    }
    NoMoreHandles(const NoMoreHandles&) = delete;
    NoMoreHandles& operator=(const NoMoreHandles&) = delete;

private:
    std::vector<HPEN> m_pens;
};

} // namespace vorn::test
