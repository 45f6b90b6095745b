#pragma once

#include "config/core/PathInstances.h"
#include "config/core/PathKinds.h"
#include "frame/core/Export.h"
#include "framework/core/CString.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

/// The folders of one application: 94 defined paths in each of two layouts, from the application's settings of section
/// "Paths", the shell's folders and built-in defaults. A defined path may have several instances, of which the last is
/// effective.
///
/// The legacy layout keeps everything under the installation folder (Home), the per-user one puts data into the shell's
/// folders. A layout is filled from the settings when the record is made, and again by SetPathCfgVer(); changes of
/// instances are not stored.
///
/// Folders end in a backslash, but for rows that are built without a setting, which keep their form. Nothing fails
/// aloud: see each operation. Applications may derive their own data; all work goes through the virtual operations,
/// whose order is part of the interface.
class VORNCOMMON_API AppPathData
{
public:
    /// Works out a layout (anything but 0 and 1 is automatic) for an application, null or empty for the host.
    AppPathData(PathCfgVer layout, const char* app);
    AppPathData(const AppPathData& other);
    AppPathData& operator=(const AppPathData& other);

    /// The current layout: PCV_LEGACY or PCV_VISTA.
    virtual PathCfgVer GetPathCfgVer();

    /// Fills a layout from the settings again, behind the instances that it has, and makes it current.
    /// @return the layout before.
    virtual PathCfgVer SetPathCfgVer(PathCfgVer layout, const char* app);

    /// The effective instance in the current layout; empty when there is none.
    virtual CString GetPathInst(DefinedPath path);

    /// Adds an instance as it stands to a layout, whose table grows as needed. False for a layout that was never
    /// filled, and for a path outside 0 to 65,535.
    virtual bool AddPathInst(DefinedPath path, CString folder, PathCfgVer layout);

    /// Remove, replace: the first instance of the current layout that equals a text, whatever the case. Clear: all of
    /// them. False when there is none.
    virtual bool RemovePathInst(DefinedPath path, CString folder);
    virtual bool ReplacePathInst(DefinedPath path, CString oldFolder, CString newFolder);
    virtual bool ClearPathInst(DefinedPath path);

    /// The instances in the current layout, null when there is no list. It belongs to this record.
    virtual std::vector<std::string>* GetPathInstList(DefinedPath path);

    /// A folder composed of a base, what `beneath` names, and a subfolder with its backslash, none when null. In a
    /// server installation with network use "Vornwald\" parts drop out before the subfolder.
    virtual CString GetKnownPath(KnownPath base, VornPath beneath, const char* subfolder);

    virtual ~AppPathData();

    /// Known folders (once), the server installation, the choice of the layout, and its 94 paths.
    virtual void Initialize(PathCfgVer requested, const char* app);

    /// Executable folder, Home, module name, Root, and the shell's folders.
    virtual void InitKnownPaths();

    virtual void InitLegacyPaths();
    virtual void InitVistaPaths();

    /// A folder from the settings or its default, with a backslash, as a full path.
    virtual CString GetProfilePath(const char* key, const char* standard, const char* section);

    /// Name of the application's folder.
    CString& GetModuleName();

    /// The table of a layout, indexed by DefinedPath; null when it was never filled.
    std::vector<std::vector<std::string>*>* GetPathConfig(PathCfgVer layout);

    /// The list of one path in a layout, or null.
    std::vector<std::string>* GetPathInstVec(DefinedPath path, PathCfgVer layout);

    /// The setting of section "Paths" as it stands; without one the first default where it holds a file *.dat, else the
    /// second.
    CString GetProfileAptDiagramPath(const char* key, const char* firstDefault, const char* secondDefault);

    /// Makes a full path of a folder, as the system does; a text for which the system has none in 259 characters stays.
    void SimplifyPath(CString& path);

    /// The application name given at construction; empty for the host.
    const CString& GetApplication() const
    {
        return m_application;
    }

private:
    class Source;

    CString ReadSetting(const char* section, const char* key, const char* standard, const char* app) const;
    CString ServerThemePath() const;
    void UseServer(const CString& themePath);
    CString InstallationFolder() const;
    PathCfgVer ChosenLayout(PathCfgVer requested) const;
    void Fill(PathCfgVer layout);
    vorn::PathInstances* Instances(PathCfgVer layout) const;
    void TakeShellFolders();

    // The order of the fields is part of the interface.
    CString m_module;
    CString m_executableFolder;
    CString m_root;
    CString m_userProfile;
    CString m_localData;
    CString m_roamingData;
    CString m_publicFolder;
    CString m_commonData;
    CString m_programFiles;
    CString m_home;
    CString m_application;
    std::map<PathCfgVer, std::unique_ptr<vorn::PathInstances>> m_layouts;
    PathCfgVer m_layout = PCV_LEGACY;
};
