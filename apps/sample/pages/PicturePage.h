#pragma once

#include "apps/sample/model/ViewedPicture.h"
#include "apps/sample/pages/Page.h"
#include "apps/sample/ui/Notice.h"
#include "apps/sample/ui/PicturePane.h"

#include <array>
#include <vector>

/// A viewer for the pictures that the library reads: BMP, PCX, GIF, PNG and JPEG. The picture stands in a pane, what is
/// known of it beside it.
class PicturePage : public Page
{
public:
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
    bool OnKey(UINT key, CWnd* control) override;
    CWnd* FirstControl() override;
    bool OwnsCommand(UINT command) const override;
    bool CanRun(UINT command) const override;
    void Run(UINT command) override;

private:
    static constexpr std::size_t kButtons = 11;

    struct Places
    {
        CRect title;
        CRect note;
        std::array<CRect, kButtons> buttons;
        CRect pane;
        CRect facts;
        CRect notice;
    };

    Places PlacesIn(const CRect& area, const Theme& theme) const;
    void PlaceButtons(Places& places, CRect& rest, const Theme& theme) const;
    void CreateControls(CWnd& view);
    std::vector<CWnd*> Controls();

    void Open(const std::string& path);
    void AskForPicture();
    void AskWhereToSave();
    void AskForSize();
    void ShowImage(int number);
    void Turn(double degrees);
    void ShowPicture();
    void ShowState();
    std::string Note() const;
    vorn::ReportTable Facts() const;
    void Say(const std::string& words, Notice::News news);

    ViewedPicture m_picture;
    CWnd* m_view = nullptr; // null before the controls exist
    bool m_hasTheme = false;
    std::string m_words; // what the notice says
    Notice::News m_news = Notice::News::Plain;

    std::array<CButton, kButtons> m_buttons;
    PicturePane m_pane;
    Notice m_notice;
};
