#pragma once

#include "apps/sample/core/DataTable.h"
#include "apps/sample/core/ReportTable.h"
#include "apps/sample/pages/Page.h"
#include "apps/sample/ui/Notice.h"
#include "apps/sample/ui/TableList.h"

#include <array>

/// A browser for dBASE tables: the sample's own navigation data or any other. The records stand in a list that reads
/// what it shows; fields and memo stand beside it, the search above it.
class TablePage : public Page
{
public:
    TablePage();

    const char* Name() const override;
    void Refresh() override;
    int HeightFor(int width, const Theme& theme) const override;
    void Paint(CDC& dc, const CRect& area, const Theme& theme) const override;
    void Print(CDC& dc, const CRect& area, const Theme& theme) const override;
    std::string Summary() const override;
    std::string TakeOptions(const StartOptions& options) override;
    bool FillsWindow() const override;
    void Activate(CWnd& view, bool active) override;
    void PlaceControls(const CRect& area, const Theme& theme) override;
    bool OnControl(UINT id, UINT code) override;
    void OnNotification(const NMHDR& header) override;
    bool OnKey(UINT key, CWnd* control) override;
    CWnd* FirstControl() override;
    bool OwnsCommand(UINT command) const override;
    bool CanRun(UINT command) const override;
    void Run(UINT command) override;

private:
    static constexpr std::size_t kButtons = 6;

    struct Places
    {
        CRect title;
        CRect note;
        std::array<CRect, kButtons> buttons;
        CRect searchLabel;
        CRect field;
        CRect value;
        CRect method;
        CRect matchCase;
        CRect list;
        CRect fieldsTitle;
        CRect fields;
        CRect memoTitle;
        CRect memo;
        CRect notice;
    };

    Places PlacesIn(const CRect& area, const Theme& theme) const;
    void PlaceHead(Places& places, CRect& rest, const Theme& theme) const;
    void PlaceSearch(Places& places, CRect& rest, const Theme& theme) const;
    void PlaceBody(Places& places, CRect rest, const Theme& theme) const;
    void UseTheme(const Theme& theme);

    void CreateControls(CWnd& view);
    std::vector<CWnd*> Controls();
    vorn::TableResult OpenTable(const std::string& path);
    void ShowTable();
    void ShowChanges();
    void ShowFields();
    void ShowMemo();
    void ShowState();
    std::string Note() const;
    vorn::ReportTable Report(int rows) const;

    void AskForTable();
    void FindAsTyped();
    void Find();
    void FindNext();
    bool ShowFound(std::optional<int> row, double milliseconds);
    std::string NotFound() const;
    std::string SelectByOption(const std::string& find);
    void EditField();
    void DeleteRecord();
    void PackTable();
    void Say(const std::string& words, Notice::News news);
    void Refuse(const std::string& words, vorn::TableResult result);

    mutable vorn::DataTable m_table; // reading moves its current record
    const Theme* m_theme = nullptr;
    CWnd* m_view = nullptr; // null before the controls exist
    int m_firstRow = 0;     // to select when the list comes up; -1 when the row asked for is not there
    vorn::SearchTerms m_terms;
    bool m_searched = false;
    std::string m_words; // what the notice says
    Notice::News m_news = Notice::News::Plain;

    std::array<CButton, kButtons> m_buttons;
    CComboBox m_field;
    CEdit m_value;
    CComboBox m_method;
    CButton m_matchCase;
    TableList m_list;
    CListCtrl m_fields;
    CEdit m_memo;
    Notice m_notice;
};
