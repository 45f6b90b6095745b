#include "config/PathMgr.h"

// Each operation of a record by the application's name and by its index. What is not registered gives the empty value.

namespace
{

template <class Result, class... Parameters, class... Arguments>
Result Forward(AppPathData* record, Result (AppPathData::*operation)(Parameters...), const Arguments&... arguments)
{
    return record != nullptr ? (record->*operation)(arguments...) : Result();
}

} // namespace

CString PathMgr::GetKnownPath(KnownPath base, VornPath beneath, const char* subfolder, int index)
{
    return Forward(RecordOf(index), &AppPathData::GetKnownPath, base, beneath, subfolder);
}

CString PathMgr::GetKnownPath(KnownPath base, VornPath beneath, const char* subfolder, const char* app)
{
    return Forward(RecordOf(app), &AppPathData::GetKnownPath, base, beneath, subfolder);
}

CString PathMgr::GetPathInst(DefinedPath path, const char* app)
{
    return Forward(RecordOf(app), &AppPathData::GetPathInst, path);
}

CString PathMgr::GetPathInst(DefinedPath path, int index)
{
    return Forward(RecordOf(index), &AppPathData::GetPathInst, path);
}

std::vector<std::string>* PathMgr::GetPathInstList(DefinedPath path, const char* app)
{
    return Forward(RecordOf(app), &AppPathData::GetPathInstList, path);
}

std::vector<std::string>* PathMgr::GetPathInstList(DefinedPath path, int index)
{
    return Forward(RecordOf(index), &AppPathData::GetPathInstList, path);
}

bool PathMgr::AddPathInst(DefinedPath path, CString folder, PathCfgVer layout, const char* app)
{
    return Forward(RecordOf(app), &AppPathData::AddPathInst, path, folder, layout);
}

bool PathMgr::AddPathInst(DefinedPath path, CString folder, PathCfgVer layout, int index)
{
    return Forward(RecordOf(index), &AppPathData::AddPathInst, path, folder, layout);
}

bool PathMgr::ClearPathInst(DefinedPath path, const char* app)
{
    return Forward(RecordOf(app), &AppPathData::ClearPathInst, path);
}

bool PathMgr::ClearPathInst(DefinedPath path, int index)
{
    return Forward(RecordOf(index), &AppPathData::ClearPathInst, path);
}

bool PathMgr::RemovePathInst(DefinedPath path, CString folder, const char* app)
{
    return Forward(RecordOf(app), &AppPathData::RemovePathInst, path, folder);
}

bool PathMgr::RemovePathInst(DefinedPath path, CString folder, int index)
{
    return Forward(RecordOf(index), &AppPathData::RemovePathInst, path, folder);
}

bool PathMgr::ReplacePathInst(DefinedPath path, CString oldFolder, CString newFolder, const char* app)
{
    return Forward(RecordOf(app), &AppPathData::ReplacePathInst, path, oldFolder, newFolder);
}

bool PathMgr::ReplacePathInst(DefinedPath path, CString oldFolder, CString newFolder, int index)
{
    return Forward(RecordOf(index), &AppPathData::ReplacePathInst, path, oldFolder, newFolder);
}

PathCfgVer PathMgr::GetPathCfgVer(const char* app)
{
    return Forward(RecordOf(app), &AppPathData::GetPathCfgVer);
}

PathCfgVer PathMgr::GetPathCfgVer(int index)
{
    return Forward(RecordOf(index), &AppPathData::GetPathCfgVer);
}

void PathMgr::InitKnownPaths(const char* app)
{
    Forward(RecordOf(app), &AppPathData::InitKnownPaths);
}

void PathMgr::InitKnownPaths(int index)
{
    Forward(RecordOf(index), &AppPathData::InitKnownPaths);
}

void PathMgr::InitLegacyPaths(const char* app)
{
    Forward(RecordOf(app), &AppPathData::InitLegacyPaths);
}

void PathMgr::InitLegacyPaths(int index)
{
    Forward(RecordOf(index), &AppPathData::InitLegacyPaths);
}

void PathMgr::InitVistaPaths(const char* app)
{
    Forward(RecordOf(app), &AppPathData::InitVistaPaths);
}

void PathMgr::InitVistaPaths(int index)
{
    Forward(RecordOf(index), &AppPathData::InitVistaPaths);
}

CString PathMgr::GetProfilePath(const char* key, const char* standard, const char* section, const char* app)
{
    return Forward(RecordOf(app), &AppPathData::GetProfilePath, key, standard, section);
}

CString PathMgr::GetProfilePath(const char* key, const char* standard, const char* section, int index)
{
    return Forward(RecordOf(index), &AppPathData::GetProfilePath, key, standard, section);
}

CString PathMgr::GetProfileAptDiagramPath(const char* key, const char* firstDefault, const char* secondDefault,
                                          const char* app)
{
    return Forward(RecordOf(app), &AppPathData::GetProfileAptDiagramPath, key, firstDefault, secondDefault);
}

CString PathMgr::GetProfileAptDiagramPath(const char* key, const char* firstDefault, const char* secondDefault,
                                          int index)
{
    return Forward(RecordOf(index), &AppPathData::GetProfileAptDiagramPath, key, firstDefault, secondDefault);
}
