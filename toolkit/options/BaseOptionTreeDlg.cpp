#include "toolkit/options/BaseOptionTreeDlg.h"

#include "framework/window/MessageMap.h"
#include "toolkit/options/PaintingHeldBack.h"

#include <cstdarg>
#include <unordered_map>
#include <utility>
#include <vector>

IMPLEMENT_DYNAMIC(BaseOptionTreeDlg, LayoutManagement::LayoutDialog)

BEGIN_MESSAGE_MAP(BaseOptionTreeDlg, LayoutManagement::LayoutDialog)
ON_MESSAGE(OptionTree::kSelectionMessage, &BaseOptionTreeDlg::OnCategoryMessage)
END_MESSAGE_MAP()

namespace
{

constexpr UINT kBuckets = 10; // at first; the map grows

using ControlsByNumber = std::unordered_map<UINT, HWND>;

/// The controls, of those with the same number the first one. Asked for each of them alone, the system would go through
/// all of them every time.
ControlsByNumber ControlsOf(HWND dialog)
{
    ControlsByNumber controls;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        controls.try_emplace(static_cast<UINT>(::GetDlgCtrlID(child)), child);
    }
    return controls;
}

/// The style, not whether it can be seen: the dialog itself may be hidden yet.
bool IsShown(HWND control)
{
    return (::GetWindowLongPtr(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

} // namespace

BaseOptionTreeDlg::BaseOptionTreeDlg(UINT nIDTemplate, CWnd* parent)
    : LayoutDialog(nIDTemplate, parent, nullptr, false, true)
{
    m_categories.InitHashTable(kBuckets);
}

BaseOptionTreeDlg::~BaseOptionTreeDlg()
{
    if (m_hWnd != nullptr)
    {
        DestroyWindow(); // while the tree still lives
    }
}

OptionTree& BaseOptionTreeDlg::GetOptionTree()
{
    return mOptionTree;
}

BOOL BaseOptionTreeDlg::OnInitDialog()
{
    const BOOL setFocus = LayoutDialog::OnInitDialog();
    BindTree();
    mOptionTree.SetNotifyTarget(m_hWnd);
    mOptionTree.Init();
    return setFocus;
}

void BaseOptionTreeDlg::BindTree()
{
    const HWND tree = ::FindWindowEx(m_hWnd, nullptr, WC_TREEVIEWA, nullptr);
    if (mOptionTree.m_hWnd == nullptr && tree != nullptr)
    {
        mOptionTree.SubclassWindow(tree);
    }
}

// --- Which control belongs to which category ------------------------------------------------

void BaseOptionTreeDlg::AddControlMapping(HTREEITEM item, std::initializer_list<UINT> ids)
{
    for (const UINT id : ids)
    {
        m_categories.SetAt(id, item);
    }
}

void BaseOptionTreeDlg::AddControlMapping(HTREEITEM item, UINT id, ...)
{
    std::va_list more;
    va_start(more, id);
    for (; id != 0; id = va_arg(more, UINT))
    {
        m_categories.SetAt(id, item);
    }
    va_end(more);
}

void BaseOptionTreeDlg::RemoveControlMapping(std::initializer_list<UINT> ids)
{
    for (const UINT id : ids)
    {
        m_categories.RemoveKey(id);
    }
}

void BaseOptionTreeDlg::RemoveControlMapping(UINT id, ...)
{
    std::va_list more;
    va_start(more, id);
    for (; id != 0; id = va_arg(more, UINT))
    {
        m_categories.RemoveKey(id);
    }
    va_end(more);
}

// --- Showing a category -----------------------------------------------------------------------

LRESULT BaseOptionTreeDlg::OnCategoryMessage(WPARAM, LPARAM lParam)
{
    OnSelectCategory(reinterpret_cast<HTREEITEM>(lParam));
    return 0;
}

void BaseOptionTreeDlg::OnSelectCategory(HTREEITEM item)
{
    // What a control does on being shown may change the mapping.
    std::vector<std::pair<HWND, bool>> controls;
    const ControlsByNumber present = ControlsOf(m_hWnd);
    for (const auto* entry = m_categories.PGetFirstAssoc(); entry != nullptr; entry = m_categories.PGetNextAssoc(entry))
    {
        if (const auto control = present.find(entry->key); control != present.end())
        {
            controls.emplace_back(control->second, item != nullptr && entry->value == item);
        }
    }
    const HWND focus = ::GetFocus();
    for (const auto& [control, show] : controls)
    {
        if (!show && focus != nullptr && (focus == control || ::IsChild(control, focus)))
        {
            LeaveControl(control);
        }
    }
    const vorn::PaintingHeldBack heldBack(*this);
    for (const auto& [control, show] : controls)
    {
        ShowControl(control, show);
    }
    UpdateLayout(true);
}

void BaseOptionTreeDlg::ShowControl(HWND control, bool show)
{
    if (show != IsShown(control))
    {
        ::ShowWindow(control, show ? SW_SHOWNA : SW_HIDE);
    }
}

/// The focus must not stay in what cannot be seen.
void BaseOptionTreeDlg::LeaveControl(HWND control)
{
    const HWND focus = ::GetFocus();
    if (control != nullptr && focus != nullptr && (focus == control || ::IsChild(control, focus)))
    {
        mOptionTree.SetFocus();
    }
}
