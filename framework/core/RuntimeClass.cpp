#include "framework/core/RuntimeClass.h"

#include "framework/core/Exception.h"
#include "framework/core/Object.h"
#include "framework/core/SpinLock.h"

#include <cstring>
#include <mutex>
#include <new>

namespace
{
// Both are constant-initialised and never destroyed: records of other modules come and go at any time.
constinit CRuntimeClass* g_firstClass = nullptr;
constinit vorn::SpinLock g_classListLock;

void Unlink(const CRuntimeClass& runtimeClass)
{
    CRuntimeClass** link = &g_firstClass;
    while (*link != nullptr && *link != &runtimeClass)
    {
        link = &(*link)->m_pNextClass;
    }
    if (*link != nullptr)
    {
        *link = runtimeClass.m_pNextClass;
    }
}
} // namespace

namespace vorn
{
RuntimeClassLink::RuntimeClassLink(CRuntimeClass& runtimeClass) : m_class(runtimeClass)
{
    const std::lock_guard lock(g_classListLock);
    m_class.m_pNextClass = g_firstClass;
    g_firstClass = &m_class;
}

RuntimeClassLink::~RuntimeClassLink()
{
    const std::lock_guard lock(g_classListLock);
    Unlink(m_class);
}
} // namespace vorn

CObject* CRuntimeClass::CreateObject() const
{
    if (m_pfnCreateObject == nullptr)
    {
        TRACE("class %s cannot be created dynamically\n", m_lpszClassName);
        return nullptr;
    }
    try
    {
        return m_pfnCreateObject();
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
    catch (CMemoryException* error)
    {
        error->Delete();
        return nullptr;
    }
}

CObject* CRuntimeClass::CreateObject(LPCSTR lpszClassName)
{
    const CRuntimeClass* runtimeClass = FromName(lpszClassName);
    return runtimeClass != nullptr ? runtimeClass->CreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    if (pBaseClass == nullptr)
    {
        return FALSE;
    }
    const CRuntimeClass* current = this;
    while (current != nullptr && current != pBaseClass)
    {
        current = current->m_pfnGetBaseClass != nullptr ? current->m_pfnGetBaseClass() : nullptr;
    }
    return current != nullptr ? TRUE : FALSE;
}

CRuntimeClass* CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    if (lpszClassName == nullptr)
    {
        return nullptr;
    }
    const std::lock_guard lock(g_classListLock);
    CRuntimeClass* current = g_firstClass;
    while (current != nullptr && std::strcmp(current->m_lpszClassName, lpszClassName) != 0)
    {
        current = current->m_pNextClass;
    }
    return current;
}
