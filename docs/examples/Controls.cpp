#include <VornCommon.h>

#include <cstdio>

namespace
{

void Show(const char* what, const CWnd& control)
{
    CString text;
    control.GetWindowText(text);
    std::printf("%s: \"%s\"\n", what, text.GetString());
}

// Confirms itself: an example has no user.
class Warning : public WarningDlgWithCheck
{
public:
    using WarningDlgWithCheck::WarningDlgWithCheck;

    BOOL OnInitDialog() override
    {
        const BOOL result = WarningDlgWithCheck::OnInitDialog();
        PostMessage(WM_COMMAND, IDOK);
        return result;
    }
};

} // namespace

int main()
{
    CWinApp app;
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), "Controls", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr);

    // An edit field for a number, shown with its unit while it is not being edited.
    FloatEdit speed;
    speed.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 10, 90, 32), &parent, 1000);
    speed.SetAttributes(1, true);
    speed.SetSuffix(" kt");
    speed.SetValue(104.25);
    Show("at rest", speed);
    speed.SetNumericText(true);
    Show("being edited", speed);
    std::printf("value: %.1f\n", speed.GetValue());

    // A link takes over a static control of a dialog.
    CStatic words;
    words.Create("Weather", WS_CHILD | WS_VISIBLE | SS_NOTIFY, CRect(10, 40, 200, 60), &parent, 1001);
    words.Detach();
    HyperLink link;
    link.SubclassDlgItem(1001, &parent, "https://example.org/weather");
    Show("link", link);
    std::printf("opens %s\n", link.GetURL().GetString());

    // A field whose border lights up while the mouse is over it.
    HotEdit find;
    find.Create(WS_CHILD | WS_VISIBLE, CRect(10, 70, 200, 92), &parent, 1002);
    find.HotActivate(true); // as the mouse does
    std::printf("lit up: %s\n", find.IsHot() ? "yes" : "no");

    Warning warning("The route crosses a restricted area.", "Route", "&Do not warn again", true, &parent);
    if (warning.DoModal() == IDOK)
        std::printf("warn again: %s\n", warning.WasCheckChecked() ? "no" : "yes");
    return 0;
}
