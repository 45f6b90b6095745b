#pragma once

#include "aviation/Date.h"
#include "frame/core/Export.h"
#include "framework/controls/CRichEditCtrl.h"
#include "framework/core/Array.h"
#include "framework/include/afxwin.h"
#include "toolkit/WindowIcons.h"

#include <map>
#include <memory>
#include <vector>

namespace vorn
{
class StartupArea;
struct StartupGroup;
struct StartupPlaces;
} // namespace vorn

/// What an application shows when it starts: its name, a disclaimer, and for each data set that it has loaded what it
/// covers, since when it is in force and when it expires. It can start the program that updates the data.
///
/// The dialog is as large as its texts; with more data sets than the screen holds, their area scrolls. OK stores the
/// check box as "NoDisclaimer" (0 or 1) in section "Startup" of the framework's profile; with 1 the disclaimer stays
/// hidden. Escape and the close box store nothing. The dialog may be run any number of times.
class VORNCOMMON_API CStartupDlg : public CDialog
{
    DECLARE_DYNAMIC(CStartupDlg)

public:
    /// One data set.
    struct DataInfo
    {
        int kind;         ///< 1: navigation data; anything else: terminal procedures
        float version;    ///< 0 or not a number: the dates are not shown
        CString coverage; ///< name of the region
        Date effective;
        Date expiry;
    };

    /// The copyright line's years.
    struct CopyRightData
    {
        int first;
        int last;
    };

    /// Everything is copied.
    /// @param appName null: a text that asks for a name
    /// @param updateProgram path of the program behind "Get Update"; null or empty: the button is disabled
    /// @param records `count` data sets; none for null or a count below 0
    /// @param lines further lines of text below the data sets, or null
    /// @param years null: 1990 and 2004
    CStartupDlg(LPCSTR appName, LPCSTR updateProgram, DataInfo* records, int count, CStringArray* lines,
                CopyRightData* years, CWnd* parent = nullptr);
    ~CStartupDlg() override;

    /// Whether updates may be started, which they may at first. Works while the dialog is shown, too.
    void AllowUpdate(bool allow);

    /// Whether any data set had an expiry date that was past, when the object was made or the dialog last opened.
    bool isDataExpired() const;

    BOOL DestroyWindow() override;

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void OnOK() override;
    /// The button "Get Update": starts the program in its own folder. The dialog stays open.
    virtual void OnUpdateData();
    /// Expiry lines have the colours of their dates.
    virtual afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    void PostNcDestroy() override;
    DECLARE_MESSAGE_MAP()

private:
    /// A group while it is prepared.
    struct Group
    {
        CString caption;
        std::vector<CString> lines;
        std::vector<CSize> sizes;
        bool hasExpiry = false; ///< in the last line
    };

    void SetDataExpired();
    void NameProduct();
    void SetTexts();
    void EnableUpdate();

    Group AddTextFields(DataInfo& record) const;
    vorn::StartupGroup SetGroupBoxSize(Group& group, CDC& dc) const;
    CSize GetTextDim(CDC& dc, const CString& text) const;
    CSize AdjustStdDimensions(CSize text) const;
    int WidestLine() const;
    void Resize();
    void MakeArea(const std::vector<Group>& groups, const std::vector<vorn::StartupGroup>& boxes,
                  const vorn::StartupPlaces& places);
    void MakeGroup(const Group& group, const vorn::StartupGroup& box, CPoint at, std::size_t record);
    void MoveParts(const vorn::StartupPlaces& places);

    CSize Units(int width, int height) const;
    CSize SizeOf(int id) const;
    CSize ClientLimit() const;

    CString m_name;
    CString m_updateProgram;
    std::vector<DataInfo> m_records;
    std::vector<CString> m_lines;
    CopyRightData m_years = {1990, 2004};
    bool m_dataExpired = false;
    bool m_updateAllowed = true;
    int m_noDisclaimer = 0;

    CRichEditCtrl m_disclaimer;
    CStatic m_copyright;
    CFont m_titleFont;
    vorn::WindowIcons m_icons;
    std::unique_ptr<vorn::StartupArea> m_area;
    std::map<HWND, std::size_t> m_expiryLines; ///< by the number of the record
};
