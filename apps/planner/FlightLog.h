#pragma once

#include "apps/planner/PlannerData.h"

#include <VornCommon.h>

namespace vorn::planner
{

class Form;

/// The legs of the flight with their times and fuel, and notes.
class FlightLogView : public LayoutManagement::LayoutFormView
{
public:
    /// @param data must outlive the view
    explicit FlightLogView(PlannerData& data);

    void OnInitialUpdate() override;
    /// Takes the plan anew.
    void Refresh();

protected:
    afx_msg void OnTimeChanged();
    afx_msg void OnTimeLeft();
    afx_msg void OnNotesLeft();
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

private:
    void MakeColumns();
    void SizeColumns();
    void Arrange();
    void ShowLegs();
    void ShowUnit();

    PlannerData& m_data;
    CListCtrl m_legs;
    bool m_filled = false;
};

/// The window of the flight log. It deletes itself when it is closed.
class FlightLogFrame : public CFrameWnd
{
public:
    explicit FlightLogFrame(PlannerData& data);

    /// @param owner the frame stays above it
    bool Open(CWnd& owner);
    FlightLogView& View() const;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT create, CCreateContext* context) override;
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    PlannerData& m_data;
    FlightLogView* m_view = nullptr; // deletes itself with its window
};

} // namespace vorn::planner
