#pragma once

/// @file
/// Base of the drawing objects: one GDI handle and the rule who deletes it.
#include "framework/core/BaseTypes.h"
#include "framework/core/Export.h"
#include "framework/core/Object.h"

/// A GDI object (pen, brush, font, bitmap, palette, region) and its handle.
///
/// Ownership: an object that created or was attached to a handle deletes the handle in its
/// destructor; Detach() gives the handle back to the caller instead. FromHandle() never takes
/// ownership: for a handle without an object of its own it makes a temporary object, which lives
/// until the thread is idle and then goes away without touching the handle. Never keep such a pointer.
/// Deleting a stock object has no effect, so stock handles may be attached like others.
class HOSTFRAMEWORK_API CGdiObject : public CObject
{
    DECLARE_DYNCREATE(CGdiObject)
public:
    CGdiObject();
    ~CGdiObject() override;

    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;

    /// The handle; null for an empty object.
    HGDIOBJ GetSafeHandle() const;
    operator HGDIOBJ() const;

    /// The object that owns `object`, or a temporary one of the class that fits the handle's type;
    /// null for a null handle.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ object);
    /// Frees this thread's temporary objects; called while idle.
    static void PASCAL DeleteTempMap();

    /// Takes ownership of `object`. @return FALSE for a null handle or when a handle is already held.
    BOOL Attach(HGDIOBJ object);
    /// Gives up the handle without deleting it. @return the handle, null when empty.
    HGDIOBJ Detach();
    /// Deletes the handle and leaves the object empty. @return FALSE when empty or when the system
    /// refuses (the object is still selected somewhere); the object is empty then all the same.
    BOOL DeleteObject();

    /// Fills `buffer` with the description of the object. @return bytes stored, 0 on failure.
    int GetObject(int size, void* buffer) const;
    /// One of the system's OBJ_ values, 0 on failure.
    UINT GetObjectType() const;
    /// Attaches one of the system's stock objects (BLACK_PEN, SYSTEM_FONT, ...).
    BOOL CreateStockObject(int index);
    /// Resets a palette's realised state (a brush's origin on old systems).
    BOOL UnrealizeObject();

    /// Compare handles, not descriptions.
    BOOL operator==(const CGdiObject& other) const;
    BOOL operator!=(const CGdiObject& other) const;

    /// The handle. Set it through Attach() and Detach() only.
    HGDIOBJ m_hObject = nullptr;
};
