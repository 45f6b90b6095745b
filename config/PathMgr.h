#pragma once

#include "config/AppPathData.h"

#include <memory>

/// In which folder does a given kind of file live: the path records of all applications of the family that were
/// registered.
///
/// Operations that concern one application come in pairs: one takes its name, the other its index, in the order of
/// registration. A null or empty name is index 0. For a name or index that is not registered texts are empty, lists
/// null, results false and layouts 0. What the operations do is described at AppPathData.
///
/// The process has one manager, for the user-interface thread. The order of the virtual operations is part of the
/// interface.
class VORNCOMMON_API PathMgr
{
public:
    PathMgr(const PathMgr&) = delete;
    PathMgr& operator=(const PathMgr&) = delete;

    virtual CString GetKnownPath(KnownPath base, VornPath beneath, const char* subfolder, int index);
    virtual CString GetKnownPath(KnownPath base, VornPath beneath, const char* subfolder, const char* app);
    virtual ~PathMgr();

    /// The manager, made on the first call. The form with a name then registers that application with the automatic
    /// layout; later calls of either form only return the manager.
    static PathMgr* Instance();
    static PathMgr* Instance(const char* app);

    /// Deletes the manager with all records. Settings and files stay.
    static void FreeInst();

    /// Fills a layout of a registered application again and makes it current; returns the layout before. An application
    /// that is not registered is added, here and to the settings manager; the result is then its index.
    int SetPathCfgVer(PathCfgVer layout, const char* app);
    int SetPathCfgVer(PathCfgVer layout, int index);

    int GetNumAppPaths();

    /// Index of the application with that module name (compared exactly), or -1.
    int GetAppPathIndex(CString app);

    /// The record, or null. It belongs to the manager.
    AppPathData* GetAppPathData(CString app);
    AppPathData* GetAppPathData(int index);

    CString GetPathInst(DefinedPath path, const char* app);
    CString GetPathInst(DefinedPath path, int index);
    std::vector<std::string>* GetPathInstList(DefinedPath path, const char* app);
    std::vector<std::string>* GetPathInstList(DefinedPath path, int index);
    bool AddPathInst(DefinedPath path, CString folder, PathCfgVer layout, const char* app);
    bool AddPathInst(DefinedPath path, CString folder, PathCfgVer layout, int index);
    bool ClearPathInst(DefinedPath path, const char* app);
    bool ClearPathInst(DefinedPath path, int index);
    bool RemovePathInst(DefinedPath path, CString folder, const char* app);
    bool RemovePathInst(DefinedPath path, CString folder, int index);
    bool ReplacePathInst(DefinedPath path, CString oldFolder, CString newFolder, const char* app);
    bool ReplacePathInst(DefinedPath path, CString oldFolder, CString newFolder, int index);
    PathCfgVer GetPathCfgVer(const char* app);
    PathCfgVer GetPathCfgVer(int index);

protected:
    PathMgr();

    /// Registers the first application.
    virtual void Initialize(const char* app);

    void InitKnownPaths(const char* app);
    void InitKnownPaths(int index);
    void InitLegacyPaths(const char* app);
    void InitLegacyPaths(int index);
    void InitVistaPaths(const char* app);
    void InitVistaPaths(int index);
    CString GetProfilePath(const char* key, const char* standard, const char* section, const char* app);
    CString GetProfilePath(const char* key, const char* standard, const char* section, int index);
    CString GetProfileAptDiagramPath(const char* key, const char* firstDefault, const char* secondDefault,
                                     const char* app);
    CString GetProfileAptDiagramPath(const char* key, const char* firstDefault, const char* secondDefault, int index);
    void SimplifyPath(CString& path);

    static PathMgr* mpInstance; ///< null until the first call of Instance()

private:
    AppPathData* RecordOf(const char* app);
    AppPathData* RecordOf(int index);

    std::vector<std::unique_ptr<AppPathData>> m_records;
};
