#pragma once

#include "family/TarnUtil/core/Export.h"

/// Base of the family's serialisable objects.
class TARNUTIL_API TarnObject
{
public:
    TarnObject() = default;
    TarnObject(const TarnObject&) = default;
    TarnObject& operator=(const TarnObject&) = default;
    virtual ~TarnObject();

    /// Moves one field of @p size bytes between a serialised buffer and memory: from the buffer to @p address when
    /// @p read is non-zero, the other way when it is zero. The bytes are copied as they stand; neither side need be
    /// aligned. On success @p cursor is past the field and @p remaining less by @p size.
    ///
    /// @return non-zero on success; 0 when fewer than @p size bytes remain or a pointer is null, and then nothing has
    ///         moved. A field of no bytes always succeeds.
    static int ReadWriteSimpleValue(char*& cursor, unsigned long& remaining, void* address, unsigned long size,
                                    int read);
};
