#pragma once

#include "apps/sample/StartOptions.h"
#include "apps/sample/ui/Theme.h"

#include <string>

/// One page of the sample's window: its name in the rail, what it paints, and the controls it owns.
/// Pages live as long as the view. The view scrolls a page that is higher than the window.
class Page
{
public:
    Page() = default;
    virtual ~Page() = default;
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    /// The name in the rail and for `--page`.
    virtual const char* Name() const = 0;

    /// Takes values anew from the library: settings have changed, or the page comes to the front.
    virtual void Refresh() = 0;

    /// The height that the page needs at this width, in the theme's pixels.
    virtual int HeightFor(int width, const Theme& theme) const = 0;

    /// Paints the page. `area` is HeightFor(area.Width()) high, or higher.
    virtual void Paint(CDC& dc, const CRect& area, const Theme& theme) const = 0;

    /// Prints the page into `area` of a sheet of paper. Here as on the screen, without controls.
    virtual void Print(CDC& dc, const CRect& area, const Theme& theme) const;

    /// What the page shows, as lines of text in code page 1252.
    virtual std::string Summary() const = 0;

    /// The page comes to the front or leaves it: controls of its own are made, shown or hidden here.
    virtual void Activate(CWnd& view, bool active);

    /// Moves the page's own controls; `area` is the page as it stands in the view, scrolled.
    virtual void PlaceControls(const CRect& area, const Theme& theme);

    /// A notification of one of the page's own controls. True when it was meant for the page.
    virtual bool OnControl(UINT id, UINT code);

    /// What the command line asks of the page, before it comes to the front. What is wrong with that; empty when
    /// nothing is.
    virtual std::string TakeOptions(const StartOptions& options);

    /// True for a page that makes do with the window as it is: the view then neither scrolls it nor has a scroll bar.
    virtual bool FillsWindow() const;

    /// A notification by WM_NOTIFY of one of the page's own controls.
    virtual void OnNotification(const NMHDR& header);

    /// A key is going to the view or to one of the page's controls. True when the page has dealt with it.
    virtual bool OnKey(UINT key, CWnd* control);

    /// The control that gets the keys when the page comes to the front; null for none.
    virtual CWnd* FirstControl();

    /// Whether the page deals with a command of the menu bar, can do so now, and that it does.
    virtual bool OwnsCommand(UINT command) const;
    virtual bool CanRun(UINT command) const;
    virtual void Run(UINT command);
    /// Whether the menu shows a check mark at the command.
    virtual bool IsChecked(UINT command) const;

    /// The view is going: what is to be kept is to be stored now.
    virtual void Leave();

    /// The pointer moved to `point` of the view. True when what the page shows has changed.
    virtual bool OnPointer(const CRect& area, CPoint point, const Theme& theme);
};
