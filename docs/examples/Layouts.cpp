#include <VornCommon.h>

#include <cstdio>

// A window with a text that grows, and two buttons that stay at the lower right.
class Window : public CWnd, public LayoutManagement::LayoutMgr
{
public:
    Window() : LayoutMgr(this)
    {
        CreateEx(0, AfxRegisterWndClass(0), "Layout", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr);
        m_text.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE, CRect(0, 0, 10, 10), this, kText);
        m_ok.Create("OK", WS_CHILD | WS_VISIBLE, CRect(0, 0, 75, 23), this, IDOK);
        m_cancel.Create("Cancel", WS_CHILD | WS_VISIBLE, CRect(0, 0, 75, 23), this, IDCANCEL);

        CPane root = CreateRoot(Vertical, 5, 0);
        root << item(kText, Greedy, 0, 0, 100, 60);
        CPane buttons = pane(Horizontal, FixedHeight, 5, 0, 0);
        buttons << itemSpace(Horizontal) << item(IDOK, FixedBoth) << item(IDCANCEL, FixedBoth);
        root << buttons;
        UpdateLayout(false);
    }
    ~Window() override
    {
        DestroyWindow();
    }

    void Resize(int width, int height)
    {
        SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        UpdateLayout(false); // LayoutDialog does so by itself
        Show("text", m_text);
        Show("cancel", m_cancel);
    }

private:
    static constexpr UINT kText = 1000;

    void Show(const char* name, CWnd& control)
    {
        CRect rect;
        control.GetWindowRect(&rect);
        ScreenToClient(&rect);
        std::printf("%-6s %3d, %3d to %3d, %3d\n", name, static_cast<int>(rect.left), static_cast<int>(rect.top),
                    static_cast<int>(rect.right), static_cast<int>(rect.bottom));
    }

    CEdit m_text;
    CButton m_ok;
    CButton m_cancel;
};

int main()
{
    CWinApp app;
    Window window;
    window.Resize(300, 200);
    window.Resize(500, 320);
    return 0;
}
