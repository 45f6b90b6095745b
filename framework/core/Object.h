#pragma once

/// @file
/// The root of the framework's classes.
#include "framework/core/Diagnostics.h"
#include "framework/core/RuntimeClass.h"

class CArchive;
class CDumpContext;

/// Base of nearly every framework class: run-time class information, diagnostics and a place for
/// serialisation. Objects are not copyable unless a derived class says so.
class HOSTFRAMEWORK_API CObject
{
public:
    static CRuntimeClass classCObject;
    static CRuntimeClass* GetThisClass();

    /// Record of the object's own class.
    virtual CRuntimeClass* GetRuntimeClass() const;

    virtual ~CObject();

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    /// Whether the object is of `pClass` or of a class derived from it; derivation counts as far as the
    /// classes carry the DYNAMIC macros.
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

    /// Whether the class was declared with a serialisation schema.
    BOOL IsSerializable() const;

    /// Reads or writes the object's state; this one does nothing.
    virtual void Serialize(CArchive& ar);

    /// Checks the object's inner state with ASSERT; this one checks nothing.
    virtual void AssertValid() const;

    /// Describes the object for diagnostics; this one writes nothing.
    virtual void Dump(CDumpContext& dc) const;

protected:
    CObject() = default;
};

/// `object` as a `class_name*` when it is of that class, otherwise null.
#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))

/// `object` as a `class_name*`; asserts that it is of that class.
#define STATIC_DOWNCAST(class_name, object)                                                                            \
    (static_cast<class_name*>(AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))

HOSTFRAMEWORK_API CObject* AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
HOSTFRAMEWORK_API CObject* AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject);
