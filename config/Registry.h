#pragma once

/// @file
/// One open key of the system registry.
#include "config/RegistrySharedKey.h"
#include "frame/core/Export.h"
#include "framework/core/Array.h"
#include "framework/core/CString.h"
#include "framework/core/Time.h"

#include <windows.h>

#include <concepts>
#include <string>
#include <vector>

/// One open key of the registry, of this machine or another, with typed values, enumeration, deletion of whole
/// subtrees, hive files and notification. For more than a text or number under the application's own key, which
/// AppRegMgr keeps.
///
/// Every operation keeps the system's result code in GetLastError(), 0 after each success; besides the system's own:
/// 87 (invalid parameter) for a null argument that is required, 6 (invalid handle) without an open key and for a root
/// that other machines do not offer, 1804 (invalid data type) for a value of another type than asked for, 13 (invalid
/// data) for a number that has not four bytes. What an operation fills is untouched when it fails, unless said
/// otherwise. Nothing is thrown, except where QueryInfo() says so.
///
/// Keys are opened in the 32-bit view unless Permission64BitView is asked for. Texts are 8-bit in the system's code
/// page.
///
/// Copies hold the same open keys. Close() on one of them only lets go; the last one closes, as does its destructor.
///
/// Not locked: for one thread at a time, copies included. The order of the virtual operations is part of the interface.
class VORNCOMMON_API Registry
{
public:
    enum CreateOptions : DWORD
    {
        OptionNonVolatile = REG_OPTION_NON_VOLATILE,
        OptionVolatile = REG_OPTION_VOLATILE, ///< the key lives until the system stops
        OptionCreateLink = REG_OPTION_CREATE_LINK,
        OptionBackupRestore = REG_OPTION_BACKUP_RESTORE,
        OptionOpenLink = REG_OPTION_OPEN_LINK
    };

    enum CreatePermissions : DWORD
    {
        PermissionQueryValue = KEY_QUERY_VALUE,
        PermissionSetValue = KEY_SET_VALUE,
        PermissionCreateSubKey = KEY_CREATE_SUB_KEY,
        PermissionEnumerateSubKeys = KEY_ENUMERATE_SUB_KEYS,
        PermissionNotify = KEY_NOTIFY,
        PermissionCreateLink = KEY_CREATE_LINK,
        PermissionDelete = DELETE,
        PermissionReadControl = READ_CONTROL,
        PermissionWriteDac = WRITE_DAC,
        PermissionWriteOwner = WRITE_OWNER,
        PermissionRead = KEY_READ,
        PermissionWrite = KEY_WRITE,
        PermissionExecute = KEY_EXECUTE,
        PermissionAllAccess = KEY_ALL_ACCESS,
        Permission64BitView = KEY_WOW64_64KEY,
        Permission32BitView = KEY_WOW64_32KEY
    };

    enum CreationDisposition : DWORD
    {
        CreatedNewKey = REG_CREATED_NEW_KEY,
        OpenedExistingKey = REG_OPENED_EXISTING_KEY
    };

    enum KeyValueTypes : DWORD
    {
        TypeNone = REG_NONE,
        TypeString = REG_SZ,
        TypeExpandString = REG_EXPAND_SZ,
        TypeBinary = REG_BINARY,
        TypeDoubleWord = REG_DWORD,
        TypeDoubleWordBigEndian = REG_DWORD_BIG_ENDIAN,
        TypeLink = REG_LINK,
        TypeMultiString = REG_MULTI_SZ,
        TypeResourceList = REG_RESOURCE_LIST,
        TypeFullResourceDescriptor = REG_FULL_RESOURCE_DESCRIPTOR,
        TypeResourceRequirementsList = REG_RESOURCE_REQUIREMENTS_LIST,
        TypeQuadWord = REG_QWORD
    };

    enum NotifyChangeFilter : DWORD
    {
        NotifyName = REG_NOTIFY_CHANGE_NAME, ///< a subkey is added or deleted
        NotifyAttributes = REG_NOTIFY_CHANGE_ATTRIBUTES,
        NotifyLastSet = REG_NOTIFY_CHANGE_LAST_SET, ///< a value is added, changed or deleted
        NotifySecurity = REG_NOTIFY_CHANGE_SECURITY
    };

    friend constexpr CreateOptions operator|(CreateOptions a, CreateOptions b)
    {
        return static_cast<CreateOptions>(DWORD{a} | DWORD{b});
    }
    friend constexpr CreatePermissions operator|(CreatePermissions a, CreatePermissions b)
    {
        return static_cast<CreatePermissions>(DWORD{a} | DWORD{b});
    }
    friend constexpr NotifyChangeFilter operator|(NotifyChangeFilter a, NotifyChangeFilter b)
    {
        return static_cast<NotifyChangeFilter>(DWORD{a} | DWORD{b});
    }

    /// No key, no root, empty texts, facts and last error 0.
    Registry();
    Registry(const Registry& other);
    Registry& operator=(const Registry& other);
    /// Closes what no copy holds.
    virtual ~Registry();

protected:
    /// Puts the object into the state that it was made in.
    virtual void Initialize();

public:
    /// Name of a predefined root ("HKEY_LOCAL_MACHINE"); false for any other handle.
    static bool KeyToStr(HKEY root, CString& name);
    /// The predefined root of exactly this name, letter case included; null for any other text.
    static HKEY StrToKey(const CString& name);
    /// Takes one backslash from the end and, unless `rootAllowed`, one from the start. With `rootAllowed`, what is then
    /// empty becomes "\".
    static void NormalizeKey(CString& key, bool rootAllowed);
    /// Two paths with exactly one backslash between them; the other one alone when one is empty or null.
    static CString ConcatenateKeys(const char* parent, const char* child);

    // --- Connection and keys -----------------------------------------------------------------------------------

    /// Closes what is open and takes `root` as the root of the keys to be opened: a predefined root, or another open
    /// key, which then belongs to the object.
    /// @param machine another machine's name ("\\NAME"); null or empty for this one. The classes root and the current
    /// user of another machine are refused.
    virtual bool Connect(HKEY root, const char* machine);

    /// Opens a key below the root, or below the classes root when there is none, in place of the one that is open. A
    /// backslash at either end does not matter; an empty `key` is the root itself. The root stays when it fails. The
    /// key is open also when its facts cannot be read for want of rights; they are then 0.
    virtual bool Open(const char* key, CreatePermissions access);

    /// As Open(), but makes the key, and those above it, when it is not there.
    /// @param className class of a new key; null for none
    /// @param security of a new key; null for what it inherits
    /// @param disposition receives whether the key was made or was there; may be null
    virtual bool Create(const char* key, const char* className, CreateOptions options, CreatePermissions access,
                        SECURITY_ATTRIBUTES* security, CreationDisposition* disposition);

    /// Closes the key and the root. The object is then as if new, but for the last error when false is returned.
    virtual bool Close();

    /// Writes the open key to disk.
    virtual bool Flush();

    /// Deletes a key below the open one, which stays open. Of a path the last key goes; those above it stay.
    /// @param recursive whether the keys below it go first. The deletion ends at the first that cannot be deleted;
    /// without it, a key that has keys below it is refused. Links to other keys are not followed.
    virtual bool DeleteKey(const char* key, bool recursive);

    /// Deletes a value of the open key; an empty name is the key's default value.
    virtual bool DeleteValue(const char* name);

    // --- Enumeration -------------------------------------------------------------------------------------------

    /// The key at `index` below the open one, counted from 0; false with 259 (no more items) past the end.
    virtual bool EnumerateKeys(DWORD index, CString& name, CString& className);
    virtual bool EnumerateKeys(DWORD index, CString& name);
    /// @param nameSize,classSize characters that the buffer holds with the closing zero; receives those of the text,
    /// without it. Both pointers of the class may be null.
    virtual bool EnumerateKeys(DWORD index, char* name, DWORD* nameSize, char* className, DWORD* classSize);

    /// The value at `index`, as above.
    virtual bool EnumerateValues(DWORD index, CString& name, KeyValueTypes& type);
    /// @param data receives the value's bytes; null to learn the size alone
    /// @param size bytes that the buffer holds; receives those of the value, also when they do not fit (false, 234)
    virtual bool EnumerateValues(DWORD index, CString& name, KeyValueTypes& type, BYTE* data, DWORD& size);
    /// @param nameSize as for keys. `type` may be null, `data` and `dataSize` may be so together.
    virtual bool EnumerateValues(DWORD index, char* name, DWORD* nameSize, KeyValueTypes* type, BYTE* data,
                                 DWORD* dataSize);

    /// Reads the key's facts (see below).
    /// @throws COleException* with E_INVALIDARG for a last write time before 1970 or after the year 3000; so do Open()
    /// and Create(), with the key open.
    virtual bool QueryInfo();

    // --- Values. An empty name is the key's default value --------------------------------------------------------

    /// @param data receives the value's bytes; null to learn type and size alone
    /// @param size bytes that the buffer holds; receives those of the value, also when they do not fit (false, 234,
    /// with the type)
    virtual bool QueryValue(const char* name, KeyValueTypes& type, BYTE* data, DWORD& size);
    /// Stores exactly these bytes; `data` may be null for none.
    virtual bool SetValue(const char* name, KeyValueTypes type, BYTE* data, DWORD size);

    /// A text of at most 2,048 bytes with its closing zero, a longer one is refused (234); texts with variables
    /// (REG_EXPAND_SZ) as they are stored.
    virtual bool GetStringValue(const char* name, CString& value);
    virtual bool SetStringValue(const char* name, const char* value);
    virtual bool GetDoubleWordValue(const char* name, DWORD& value);
    virtual bool SetDoubleWordValue(const char* name, DWORD value);
    /// The bytes of a value of any type and length, which replace those of the array.
    virtual bool GetBinaryValue(const char* name, CByteArray& value);
    virtual bool SetBinaryValue(const char* name, CByteArray& value);
    /// A list of texts of any length, which replace those of the array; a single text (REG_SZ) is a list of one.
    virtual bool GetStringArrayValue(const char* name, CStringArray& value);
    virtual bool SetStringArrayValue(const char* name, CStringArray& value);

    /// The typed operations by the type of the argument.
    virtual bool GetValue(const char* name, DWORD& value);
    virtual bool GetValue(const char* name, CString& value);
    virtual bool GetValue(const char* name, CByteArray& value);
    virtual bool GetValue(const char* name, CStringArray& value);
    virtual bool SetValue(const char* name, DWORD value);
    virtual bool SetValue(const char* name, const char* value);
    virtual bool SetValue(const char* name, CByteArray& value);
    virtual bool SetValue(const char* name, CStringArray& value);
    /// Numbers of other types, of which none has more than 32 bits; a plain 0 among them.
    template <std::integral Number>
    requires(sizeof(Number) <= sizeof(DWORD)) bool SetValue(const char* name, Number value)
    {
        return SetValue(name, static_cast<DWORD>(value));
    }

    // --- Hive files, for callers with the backup and restore privileges ------------------------------------------

    /// Makes a hive file a key directly below the root, which must be the local machine or users.
    virtual bool Load(const char* subkey, const char* file);
    virtual bool UnLoad(const char* subkey);
    /// Saves the open key and all below it into a new file.
    /// @param security of the file; null for what it inherits
    virtual bool Save(const char* file, SECURITY_ATTRIBUTES* security);
    /// Replaces what is in the open key by what is in a file.
    /// @param flags of the system: REG_WHOLE_HIVE_VOLATILE, REG_FORCE_RESTORE or 0
    virtual bool Restore(const char* file, DWORD flags);
    /// Has the hive of a subkey of the open key (null: of the key itself) replaced at the system's next start.
    virtual bool Replace(const char* subkey, const char* newFile, const char* oldFile);

    // --- Security and notification -------------------------------------------------------------------------------

    /// @param size bytes that `descriptor` holds; receives those needed when they do not fit (false, 122). A null
    /// `descriptor` holds none.
    virtual bool GetSecurity(SECURITY_INFORMATION information, void* descriptor, DWORD& size);
    virtual bool SetSecurity(const DWORD& information, void* descriptor);

    /// Has `event` signalled by the next change of the open key.
    /// @param watchSubtree whether changes of the keys below count
    /// @param wait true: returns only after the change, `event` may be null; false: at once, `event` is required
    virtual bool NotifyChange(HANDLE event, NotifyChangeFilter filter, bool watchSubtree, bool wait);

    // --- State ---------------------------------------------------------------------------------------------------

    /// System result code of the last operation.
    DWORD GetLastError() const;
    HKEY Key() const;  ///< the open key, or null
    HKEY Root() const; ///< the root, or null
    /// Path of the open key below the root, without backslashes at its ends.
    const CString& KeyName() const;
    /// Symbolic name of a predefined root, empty for another key.
    const CString& RootName() const;
    /// The local computer's name, or the name that another machine was connected by.
    const CString& MachineName() const;
    bool IsRemote() const;

    /// Facts of the open key as QueryInfo() found them; 0 without. Names are counted in characters without closing
    /// zero, data and security descriptor in bytes.
    const CString& KeyClass() const;
    DWORD SubkeyCount() const;
    DWORD LongestSubkeyName() const;
    DWORD LongestClassName() const;
    DWORD ValueCount() const;
    DWORD LongestValueName() const;
    DWORD LongestValueData() const;
    DWORD SecuritySize() const;
    /// Moment of the last change; its fields are in local time.
    CTime LastWriteTime() const;

private:
    struct Facts
    {
        DWORD subkeys = 0;
        DWORD longestSubkeyName = 0;
        DWORD longestClassName = 0;
        DWORD values = 0;
        DWORD longestValueName = 0;
        DWORD longestValueData = 0;
        DWORD securitySize = 0;
        CTime lastWrite;
    };

    bool Record(LSTATUS status);
    LSTATUS TakeRoot(HKEY root);
    LSTATUS TakeRemoteRoot(HKEY root, const char* machine);
    LSTATUS CloseKey();
    template <class Opening>
    bool OpenWith(const char* key, REGSAM access, Opening opening);
    LSTATUS TakeKey(HKEY key, const std::string& path);
    bool RefuseUnless(bool fits);
    LSTATUS EnumerateValue(DWORD index, CString& name, KeyValueTypes& type, BYTE* data, DWORD* size);
    bool ReadWhole(const char* name, KeyValueTypes& type, std::vector<BYTE>& data);

    DWORD m_lastError = 0;
    vorn::SharedKey m_key;
    vorn::SharedKey m_root;
    REGSAM m_view = KEY_WOW64_32KEY;
    Facts m_facts;
    CString m_className;
    CString m_machineName;
    CString m_keyName;
    CString m_rootName;
    bool m_isRemote = false;
};
