#include "framework/window/CWinApp.h"

#include "framework/app/AppNames.h"
#include "framework/app/ProfileStore.h"
#include "framework/app/RegistryKey.h"
#include "framework/window/ModuleState.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <vector>

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey)
{
    vorn::ReplaceName(m_pszRegistryKey, lpszRegistryKey);
    vorn::ReplaceName(m_pszProfileName, AfxGetAppName());
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey)
{
    CString key;
    AfxLoadString(nIDRegistryKey, key);
    SetRegistryKey(key);
}

HKEY CWinApp::GetAppRegistryKey()
{
    if (!m_pszRegistryKey || !m_pszProfileName)
    {
        return nullptr;
    }
    const CString path = CString("Software\\") + m_pszRegistryKey + "\\" + m_pszProfileName;
    return vorn::CreateKey(HKEY_CURRENT_USER, path).Release();
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection)
{
    const vorn::RegistryKey app(GetAppRegistryKey());
    return app && lpszSection ? vorn::CreateKey(app.Get(), lpszSection).Release() : nullptr;
}

namespace
{

/// The INI file's name; before start-up it is made from the application's.
CString IniName(const CWinApp& app)
{
    return app.m_pszProfileName ? CString(app.m_pszProfileName) : CString(AfxGetAppName()) + ".INI";
}

/// Reading must not make keys: a section that is not there stays away.
vorn::RegistryKey OpenSection(const CWinApp& app, LPCTSTR section)
{
    const CString path =
        CString("Software\\") + app.m_pszRegistryKey + "\\" + CString(app.m_pszProfileName) + "\\" + section;
    return vorn::OpenKey(HKEY_CURRENT_USER, path);
}

} // namespace

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault)
{
    if (!lpszSection || !lpszEntry)
    {
        return static_cast<UINT>(nDefault);
    }
    if (!m_pszRegistryKey)
    {
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, IniName(*this));
    }
    DWORD value = 0;
    return vorn::ReadNumber(OpenSection(*this, lpszSection).Get(), lpszEntry, value) ? value
                                                                                     : static_cast<UINT>(nDefault);
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue)
{
    if (!lpszSection || !lpszEntry)
    {
        return FALSE;
    }
    if (m_pszRegistryKey)
    {
        const vorn::RegistryKey key(GetSectionKey(lpszSection));
        return vorn::WriteValue(key.Get(), lpszEntry, REG_DWORD, &nValue, sizeof(nValue));
    }
    char text[16] = {};
    std::to_chars(text, text + sizeof(text) - 1, nValue);
    return ::WritePrivateProfileString(lpszSection, lpszEntry, text, IniName(*this));
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault)
{
    CString value(lpszDefault);
    if (!lpszSection || !lpszEntry)
    {
        return value;
    }
    if (m_pszRegistryKey)
    {
        vorn::ReadText(OpenSection(*this, lpszSection).Get(), lpszEntry, value);
        return value;
    }
    return vorn::ReadIniText(lpszSection, lpszEntry, value, IniName(*this));
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue)
{
    if (!lpszSection)
    {
        return FALSE;
    }
    if (!m_pszRegistryKey)
    {
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, IniName(*this));
    }
    if (!lpszEntry)
    {
        const vorn::RegistryKey app(GetAppRegistryKey());
        return *lpszSection && ::RegDeleteKey(app.Get(), lpszSection) == ERROR_SUCCESS;
    }
    if (!lpszValue)
    {
        // Deleting what is not there is no failure.
        const vorn::RegistryKey section = OpenSection(*this, lpszSection);
        const LSTATUS status = section ? ::RegDeleteValue(section.Get(), lpszEntry) : ERROR_FILE_NOT_FOUND;
        return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
    }
    const vorn::RegistryKey key(GetSectionKey(lpszSection));
    return vorn::WriteValue(key.Get(), lpszEntry, REG_SZ, lpszValue, static_cast<DWORD>(std::strlen(lpszValue)) + 1);
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes)
{
    if (!ppData || !pBytes)
    {
        return FALSE;
    }
    *ppData = nullptr;
    *pBytes = 0;
    if (!lpszSection || !lpszEntry)
    {
        return FALSE;
    }
    std::vector<std::uint8_t> bytes;
    const bool read = m_pszRegistryKey ? vorn::ReadBytes(OpenSection(*this, lpszSection).Get(), lpszEntry, bytes)
                                       : vorn::ReadIniBytes(lpszSection, lpszEntry, bytes, IniName(*this));
    if (!read)
    {
        return FALSE;
    }
    *ppData = new BYTE[bytes.size()]; // the interface promises an array that the caller deletes
    std::ranges::copy(bytes, *ppData);
    *pBytes = static_cast<UINT>(bytes.size());
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes)
{
    if (!lpszSection || !lpszEntry || (!pData && nBytes != 0))
    {
        return FALSE;
    }
    if (m_pszRegistryKey)
    {
        const vorn::RegistryKey key(GetSectionKey(lpszSection));
        return vorn::WriteValue(key.Get(), lpszEntry, REG_BINARY, pData, nBytes);
    }
    return vorn::WriteIniBytes(lpszSection, lpszEntry, {pData, nBytes}, IniName(*this));
}
