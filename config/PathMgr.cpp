#include "config/PathMgr.h"

#include "config/AppRegMgr.h"
#include "config/SystemFolders.h"

#include <algorithm>
#include <utility>

PathMgr* PathMgr::mpInstance = nullptr;

PathMgr::PathMgr() = default;

PathMgr::~PathMgr() = default;

PathMgr* PathMgr::Instance()
{
    if (mpInstance == nullptr)
        mpInstance = new PathMgr; // hosts end it by FreeInst()
    return mpInstance;
}

PathMgr* PathMgr::Instance(const char* app)
{
    const bool isFirst = mpInstance == nullptr;
    PathMgr* const manager = Instance();
    if (isFirst)
        manager->Initialize(app);
    return manager;
}

void PathMgr::FreeInst()
{
    delete std::exchange(mpInstance, nullptr); // a plain pointer by the interface
}

void PathMgr::Initialize(const char* app)
{
    SetPathCfgVer(PCV_AUTO, app);
}

int PathMgr::SetPathCfgVer(PathCfgVer layout, const char* app)
{
    if (AppPathData* const record = RecordOf(app))
        return record->SetPathCfgVer(layout, app);
    if (app != nullptr && *app != '\0')
        AppRegMgr::Instance()->AddApp(app);
    m_records.push_back(std::make_unique<AppPathData>(layout, app));
    return GetNumAppPaths() - 1;
}

int PathMgr::SetPathCfgVer(PathCfgVer layout, int index)
{
    AppPathData* const record = RecordOf(index);
    return record != nullptr ? record->SetPathCfgVer(layout, record->GetApplication()) : 0;
}

int PathMgr::GetNumAppPaths()
{
    return static_cast<int>(m_records.size());
}

int PathMgr::GetAppPathIndex(CString app)
{
    const auto found = std::find_if(m_records.begin(), m_records.end(),
                                    [&app](const auto& record)
                                    {
                                        return record->GetModuleName() == app;
                                    });
    return found != m_records.end() ? static_cast<int>(found - m_records.begin()) : -1;
}

AppPathData* PathMgr::GetAppPathData(CString app)
{
    return GetAppPathData(GetAppPathIndex(app));
}

AppPathData* PathMgr::GetAppPathData(int index)
{
    return index >= 0 && index < GetNumAppPaths() ? m_records[static_cast<std::size_t>(index)].get() : nullptr;
}

AppPathData* PathMgr::RecordOf(const char* app)
{
    return app != nullptr && *app != '\0' ? GetAppPathData(CString(app)) : GetAppPathData(0);
}

AppPathData* PathMgr::RecordOf(int index)
{
    return GetAppPathData(index);
}

void PathMgr::SimplifyPath(CString& path)
{
    path = vorn::FullPath(std::string(path)).c_str();
}
