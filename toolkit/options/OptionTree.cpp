#include "toolkit/options/OptionTree.h"

#include "framework/window/MessageMap.h"
#include "toolkit/core/CategoryPath.h"
#include "toolkit/options/PaintingHeldBack.h"

IMPLEMENT_DYNAMIC(OptionTree, CTreeCtrl)

BEGIN_MESSAGE_MAP(OptionTree, CTreeCtrl)
ON_NOTIFY_REFLECT(TVN_SELCHANGEDA, &OptionTree::OnTreeSelectionChanged)
ON_NOTIFY_REFLECT(TVN_SELCHANGEDW, &OptionTree::OnTreeSelectionChanged)
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

namespace
{

std::string KeyOf(LPCSTR path)
{
    return vorn::CategoryKey(path != nullptr ? path : "");
}

} // namespace

OptionTree::OptionTree() = default;

OptionTree::~OptionTree() = default;

HTREEITEM OptionTree::AddOptionCategory(LPCSTR path)
{
    const std::string key = KeyOf(path);
    if (key.empty())
    {
        return nullptr;
    }
    const auto number = static_cast<int>(m_paths.Add(key.c_str()));
    if (m_hWnd == nullptr)
    {
        return nullptr;
    }
    const HTREEITEM item = InsertCategory(number);
    if (GetSelectedItem() == nullptr)
    {
        SelectCategory(item);
    }
    return item;
}

void OptionTree::Init()
{
    if (m_hWnd == nullptr || m_paths.IsEmpty())
    {
        return;
    }
    HTREEITEM first = nullptr;
    {
        const vorn::PaintingHeldBack heldBack(*this);
        for (int i = 0; i < GetCategoryCount(); ++i)
        {
            const HTREEITEM item = InsertCategory(i);
            first = i == 0 ? item : first;
        }
        SelectCategory(first);
    }
    if (first != nullptr)
    {
        OnSelchanged(first);
    }
}

/// Inserts what is missing of a listed path. When that fails, what was made stays.
/// @return the item of the last level that is there, null for none
HTREEITEM OptionTree::InsertCategory(int number)
{
    HTREEITEM item = nullptr;
    const CString path = m_paths[number];
    for (const vorn::CategoryLevel& level : vorn::CategoryLevels(path.GetString()))
    {
        const HTREEITEM next = InsertLevel(item, level.text.c_str(), level.prefix.c_str());
        if (next == nullptr)
        {
            return item;
        }
        item = next;
    }
    GiveNumber(item, number);
    return item;
}

HTREEITEM OptionTree::InsertLevel(HTREEITEM parent, LPCSTR text, LPCSTR prefix)
{
    if (const HTREEITEM known = GetCategoryItem(prefix))
    {
        return known;
    }
    const HTREEITEM item = InsertItem(TVIF_TEXT | TVIF_STATE, text, 0, 0, TVIS_EXPANDED, TVIS_EXPANDED, 0,
                                      parent != nullptr ? parent : TVI_ROOT, TVI_LAST);
    if (item != nullptr)
    {
        m_items.SetAt(prefix, item);
        m_nodes.SetAt(item, Node{CString(prefix), false});
    }
    return item;
}

/// The first path that ends at an item numbers it.
void OptionTree::GiveNumber(HTREEITEM item, int number)
{
    auto* const entry = m_nodes.PLookup(item);
    if (entry != nullptr && !entry->value.hasNumber)
    {
        entry->value.hasNumber = true;
        SetItemData(item, static_cast<DWORD_PTR>(number));
    }
}

HTREEITEM OptionTree::GetCategoryItem(LPCSTR path) const
{
    void* item = nullptr;
    m_items.Lookup(KeyOf(path).c_str(), item);
    return static_cast<HTREEITEM>(item);
}

CString OptionTree::GetCategoryPath(HTREEITEM item) const
{
    const auto* const entry = m_nodes.PLookup(item);
    return entry != nullptr ? entry->value.path : CString();
}

int OptionTree::GetCategoryCount() const
{
    return static_cast<int>(m_paths.GetSize());
}

void OptionTree::SelectCategory(HTREEITEM item)
{
    if (item != nullptr && m_hWnd != nullptr)
    {
        SelectItem(item);
    }
}

void OptionTree::SelectCategory(LPCSTR path)
{
    SelectCategory(GetCategoryItem(path));
}

void OptionTree::SetNotifyTarget(HWND target)
{
    m_notifyTarget = target;
}

void OptionTree::OnSelchanged(HTREEITEM item)
{
    if (m_notifyTarget != nullptr)
    {
        ::PostMessage(m_notifyTarget, kSelectionMessage, 0, reinterpret_cast<LPARAM>(item));
    }
}

void OptionTree::OnTreeSelectionChanged(NMHDR* header, LRESULT* result)
{
    // The texts of the two forms of this record differ in their characters only; the handle is the same.
    OnSelchanged(reinterpret_cast<NMTREEVIEWA*>(header)->itemNew.hItem);
    *result = 0;
}

void OptionTree::OnNcDestroy()
{
    m_items.RemoveAll();
    m_nodes.RemoveAll();
    CTreeCtrl::OnNcDestroy();
}
