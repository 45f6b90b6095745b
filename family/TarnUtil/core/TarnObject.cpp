#include "family/TarnUtil/core/TarnObject.h"

#include <cstring>

TarnObject::~TarnObject() = default;

int TarnObject::ReadWriteSimpleValue(char*& cursor, unsigned long& remaining, void* address, unsigned long size,
                                     int read)
{
    if (size == 0)
    {
        return 1;
    }
    if (cursor == nullptr || address == nullptr || remaining < size)
    {
        return 0;
    }
    // The field may lie inside the buffer itself, so the two may overlap.
    if (read != 0)
    {
        std::memmove(address, cursor, size);
    }
    else
    {
        std::memmove(cursor, address, size);
    }
    cursor += size;
    remaining -= size;
    return 1;
}
