#pragma once

#include "config/ProxyControlIds.h"
#include "config/ShownEdit.h"
#include "family/TarnComm/core/ProxySet.h"
#include "frame/core/Export.h"
#include "framework/include/afxcmn.h"

/// The dialog "Proxy Settings": the user adds, changes and deletes the proxies of a set.
///
/// What is typed goes into the entry of the selected line when its field loses the focus (also for the field that has
/// it when OK comes), the type when it is chosen. The ticks go into the entries with OK alone. Cancel does not take
/// back what is in the set already: edit a copy where that matters, and store the set when DoModal() answers IDOK.
///
/// Passwords are typed twice; while the two differ, adding, deleting and OK only say so.
///
/// The controls have the ids IDC_VORN_PROXY_..., for a host that adds tips to them.
class VORNCOMMON_API ProxyConfigDlg : public CDialog
{
    DECLARE_DYNAMIC(ProxyConfigDlg)
public:
    /// @param proxies the caller's, to live as long as the dialog; null is a set without entries that takes none
    explicit ProxyConfigDlg(ProxySet* proxies, CWnd* parent = nullptr);
    ~ProxyConfigDlg() override;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnSelectLine();
    afx_msg void OnSelectType();
    afx_msg void OnLeaveField(UINT id);
    afx_msg void OnAdd();
    afx_msg void OnDelete();
    afx_msg void OnTimer(UINT_PTR id);

    DECLARE_MESSAGE_MAP()

private:
    ProxyInfo* Selected();
    ProxyInfo* EntryOf(int line) const;
    void FillTypes();
    void FillList();
    void InsertLine(int line, ProxyInfo* proxy, int check);
    void SelectLine(int line);
    void ReplaceSelectedLine();
    void ShowSelected();
    void ShowPassword();
    void ShowType(const ProxyInfo* proxy);
    void LeaveControlsOfEntry();

    void Apply(UINT id);
    void ApplyTyped();
    void ApplyHost(ProxyInfo& proxy);
    void ApplyPorts(ProxyInfo& proxy);
    void ApplyUser(ProxyInfo& proxy);
    void ApplyPassword(ProxyInfo& proxy);

    bool ArePasswordsEqual() const;
    void NoteMismatch();
    bool CheckPasswords();

    ProxySet* m_proxies;
    CCheckListBox m_list;
    CComboBox m_types;
    vorn::ShownEdit m_host;
    vorn::ShownEdit m_ports;
    vorn::ShownEdit m_user;
    vorn::ShownEdit m_password;
    vorn::ShownEdit m_confirmation;
    CButton m_delete;
    bool m_ends = false;  ///< the dialog ends: fields that lose the focus change nothing any more
    bool m_tells = false; ///< the message about the passwords is up
};
