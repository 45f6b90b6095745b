#pragma once

/// @file
/// Run-time class information: which class an object is of, which it derives from, and making
/// objects of a class known only by its record or its name.
#include "framework/core/BaseTypes.h"
#include "framework/core/Export.h"

class CObject;

/// The record that describes one class. One object of it exists for each class, made by the
/// IMPLEMENT_ macros in the module that implements the class; it is valid while that module is loaded.
struct HOSTFRAMEWORK_API CRuntimeClass
{
    const char* m_lpszClassName;           ///< Name as written in the source.
    int m_nObjectSize;                     ///< sizeof the class.
    UINT m_wSchema;                        ///< Serialisation schema, 0xFFFF when not serialisable.
    CObject* (*m_pfnCreateObject)();       ///< Default construction on the heap; null when not dynamically creatable.
    CRuntimeClass* (*m_pfnGetBaseClass)(); ///< Record of the base class; null for CObject.
    CRuntimeClass* m_pNextClass;           ///< Next record in the process-wide list.

    /// A new object, owned by the caller (delete); null when the class cannot be created dynamically or memory is
    /// short.
    CObject* CreateObject() const;

    /// As CreateObject() for the class of that name; null also when no loaded module has it.
    static CObject* CreateObject(LPCSTR lpszClassName);

    /// Whether this class is `pBaseClass` or derives from it. False for null.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    /// Record of the class of that name (exact comparison) in any loaded module, or null.
    static CRuntimeClass* FromName(LPCSTR lpszClassName);
};

namespace vorn
{
/// Keeps a class record in the process-wide list while the module that owns it is loaded.
class HOSTFRAMEWORK_API RuntimeClassLink
{
public:
    explicit RuntimeClassLink(CRuntimeClass& runtimeClass);
    ~RuntimeClassLink();
    RuntimeClassLink(const RuntimeClassLink&) = delete;
    RuntimeClassLink& operator=(const RuntimeClassLink&) = delete;

private:
    CRuntimeClass& m_class;
};
} // namespace vorn

/// The record of a class. Goes through a function of the class, so that it works over module borders.
#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                                                                                    \
public:                                                                                                                \
    static CRuntimeClass class##class_name;                                                                            \
    static CRuntimeClass* GetThisClass();                                                                              \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* CreateObject();

// The record is constant-initialised: it can be used before any constructor of its module has run.
#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, create)                                            \
    constinit CRuntimeClass class_name::class##class_name = {#class_name,                                              \
                                                             static_cast<int>(sizeof(class_name)),                     \
                                                             schema,                                                   \
                                                             create,                                                   \
                                                             +[]() -> CRuntimeClass*                                   \
                                                             {                                                         \
                                                                 return base_class_name::GetThisClass();               \
                                                             },                                                        \
                                                             nullptr};                                                 \
    static const vorn::RuntimeClassLink runtimeClassLink##class_name{*class_name::GetThisClass()};                     \
    CRuntimeClass* class_name::GetThisClass()                                                                          \
    {                                                                                                                  \
        return &class_name::class##class_name;                                                                         \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                                 \
    {                                                                                                                  \
        return &class_name::class##class_name;                                                                         \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* class_name::CreateObject()                                                                                \
    {                                                                                                                  \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)
