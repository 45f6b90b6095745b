#include "framework/core/Object.h"

constinit CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr, nullptr,
                                                 nullptr};

static const vorn::RuntimeClassLink runtimeClassLinkCObject{CObject::classCObject};

CObject::~CObject() = default;

CRuntimeClass* CObject::GetThisClass()
{
    return &classCObject;
}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return &classCObject;
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

BOOL CObject::IsSerializable() const
{
    return GetRuntimeClass()->m_wSchema != 0xFFFF ? TRUE : FALSE;
}

void CObject::Serialize(CArchive&)
{
}

void CObject::AssertValid() const
{
}

void CObject::Dump(CDumpContext&) const
{
}

CObject* AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject)
{
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* AfxStaticDownCast([[maybe_unused]] CRuntimeClass* pClass, CObject* pObject)
{
    ASSERT(pObject == nullptr || pObject->IsKindOf(pClass));
    return pObject;
}
