#pragma once

#include "frame/core/ByteReading.h"

#include <memory>
#include <string>

namespace vorn
{
/// A file's content for reading, as long as this object lives. Empty when there is no such file, it cannot be opened,
/// or it does not fit into the address space.
class MappedFile
{
public:
    explicit MappedFile(const std::string& path);

    Bytes Content() const
    {
        return {m_view.get(), m_size};
    }

private:
    struct Unmap
    {
        void operator()(const std::byte* view) const;
    };

    std::unique_ptr<const std::byte, Unmap> m_view;
    std::size_t m_size = 0;
};
} // namespace vorn
