#include "toolkit/textlayout/core/Item.h"

#include "toolkit/textlayout/core/LayoutNumber.h"

#include <cstdint>
#include <string>

namespace TextLayout
{

void Item::Set(LPCSTR key, LPCSTR value)
{
    if (key == nullptr)
    {
        return;
    }
    const CString text(value);
    for (auto& [name, old] : m_attributes)
    {
        if (name == key)
        {
            old = text;
            return;
        }
    }
    m_attributes.emplace_back(key, text);
}

void Item::Set(LPCSTR key, int value)
{
    Set(key, std::to_string(value).c_str());
}

bool Item::Get(LPCSTR key, int& value, bool inherit) const
{
    const CString* text = Find(key, inherit);
    if (text != nullptr)
    {
        value = vorn::ReadLayoutNumber(*text);
    }
    return text != nullptr;
}

bool Item::Get(LPCSTR key, CString& value, bool inherit) const
{
    const CString* text = Find(key, inherit);
    if (text != nullptr)
    {
        value = *text;
    }
    return text != nullptr;
}

bool Item::Has(LPCSTR key, bool inherit) const
{
    return Find(key, inherit) != nullptr;
}

bool Item::GetSum(LPCSTR key, int& value) const
{
    std::int64_t sum = 0;
    bool found = false;
    for (const Item* node = this; node != nullptr; node = node->m_parent)
    {
        int part = 0;
        found = node->Get(key, part) || found;
        sum += part;
    }
    value = vorn::ClampToInt(sum);
    return found;
}

bool Item::Copy(LPCSTR key, const Item* from)
{
    return Copy(key, key, from);
}

bool Item::Copy(LPCSTR fromKey, LPCSTR toKey, const Item* from)
{
    CString value;
    if (from == nullptr || toKey == nullptr || !from->Get(fromKey, value))
    {
        return false;
    }
    Set(toKey, static_cast<LPCSTR>(value));
    return true;
}

const CString* Item::Find(LPCSTR key, bool inherit) const
{
    if (key == nullptr)
    {
        return nullptr;
    }
    for (const Item* node = this; node != nullptr; node = inherit ? node->m_parent : nullptr)
    {
        for (const auto& [name, value] : node->m_attributes)
        {
            if (name == key)
            {
                return &value;
            }
        }
    }
    return nullptr;
}

} // namespace TextLayout
