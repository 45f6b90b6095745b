#include "files/core/EncodedSink.h"

#include <stdexcept>

namespace vorn
{
EncodedSink FileSink(std::FILE* file)
{
    if (file == nullptr)
        return {};
    return [file](const char* data, unsigned size)
    {
        if (std::fwrite(data, 1, size, file) != size)
            throw std::runtime_error("the file takes no more");
    };
}
} // namespace vorn
